#include "DocumentTables.h"

#include <batterydata/ClConfigDataArray.h>
#include <config/ConfigRepresentation.h>
#include <config/MSVUnitsCombination.h>
#include <config/UIConfig.h>
#include <datastorage/Converter.h>

#include <QJsonArray>

#include <utility>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::datastorage::Converter;

namespace cluiconfig {

namespace {

Table axesTable(const UIConfig& config)
{
    Table table{
        u"Axes combinations"_s, {u"X"_s, u"Category"_s, u"X scale"_s, u"Y scale"_s, u"Orthonormal"_s, u"Y"_s}, {}, 5};
    const AxesCombinationManager& manager = config.getAxesCombinationManager();
    for (AxesCombination combination : manager.getAxesCombinations()) {
        table.rows.append({combination.getConfigX().getName(), combination.getConfigX().getCategory(),
                           scaleText(combination.getDefaultScaleX()), scaleText(combination.getDefaultScaleY()),
                           combination.isOrthonormal(), combination.getConfigY().getName()});
    }
    return table;
}

Table representationsTable(const UIConfig& config)
{
    Table table{u"Representations"_s,
                {u"Name"_s, u"X"_s, u"Y1"_s, u"Y2"_s, u"Category"_s, u"Default"_s, u"Can be drawn"_s},
                {}};
    const auto representations = config.getConfigRepresentationManager().getConfigRepresentationList();
    for (const ConfigRepresentation* representation : representations) {
        table.rows.append({representation->name(), representation->x(), representation->y1(), representation->y2(),
                           representation->category(), representation->isDefault(),
                           config.getAxesCombinationManager().isRepresentationValid(representation)});
    }
    return table;
}

Table unitsTable(UIConfig& config)
{
    Table table{u"Compound units"_s, {u"Physical parameter"_s, u"Operator"_s, u"With"_s}, {}};
    for (const MSVUnitsCombination* combination :
         config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsList()) {
        QJsonArray parameters;
        for (const auto parameter : combination->getMultiParamsList()) {
            parameters.append(Converter::toString(parameter));
        }
        table.rows.append({Converter::toString(combination->getPhysicalParameter()),
                           Converter::toString(combination->getOperator()), parameters});
    }
    return table;
}

Table filtersTable(const UIConfig& config)
{
    Table table{u"Skipped tasks"_s, {u"Task"_s}, {}};
    for (const QString& task : config.getSkippedTasks()) {
        table.rows.append({task});
    }
    return table;
}

void appendColumns(Table& table, const QString& kind, const QList<ClConfigDataArray*>& columns)
{
    for (const ClConfigDataArray* column : columns) {
        if (column == nullptr) {
            table.rows.append({kind, QJsonValue::Null, QJsonValue::Null, QJsonValue::Null});
        } else {
            table.rows.append(
                {kind, column->getCategory(), column->getName(), Converter::toString(column->getUsualUnit())});
        }
    }
}

QStringList columnHeadings()
{
    return {u"Table"_s, u"Category"_s, u"Column"_s, u"Unit"_s};
}

Table summaryTable(const UIConfig& config)
{
    Table table{u"Summary table columns"_s, columnHeadings(), {}};
    appendColumns(table, u"Per step"_s, config.getSummaryTablePerStepColumns());
    appendColumns(table, u"Per cycle"_s, config.getSummaryTablePerCycleColumns());
    appendColumns(table, u"Per loop"_s, config.getSummaryTablePerLoopColumns());
    return table;
}

Table paletteTable(const UIConfig& config)
{
    Table table{u"Palette"_s, {u"Name"_s, u"Colour"_s}, {}};
    table.endsInColors = true;
    for (const auto& [name, color] : config.getCustomColors()) {
        table.rows.append({name, color.isValid() ? color.name() : u"(invalid)"_s});
    }
    return table;
}

Table defaultColorsTable(const UIConfig& config, const QJsonObject& root)
{
    Table table{u"Default colours"_s, {u"Element"_s, u"Colour"_s}, {}};
    table.endsInColors = true;
    const QStringList elements = root.value("Colors"_L1).toObject().value("Default colors"_L1).toObject().keys();
    for (const QString& element : elements) {
        QColor color;
        const bool found = config.getDefaultColor(element, color);
        table.rows.append({element, found ? QJsonValue(color.name()) : QJsonValue(QJsonValue::Null)});
    }
    return table;
}

template <typename Graph>
Table curvesTable(const QString& name, const QList<Graph>& graphs)
{
    Table table{name, {u"Graph"_s, u"Curve"_s, u"X"_s, u"Y"_s, u"Category"_s, u"Type"_s}, {}};
    for (const Graph& graph : graphs) {
        if (graph.getGraphItemsList().isEmpty()) {
            table.rows.append({graph.getTitle(), QString(), QString(), QString(), QString(), QString()});
        }
        for (const auto& curve : graph.getGraphItemsList()) {
            table.rows.append({graph.getTitle(), curve.getTitle(), curve.getStreamX(), curve.getStreamY(),
                               curve.getCategory(), curve.getType()});
        }
    }
    return table;
}

Table processedDataTable(const UIConfig& config)
{
    Table table{
        u"Processed-data graphs"_s, {u"Graph"_s, u"X"_s, u"Y1"_s, u"Y2"_s, u"Category"_s, u"Processed Y"_s}, {}};
    for (const ProcessedDataItem& graph : config.getProcessedDataGraph()) {
        table.rows.append({graph.getTitle(), graph.getStreamX(), graph.getStreamY1(), graph.getStreamY2(),
                           graph.getCategory(), QJsonArray::fromStringList(graph.getProcessedStreamsY())});
    }
    return table;
}

/// How many of the five parameter keys of a recipe entry hold a text: as many parameters has the item made from it.
int parameterCount(const QJsonObject& entry)
{
    int count = 0;
    for (int number = 1; number <= 5; ++number) {
        count += entry.value(u"Param"_s + QString::number(number)).isString() ? 1 : 0;
    }
    return count;
}

Table recipeTable(const UIConfig& config, const QJsonObject& root)
{
    Table table{u"Recipe entries"_s, {u"Command"_s, u"Title"_s, u"Parameters"_s}, {}};
    const QJsonObject recipe = root.value("Recipe"_L1).toObject();
    const auto append = [&](const QList<RecipeConfigItem>& items, std::initializer_list<QString> commands) {
        QJsonArray entries;
        for (const QString& command : commands) {
            const QJsonArray group = recipe.value(command).toArray();
            for (const auto& entry : group) {
                entries.append(entry);
            }
        }
        for (qsizetype i = 0; i < items.size(); ++i) {
            QJsonArray parameters;
            for (int index = 0; index < parameterCount(entries.at(i).toObject()); ++index) {
                parameters.append(items.at(i).getParameter(index));
            }
            table.rows.append({items.at(i).getType(), items.at(i).getUITitle(), parameters});
        }
    };
    append(config.getRecipeGraphCombinationsList(), {UIConfig::graphCommand()});
    append(config.getRecipeToolsTablesList(), {UIConfig::toolSummaryCommand()});
    append(config.getRecipeToolsGraphsList(),
           {UIConfig::toolStatisticsCommand(), UIConfig::toolProcessedDataCommand()});
    return table;
}

Table formulasTable(const UIConfig& config)
{
    Table table{u"Process formulas"_s, {u"Axis"_s, u"Displayed"_s, u"Compiled"_s}, {}};
    for (const QString& axis : {u"X"_s, u"Y1"_s, u"Y2"_s}) {
        const auto formulas = config.getAxisFormulaConfigByName(axis);
        for (const auto& [displayed, compiled] : formulas) {
            table.rows.append({axis, displayed, compiled});
        }
    }
    return table;
}

Table dQdUColumnsTable(const UIConfig& config)
{
    Table table{u"dQ/dU columns"_s, columnHeadings(), {}};
    appendColumns(table, u"dQ/dU"_s, config.getDQdUColumns());
    return table;
}

Table dQdUGraphTable(const UIConfig& config)
{
    const DQdUAnalysisItem& graph = config.getDQdUItem();
    return {u"dQ/dU graph"_s,
            {u"Graph"_s, u"X"_s, u"Y1"_s, u"Category"_s},
            {{graph.getTitle(), graph.getStreamX(), graph.getStreamY1(), graph.getCategory()}}};
}

Table debugTable(const UIConfig& config)
{
    return {u"Debug switches"_s,
            {u"Switch"_s, u"On"_s},
            {{u"Identifiers in the import dialog"_s, config.importDialogShowClIds()},
             {u"Keep imported Parquet files"_s, config.saveImportedParquetFiles()},
             {u"Keep input data of impedance fits"_s, config.saveZFitInputData()}}};
}

} // namespace

QString scaleText(QCPAxis::ScaleType scale)
{
    return scale == QCPAxis::stLinear ? u"linear"_s : u"logarithmic"_s;
}

QList<Table> documentTables(UIConfig& config, const QJsonObject& root)
{
    QList<Table> tables;
    const auto append = [&tables](QLatin1StringView section, Table table) {
        table.section = section;
        tables.append(std::move(table));
    };
    append("Axes combinations"_L1, axesTable(config));
    append("Representations"_L1, representationsTable(config));
    append("MSVUnits"_L1, unitsTable(config));
    append("Filters"_L1, filtersTable(config));
    append("Tools"_L1, summaryTable(config));
    append("Colors"_L1, paletteTable(config));
    append("Colors"_L1, defaultColorsTable(config, root));
    append("Statistics"_L1, curvesTable(u"Statistics graphs"_s, config.getStatsGraph()));
    append("Ragone Plot"_L1, curvesTable(u"Ragone plots"_s, config.getRagonePlotGraph()));
    append("Processed Data"_L1, processedDataTable(config));
    append("Recipe"_L1, recipeTable(config, root));
    append("Process Formula"_L1, formulasTable(config));
    append("dQ_dU"_L1, dQdUColumnsTable(config));
    append("dQ_dU"_L1, dQdUGraphTable(config));
    append("Debug"_L1, debugTable(config));
    return tables;
}

} // namespace cluiconfig
