#include <config/UIConfigTest.h>

#include <config/Configuration.h>

using namespace Qt::StringLiterals;

QMap<QString, qsizetype> entries(UIConfig& config)
{
    const auto formulas = [&](const QString& axis) { return config.getAxisFormulaConfigByName(axis).size(); };
    return {
        {u"Axes combinations"_s, config.getAxesCombinationManager().getAxesCombinations().size()},
        {u"Representations"_s, config.getConfigRepresentationManager().getConfigRepresentationList().size()},
        {u"MSVUnits"_s, config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsList().size()},
        {u"Filters"_s, config.getSkippedTasks().size()},
        {u"Tools"_s,
         config.getSummaryTablePerStepColumns().size() + config.getSummaryTablePerCycleColumns().size()
             + config.getSummaryTablePerLoopColumns().size()},
        {u"Colors"_s, config.getCustomColors().size()},
        {u"Statistics"_s, config.getStatsGraph().size()},
        {u"Ragone Plot"_s, config.getRagonePlotGraph().size()},
        {u"Processed Data"_s, config.getProcessedDataGraph().size()},
        {u"Recipe"_s,
         config.getRecipeGraphCombinationsList().size() + config.getRecipeToolsTablesList().size()
             + config.getRecipeToolsGraphsList().size()},
        {u"Process Formula"_s, formulas(u"X"_s) + formulas(u"Y1"_s) + formulas(u"Y2"_s)},
        {u"dQ_dU"_s, config.getDQdUColumns().size()},
        {u"Debug"_s,
         qsizetype{config.importDialogShowClIds()} + qsizetype{config.saveImportedParquetFiles()}
             + qsizetype{config.saveZFitInputData()}},
    };
}

QStringList filledSections(UIConfig& config)
{
    const QMap<QString, qsizetype> held = entries(config);
    QStringList filled = allSections();
    filled.removeIf([&](const QString& key) { return held.value(key) == 0; });
    return filled;
}

QStringList allSections()
{
    QStringList keys;
    const QList<uiconfig::Section> sections = uiconfig::sections();
    for (const uiconfig::Section& section : sections) {
        keys.append(section.key);
    }
    return keys;
}
