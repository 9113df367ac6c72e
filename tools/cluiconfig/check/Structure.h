#pragma once

#include "Document.h"
#include "Findings.h"

namespace cluiconfig::check {

/// The JSON Schema of the document, as it is installed.
QByteArray documentSchema();

/// Adds a finding for every place where \p root violates the JSON Schema. What the schema marks with "x-refused" is an
/// error unless \p findings knows that the loader never reads it; everything else is a warning.
void checkStructure(const Value& root, Findings& findings);

} // namespace cluiconfig::check
