#include "DocumentTables.h"

#include <axes/AxesCombinationManager.h>
#include <base/DocumentKeys.h>
#include <batterydata/ClConfigDataArray.h>
#include <config/Configuration.h>
#include <datastorage/Converter.h>

#include <QHash>
#include <QJsonArray>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using uiconfig::Configuration;
namespace keys = uiconfig::keys;

namespace cluiconfig {

namespace {

Table axesCombinations(const Configuration& configuration)
{
    Table table{.name = keys::AxesCombinations,
                .columns = {u"X"_s, u"Category"_s, u"X scale"_s, u"Y scale"_s, u"Orthonormal"_s, u"Y"_s},
                .section = keys::AxesCombinations,
                .keys = {u"X"_s, u"Y"_s, u"Category"_s},
                .joinedColumn = 5};
    for (AxesCombination combination : configuration.axesCombinations) {
        table.rows.append({combination.getConfigX().getName(), combination.getConfigX().getCategory(),
                           scaleText(combination.getDefaultScaleX()), scaleText(combination.getDefaultScaleY()),
                           combination.isOrthonormal(), combination.getConfigY().getName()});
    }
    return table;
}

Table representations(const Configuration& configuration)
{
    Table table{.name = keys::Representations,
                .columns = {u"Name"_s, u"X"_s, u"Y1"_s, u"Y2"_s, u"Category"_s, u"Default"_s, u"Drawn"_s},
                .section = keys::Representations,
                .keys = {u"Name"_s},
                .names = {u"Name"_s}};
    AxesCombinationManager axes;
    axes.appendAll(configuration.axesCombinations);
    for (const ConfigRepresentation& representation : configuration.representations) {
        const auto isDrawn = [&](const QString& y) {
            const ConfigRepresentation alone(QString(), representation.x(), y, QString(), QString(), false);
            return !y.isEmpty() && axes.isRepresentationValid(&alone);
        };
        QStringList drawn;
        drawn += isDrawn(representation.y1()) ? QStringList(keys::Y1) : QStringList();
        drawn += isDrawn(representation.y2()) ? QStringList(keys::Y2) : QStringList();
        table.rows.append({representation.name(), representation.x(), representation.y1(), representation.y2(),
                           representation.category(), representation.isDefault(),
                           drawn.isEmpty() ? u"nothing"_s : drawn.join(u" and "_s)});
    }
    return table;
}

Table msvUnits(const Configuration& configuration)
{
    Table table{.name = u"Compound units"_s,
                .columns = {u"Physical parameter"_s, u"Operator"_s, u"With"_s},
                .section = keys::MSVUnits,
                .keys = {u"Physical parameter"_s, u"Operator"_s}};
    for (const MSVUnitsCombination& combination : configuration.msvUnits) {
        QJsonArray parameters;
        for (const auto parameter : combination.getMultiParamsList()) {
            parameters.append(Converter::toString(parameter));
        }
        table.rows.append({Converter::toString(combination.getPhysicalParameter()),
                           Converter::toString(combination.getOperator()), parameters});
    }
    return table;
}

Table filters(const Configuration& configuration)
{
    Table table{.name = u"Skipped tasks"_s, .columns = {u"Task"_s}, .section = keys::Filters, .keys = {u"Task"_s}};
    for (const QString& task : configuration.skippedTasks) {
        table.rows.append({task});
    }
    return table;
}

Table columnsTable(const QString& name, const QString& section)
{
    return {.name = name,
            .columns = {u"Table"_s, u"Category"_s, u"Column"_s, u"Unit"_s},
            .section = section,
            .keys = {u"Table"_s, u"Category"_s, u"Column"_s}};
}

void appendColumns(Table& table, const QString& kind, const uiconfig::Columns& columns)
{
    for (const auto* column : columns) {
        if (column == nullptr) {
            table.rows.append({kind, QJsonValue::Null, QJsonValue::Null, QJsonValue::Null});
        } else {
            table.rows.append(
                {kind, column->getCategory(), column->getName(), Converter::toString(column->getUsualUnit())});
        }
    }
}

Table tools(const Configuration& configuration)
{
    Table table = columnsTable(u"Summary table columns"_s, keys::Tools);
    appendColumns(table, keys::PerStep, configuration.summaryTables.perStep);
    appendColumns(table, keys::PerCycle, configuration.summaryTables.perCycle);
    appendColumns(table, keys::PerLoop, configuration.summaryTables.perLoop);
    return table;
}

Table palette(const Configuration& configuration)
{
    Table table{.name = u"Palette"_s,
                .columns = {u"Name"_s, u"Colour"_s},
                .section = keys::Colors,
                .keys = {u"Name"_s},
                .names = {u"Name"_s},
                .endsInColors = true};
    for (const auto& [name, color] : configuration.colors.custom) {
        table.rows.append({name, color.isValid() ? color.name() : u"(invalid)"_s});
    }
    return table;
}

Table defaultColors(const Configuration& configuration)
{
    Table table{.name = u"Default colours"_s,
                .columns = {u"Element"_s, u"Colour"_s},
                .section = keys::Colors,
                .keys = {u"Element"_s},
                .endsInColors = true};
    QHash<QString, QString> palette; // of two colours of one name the first counts
    for (const auto& [name, color] : configuration.colors.custom) {
        if (!palette.contains(name)) {
            palette.insert(name, color.name());
        }
    }
    const QMap<QString, QString>& defaults = configuration.colors.defaults;
    for (auto it = defaults.begin(); it != defaults.end(); ++it) {
        table.rows.append({it.key(), palette.contains(it.value()) ? palette.value(it.value()) : QJsonValue()});
    }
    return table;
}

template <typename Graph>
Table curves(const QString& name, const QString& section, const QList<Graph>& graphs)
{
    Table table{.name = name,
                .columns = {u"Graph"_s, u"Curve"_s, u"X"_s, u"Y"_s, u"Category"_s, u"Type"_s},
                .section = section,
                .keys = {u"Graph"_s, u"Curve"_s},
                .names = {u"Graph"_s, u"Curve"_s}};
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

Table statistics(const Configuration& configuration)
{
    return curves(u"Statistics graphs"_s, keys::Statistics, configuration.statistics);
}

Table ragonePlots(const Configuration& configuration)
{
    return curves(u"Ragone plots"_s, keys::RagonePlot, configuration.ragonePlots);
}

Table processedData(const Configuration& configuration)
{
    Table table{.name = u"Processed-data graphs"_s,
                .columns = {u"Graph"_s, u"X"_s, u"Y1"_s, u"Y2"_s, u"Category"_s, u"Processed Y"_s},
                .section = keys::ProcessedData,
                .keys = {u"Graph"_s},
                .names = {u"Graph"_s}};
    for (const ProcessedDataItem& graph : configuration.processedData) {
        table.rows.append({graph.getTitle(), graph.getStreamX(), graph.getStreamY1(), graph.getStreamY2(),
                           graph.getCategory(), QJsonArray::fromStringList(graph.getProcessedStreamsY())});
    }
    return table;
}

Table recipe(const Configuration& configuration)
{
    Table table{.name = u"Recipe entries"_s,
                .columns = {u"Command"_s, u"Title"_s, u"Parameters"_s},
                .section = keys::Recipe,
                .keys = {u"Command"_s, u"Title"_s},
                .names = {u"Title"_s}};
    const uiconfig::Recipe& recipe = configuration.recipe;
    for (const auto* entries : {&recipe.graphCombinations, &recipe.toolsTables, &recipe.toolsGraphs}) {
        for (const uiconfig::RecipeEntry& entry : *entries) {
            table.rows.append({entry.command, entry.title, QJsonArray::fromStringList(entry.parameters)});
        }
    }
    return table;
}

Table processFormulas(const Configuration& configuration)
{
    Table table{.name = u"Process formulas"_s,
                .columns = {u"Axis"_s, u"Displayed"_s, u"Compiled"_s},
                .section = keys::ProcessFormula,
                .keys = {u"Axis"_s, u"Displayed"_s},
                .names = {u"Displayed"_s}};
    const auto append = [&](const QString& axis, const uiconfig::Formulas& formulas) {
        for (const auto& [displayed, compiled] : formulas) {
            table.rows.append({axis, displayed, compiled});
        }
    };
    append(keys::X, configuration.processFormulas.x);
    append(keys::Y1, configuration.processFormulas.y1);
    append(keys::Y2, configuration.processFormulas.y2);
    return table;
}

Table dQdUColumns(const Configuration& configuration)
{
    Table table = columnsTable(u"dQ/dU columns"_s, keys::DQdU);
    appendColumns(table, u"dQ/dU"_s, configuration.dQdU.columns);
    return table;
}

Table dQdUGraph(const Configuration& configuration)
{
    Table table{
        .name = u"dQ/dU graph"_s, .columns = {u"Graph"_s, u"X"_s, u"Y1"_s, u"Category"_s}, .section = keys::DQdU};
    if (const auto& graph = configuration.dQdU.graph) {
        table.rows.append({graph->getTitle(), graph->getStreamX(), graph->getStreamY1(), graph->getCategory()});
    }
    return table;
}

Table debug(const Configuration& configuration)
{
    const uiconfig::DebugFlags flags = configuration.debugFlags.value_or(uiconfig::DebugFlags());
    return {.name = u"Debug switches"_s,
            .columns = {u"Switch"_s, u"On"_s},
            .rows = {{u"Identifiers in the import dialog"_s, flags.importDialogShowClIds},
                     {u"Keep imported Parquet files"_s, flags.saveImportedParquetFiles},
                     {u"Keep input data of impedance fits"_s, flags.saveZFitInputData}},
            .section = keys::Debug,
            .keys = {u"Switch"_s}};
}

struct TableMaker
{
    Table (*make)(const Configuration&) = nullptr;
    bool needsAxes = false; ///< Whether the axes combinations are asked.
};

constexpr std::array TableMakers{TableMaker{axesCombinations, true},
                                 TableMaker{representations, true},
                                 TableMaker{msvUnits},
                                 TableMaker{filters},
                                 TableMaker{tools},
                                 TableMaker{palette},
                                 TableMaker{defaultColors},
                                 TableMaker{statistics},
                                 TableMaker{ragonePlots},
                                 TableMaker{processedData},
                                 TableMaker{recipe},
                                 TableMaker{processFormulas},
                                 TableMaker{dQdUColumns},
                                 TableMaker{dQdUGraph},
                                 TableMaker{debug}};

bool isAskedFor(const TableMaker& maker, const QStringList& headings)
{
    return headings.isEmpty() || headings.contains(maker.make({}).name);
}

} // namespace

QString scaleText(QCPAxis::ScaleType scale)
{
    return scale == QCPAxis::stLinear ? u"linear"_s : u"logarithmic"_s;
}

QList<Table> documentTables(const Configuration& configuration, const QStringList& headings)
{
    QList<Table> tables;
    for (const TableMaker& maker : TableMakers) {
        if (isAskedFor(maker, headings)) {
            tables.append(maker.make(configuration));
        }
    }
    return tables;
}

bool needAxesCombinations(const QStringList& headings)
{
    return std::ranges::any_of(TableMakers,
                               [&](const TableMaker& maker) { return maker.needsAxes && isAskedFor(maker, headings); });
}

} // namespace cluiconfig
