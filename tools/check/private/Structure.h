#pragma once

#include "Document.h"
#include "Findings.h"

namespace cluiconfig::check {

/// Adds a finding for every place where \p root violates the JSON Schema of what the findings are about: an error where
/// the application refuses it.
void checkStructure(const Value& root, Findings& findings);

} // namespace cluiconfig::check
