#pragma once

#include "Catalogue.h"
#include "Document.h"
#include "Findings.h"

class AxesCombinationManager;

/// \file Sections.h
/// What the check knows of the sections beyond their structure, a source file a subject. Each takes the root of the
/// document and adds findings; what has the wrong type or is missing it passes over, since the structure tells of it.

namespace cluiconfig::check {

/// Reads the entries of "Axes combinations" one after the other into \p manager, as the application would if none were
/// refused. Tells \p findings at which step the loader looks at the scales and the flag of an entry.
void checkAxesCombinations(const Value& root, const Catalogue& catalogue, AxesCombinationManager& manager,
                           Findings& findings);

/// \p manager holds what the document's axes combinations yield.
void checkRepresentations(const Value& root, const Catalogue& catalogue, const AxesCombinationManager& manager,
                          Findings& findings);

void checkCompoundUnits(const Value& root, Findings& findings);

/// The columns of the summary tables and of the dQ/dU table. Tells \p findings which kinds the loader never reads.
void checkColumns(const Value& root, const Catalogue& catalogue, Findings& findings);

void checkColors(const Value& root, Findings& findings);

/// Statistics graphs, Ragone plots, graphs of processed data, the dQ/dU graph.
void checkGraphs(const Value& root, const Catalogue& catalogue, Findings& findings);

void checkRecipe(const Value& root, Findings& findings);

void checkFormulas(const Value& root, Findings& findings);

} // namespace cluiconfig::check
