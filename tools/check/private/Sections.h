#pragma once

#include "Catalogue.h"
#include "Document.h"
#include "Findings.h"

#include <base/DocumentKeys.h>

#include <array>
#include <initializer_list>

class AxesCombinationManager;

namespace uiconfig {
struct Configuration;
}

/// \file Sections.h
/// What the check knows of the sections beyond their structure, a source file a section. Each function takes the value
/// of its section, which has the section's type, and adds findings. What has the wrong type or is missing within it is
/// passed over: the structure tells of it.

namespace cluiconfig::check {

/// What the sections are checked with.
struct Context
{
    const Catalogue& catalogue;
    AxesCombinationManager& axes; ///< What the document's axes combinations pair, each pair once: their check fills it.
    const uiconfig::Configuration& configuration; ///< What the other sections say.
    Findings& findings;
};

void checkAxesCombinations(const Value& section, const Context& with);
void checkRepresentations(const Value& section, const Context& with);
void checkMSVUnits(const Value& section, const Context& with);
void checkTools(const Value& section, const Context& with);
void checkColors(const Value& section, const Context& with);
void checkCurves(const Value& section, const Context& with); // statistics and Ragone plots
void checkProcessedData(const Value& section, const Context& with);
void checkRecipe(const Value& section, const Context& with);
void checkProcessFormula(const Value& section, const Context& with);
void checkDQdU(const Value& section, const Context& with);

struct SectionCheck
{
    QLatin1StringView section;
    void (*check)(const Value& section, const Context& with) = nullptr;
};

/// What is checked beyond the structure, and where. A section without a row has nothing else to be wrong.
inline constexpr std::array SectionChecks{
    SectionCheck{uiconfig::keys::AxesCombinations, checkAxesCombinations},
    SectionCheck{uiconfig::keys::Representations, checkRepresentations},
    SectionCheck{uiconfig::keys::MSVUnits, checkMSVUnits},
    SectionCheck{uiconfig::keys::Tools, checkTools},
    SectionCheck{uiconfig::keys::Colors, checkColors},
    SectionCheck{uiconfig::keys::Statistics, checkCurves},
    SectionCheck{uiconfig::keys::RagonePlot, checkCurves},
    SectionCheck{uiconfig::keys::ProcessedData, checkProcessedData},
    SectionCheck{uiconfig::keys::Recipe, checkRecipe},
    SectionCheck{uiconfig::keys::ProcessFormula, checkProcessFormula},
    SectionCheck{uiconfig::keys::DQdU, checkDQdU},
};

// What several sections have.

/// The columns \p names of a table, all of one category that the catalogue has.
void checkColumns(const Value& names, const QString& category, const Context& with);

/// An array of a plot, where a text that is not empty names one. \p effect is what happens without it.
void checkArray(const Value& name, const QString& category, const QString& effect, const Context& with);

/// The category and the arrays of a plot: those under \p axes make it what it is, those under \p others, names or lists
/// of names, come on top.
void checkPlot(const Value& plot, std::initializer_list<QLatin1StringView> axes,
               std::initializer_list<QLatin1StringView> others, const Context& with);

} // namespace cluiconfig::check
