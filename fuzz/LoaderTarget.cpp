// Any bytes as a document: it is loaded or refused with a reason, a value of it holds what UIConfig gains, and every
// getter answers.

#include "Fuzz.h"

#include <base/Singleton.h>
#include <config/ConfigRepresentation.h>
#include <config/Configuration.h>
#include <config/UIConfig.h>

using namespace Qt::StringLiterals;
using fuzz::require;
using lumo::tools::Singleton;

namespace {

/// The number of entries of each list of \p config.
QList<qsizetype> sizes(UIConfig& config)
{
    return {
        config.getAxesCombinationManager().getAxesCombinations().size(),
        config.getConfigRepresentationManager().getConfigRepresentationList().size(),
        config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsList().size(),
        config.getSkippedTasks().size(),
        config.getSummaryTablePerStepColumns().size(),
        config.getSummaryTablePerCycleColumns().size(),
        config.getSummaryTablePerLoopColumns().size(),
        config.getCustomColors().size(),
        config.getStatsGraph().size(),
        config.getRagonePlotGraph().size(),
        config.getProcessedDataGraph().size(),
        config.getRecipeGraphCombinationsList().size(),
        config.getRecipeToolsTablesList().size(),
        config.getRecipeToolsGraphsList().size(),
        config.getAxisFormulaConfigByName(u"X"_s).size(),
        config.getAxisFormulaConfigByName(u"Y1"_s).size(),
        config.getAxisFormulaConfigByName(u"Y2"_s).size(),
        config.getDQdUColumns().size(),
    };
}

QList<qsizetype> sizes(const uiconfig::Configuration& configuration)
{
    return {
        configuration.axesCombinations.size(),
        configuration.representations.size(),
        configuration.msvUnits.size(),
        configuration.skippedTasks.size(),
        configuration.summaryTables.perStep.size(),
        configuration.summaryTables.perCycle.size(),
        configuration.summaryTables.perLoop.size(),
        configuration.colors.custom.size(),
        configuration.statistics.size(),
        configuration.ragonePlots.size(),
        configuration.processedData.size(),
        configuration.recipe.graphCombinations.size(),
        configuration.recipe.toolsTables.size(),
        configuration.recipe.toolsGraphs.size(),
        configuration.processFormulas.x.size(),
        configuration.processFormulas.y1.size(),
        configuration.processFormulas.y2.size(),
        configuration.dQdU.columns.size(),
    };
}

void askForAxes(const AxesCombinationManager& axes)
{
    for (const QString& x : axes.getXAxesNames()) {
        require(!axes.getAxesCombinations(x).isEmpty(), "an X axis that is listed has combinations");
        for (const QString& y : axes.getYAxesNames(x)) {
            const AxesCombination combination = axes.getAxesCombination(x, y);
            require(combination.isValid(), "a pair of axes that is listed has a combination");
            require(combination.getConfigX().getName() == x && combination.getConfigY().getName() == y,
                    "the combination of a pair is of that pair");
        }
    }
}

void askByName(UIConfig& config, const uiconfig::Configuration& read)
{
    for (const auto& representation : read.representations) {
        config.getAxesCombinationManager().isRepresentationValid(&representation);
    }
    for (const auto& [element, name] : read.colors.defaults.asKeyValueRange()) {
        QColor color;
        config.getDefaultColor(element, color);
    }
    for (const StatisticsItem& graph : read.statistics) {
        require(config.getStatGraphFromTitle(graph.getTitle()).getTitle() == graph.getTitle(),
                "a statistics graph is found by its title");
    }
    for (const RagonePlotItem& graph : read.ragonePlots) {
        require(config.getRagonePlotGraphFromTitle(graph.getTitle()).getTitle() == graph.getTitle(),
                "a Ragone plot is found by its title");
    }
    for (const ProcessedDataItem& graph : read.processedData) {
        require(config.getProcessedDataGraphFromTitle(graph.getTitle()).getTitle() == graph.getTitle(),
                "a processed-data graph is found by its title");
    }
    config.getDefaultConfigRepresentation();
    config.getDQdUItem().getTitle();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = fuzz::fileWith(fuzz::bytes(data, size));

    auto& config = Singleton<UIConfig>::instance();
    config.deleteAll(); // which keeps some lists: they grow
    const QList<qsizetype> before = sizes(config);
    QString error;
    const bool loads = config.readUIConfiguration(path, error);
    require(loads == error.isEmpty(), "a document loads, or there is a reason why not");

    uiconfig::Configuration read;
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    require(fuzz::load(path, read, refusals) == error,
            "the object and the value refuse a document with the same words");

    QList<qsizetype> gained = sizes(config);
    for (qsizetype i = 0; i < gained.size(); ++i) {
        gained[i] -= before.at(i);
    }
    require(gained == sizes(read), "the object gains what the value holds");
    askForAxes(config.getAxesCombinationManager());
    askByName(config, read);
    return 0;
}
