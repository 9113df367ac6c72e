#include <config/UIConfigTest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QList<std::pair<QString, bool>> sections(UIConfig& config)
{
    const auto hasFormulas = [&](const QString& axis) { return !config.getAxisFormulaConfigByName(axis).isEmpty(); };
    return {
        {u"Axes combinations"_s, !config.getAxesCombinationManager().getAxesCombinations().isEmpty()},
        {u"Representations"_s, !config.getConfigRepresentationManager().getConfigRepresentationList().isEmpty()},
        {u"MSVUnits"_s, !config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsList().isEmpty()},
        {u"Filters"_s, !config.getSkippedTasks().isEmpty()},
        {u"Tools"_s,
         !config.getSummaryTablePerStepColumns().isEmpty() || !config.getSummaryTablePerCycleColumns().isEmpty()
             || !config.getSummaryTablePerLoopColumns().isEmpty()},
        {u"Colors"_s, !config.getCustomColors().isEmpty()},
        {u"Statistics"_s, !config.getStatsGraph().isEmpty()},
        {u"Ragone Plot"_s, !config.getRagonePlotGraph().isEmpty()},
        {u"Processed Data"_s, !config.getProcessedDataGraph().isEmpty()},
        {u"Recipe"_s,
         !config.getRecipeGraphCombinationsList().isEmpty() || !config.getRecipeToolsTablesList().isEmpty()
             || !config.getRecipeToolsGraphsList().isEmpty()},
        {u"Process Formula"_s, hasFormulas(u"X"_s) || hasFormulas(u"Y1"_s) || hasFormulas(u"Y2"_s)},
        {u"dQ_dU"_s, !config.getDQdUColumns().isEmpty() || !config.getDQdUItem().getTitle().isEmpty()},
        {u"Debug"_s, config.importDialogShowClIds() || config.saveImportedParquetFiles() || config.saveZFitInputData()},
    };
}

} // namespace

QStringList filledSections(UIConfig& config)
{
    QStringList filled;
    for (const auto& [key, isFilled] : sections(config)) {
        if (isFilled) {
            filled.append(key);
        }
    }
    return filled;
}

QStringList allSections()
{
    QStringList all;
    for (const auto& section : sections(lumo::tools::Singleton<UIConfig>::instance())) {
        all.append(section.first);
    }
    return all;
}
