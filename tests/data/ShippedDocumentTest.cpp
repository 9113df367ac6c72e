// What the shipped document promises beyond having no mistakes: how much it holds, and that every choice leads
// somewhere.

#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/ConfigRepresentation.h>
#include <config/MSVUnitsCombination.h>
#include <config/UIConfigTest.h>
#include <data/ShippedFile.h>
#include <datastorage/Converter.h>
#include <support/Archive.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using cl::batterydata::RawDataCollection;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnitOperator;
using lumo::tools::Singleton;
using testing::Each;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

const QString DocumentName = u"UIConfig.json"_s;

bool isInCatalogue(const QString& name, const QString& category)
{
    return Singleton<RawDataCollection>::instance().getDataConfiguration().getConfigDataArray(name, category)
        != nullptr;
}

class ShippedDocument : public UIConfigTest
{
protected:
    void SetUp() override { ASSERT_EQ(loadFile(shippedPath(DocumentName)), Success); }

    const QJsonObject document = shippedObject(DocumentName);
    const AxesCombinationManager& axes = config.getAxesCombinationManager();
};

/// Every graph of a list has a title and curves, and every curve a title and axes.
template <typename Graph>
void expectWholeGraphs(const QList<Graph>& graphs)
{
    for (const Graph& graph : graphs) {
        EXPECT_FALSE(graph.getTitle().isEmpty());
        EXPECT_FALSE(graph.getGraphItemsList().isEmpty()) << graph.getTitle().toStdString();
        for (const auto& curve : graph.getGraphItemsList()) {
            EXPECT_FALSE(curve.getTitle().isEmpty()) << graph.getTitle().toStdString();
            EXPECT_TRUE(curve.getAxesCombination().isValid()) << curve.getTitle().toStdString();
        }
    }
}

/// \p find finds each of \p graphs by its title, and nothing by titles that are nearly the same.
template <typename Graph, typename Find>
void expectFound(const QList<Graph>& graphs, const Find& find)
{
    const QJsonObject nothing = written(Graph());
    for (const Graph& graph : graphs) {
        const QString& title = graph.getTitle();
        EXPECT_EQ(written(find(title)), written(graph));
        EXPECT_EQ(written(find(title.toUpper())), nothing) << title.toStdString();
        EXPECT_EQ(written(find(title + u' ')), nothing) << title.toStdString();
        EXPECT_EQ(written(find(title.chopped(1))), nothing) << title.toStdString();
    }
}

} // namespace

TEST_F(ShippedDocument, FillsEverySectionAndSwitchesNoDebuggingOn)
{
    QStringList sections = allSections();
    sections.removeOne(u"Debug"_s);
    EXPECT_EQ(filledSections(config), sections);
    EXPECT_EQ(document.value("Debug"_L1).toObject(),
              jsonObject(R"({"importDialogDisplayClIds": false, "saveImportedParquetFiles": false,
                             "saveZFitInputData": false})"));
}

TEST_F(ShippedDocument, SeventyAxesEntriesExpandTo521Combinations)
{
    EXPECT_EQ(document.value("Axes combinations"_L1).toArray().size(), 70);
    EXPECT_THAT(axes.getAxesCombinations(), SizeIs(521));
}

TEST_F(ShippedDocument, EveryXArrayOfAnAxesEntryPairsWithEveryYArray)
{
    const QJsonArray entries = document.value("Axes combinations"_L1).toArray();
    for (const auto& entry : entries) {
        const QJsonArray xs = entry.toObject().value("X"_L1).toArray();
        const QJsonArray ys = entry.toObject().value("Y1/Y2"_L1).toArray();
        EXPECT_FALSE(xs.isEmpty() || ys.isEmpty());
        for (const auto& x : xs) {
            for (const auto& y : ys) {
                const QJsonObject single =
                    with(with(entry.toObject(), u"X"_s, QJsonArray{x}), u"Y1/Y2"_s, QJsonArray{y});
                AxesCombinationManager manager;
                QString error;
                EXPECT_TRUE(manager.readAxesCombination(single, error)) << error.toStdString();
                EXPECT_THAT(manager.getAxesCombinations(), Not(IsEmpty())) << testing::PrintToString(single);
            }
        }
    }
}

TEST_F(ShippedDocument, FifteenRepresentationsHaveAHeadingAndPairXWithBothY)
{
    const auto records = config.getConfigRepresentationManager().getConfigRepresentationList();
    EXPECT_THAT(records, SizeIs(15));
    for (const ConfigRepresentation* record : records) {
        EXPECT_FALSE(record->category().isEmpty()) << record->name().toStdString();
        for (const QString& y : {record->y1(), record->y2()}) {
            EXPECT_TRUE(y.isEmpty() || axes.getAxesCombination(record->x(), y).isValid())
                << record->name().toStdString() << ": " << y.toStdString();
        }
    }
    ASSERT_NE(config.getDefaultConfigRepresentation(), nullptr);
    EXPECT_EQ(config.getDefaultConfigRepresentation()->name(), u"Voltage and current over time"_s);
}

TEST_F(ShippedDocument, CompoundUnitsMeasureQuantitiesOfTheirOwn)
{
    const auto& combinations = config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsList();
    EXPECT_THAT(combinations, SizeIs(14));
    for (const MSVUnitsCombination* combination : combinations) {
        const QString name = Converter::toString(combination->getPhysicalParameter());
        const auto symbolOf = [](PhysicalParameter parameter) {
            return Converter::toString(Converter::getAvailableUnits(parameter).value(0));
        };
        ASSERT_NE(combination->getOperator(), UsualUnitOperator::None) << name.toStdString();
        const QChar sign = combination->getOperator() == UsualUnitOperator::Divide ? u'/' : u'·';
        EXPECT_THAT(combination->getMultiParamsList(), Not(IsEmpty())) << name.toStdString();
        for (const PhysicalParameter further : combination->getMultiParamsList()) {
            const QString symbol = symbolOf(combination->getPhysicalParameter()) + sign + symbolOf(further);
            const auto unit = Converter::getUnitFromString(symbol);
            ASSERT_TRUE(unit.has_value()) << name.toStdString() << ": " << symbol.toStdString();
            EXPECT_NE(Converter::getPhysicalParameterFromUnits(*unit), PhysicalParameter::None) << symbol.toStdString();
        }
    }
}

TEST_F(ShippedDocument, TablesHaveManyColumns)
{
    EXPECT_GE(config.getSummaryTablePerStepColumns().size(), 10);
    EXPECT_GE(config.getSummaryTablePerCycleColumns().size(), 10);
    EXPECT_GE(config.getSummaryTablePerLoopColumns().size(), 10);
    EXPECT_GE(config.getDQdUColumns().size(), 5);
}

TEST_F(ShippedDocument, EveryGraphHasATitleCurvesAndAxes)
{
    EXPECT_THAT(config.getStatsGraph(), SizeIs(9));
    expectWholeGraphs(config.getStatsGraph());
    EXPECT_THAT(config.getRagonePlotGraph(), SizeIs(5));
    expectWholeGraphs(config.getRagonePlotGraph());
    EXPECT_THAT(config.getProcessedDataGraph(), SizeIs(9));
    for (const ProcessedDataItem& graph : config.getProcessedDataGraph()) {
        EXPECT_FALSE(graph.getTitle().isEmpty());
        EXPECT_TRUE(graph.getAxesCombination().isValid()) << graph.getTitle().toStdString();
        EXPECT_FALSE(graph.getProcessedStreamsY().isEmpty()) << graph.getTitle().toStdString();
    }
    EXPECT_EQ(config.getDQdUItem().getTitle(), u"Differential capacity"_s);
    EXPECT_TRUE(config.getDQdUItem().getAxesCombination().isValid());
}

TEST_F(ShippedDocument, GraphsAreFoundByTheirTitles)
{
    const auto statistics = [&](const QString& title) { return config.getStatGraphFromTitle(title); };
    const auto ragonePlot = [&](const QString& title) { return config.getRagonePlotGraphFromTitle(title); };
    const auto processedData = [&](const QString& title) { return config.getProcessedDataGraphFromTitle(title); };
    expectFound(config.getStatsGraph(), statistics);
    expectFound(config.getRagonePlotGraph(), ragonePlot);
    expectFound(config.getProcessedDataGraph(), processedData);

    // Another document puts graphs of the same titles behind them, with nothing in them.
    const auto statisticsBefore = config.getStatsGraph();
    const auto ragonePlotBefore = config.getRagonePlotGraph();
    const auto processedDataBefore = config.getProcessedDataGraph();
    QJsonObject emptied = document;
    for (const QString& section : {u"Statistics"_s, u"Ragone Plot"_s}) {
        QJsonObject graphs = document.value(section).toObject();
        for (auto graph : graphs) {
            graph = QJsonArray();
        }
        emptied.insert(section, graphs);
    }
    QJsonArray titles;
    for (const ProcessedDataItem& graph : processedDataBefore) {
        titles.append(QJsonObject{{u"Title"_s, graph.getTitle()}});
    }
    emptied.insert(u"Processed Data"_s, titles);
    ASSERT_EQ(load(emptied), Success);
    ASSERT_THAT(config.getProcessedDataGraph(), SizeIs(2 * processedDataBefore.size()));
    expectFound(statisticsBefore, statistics);
    expectFound(ragonePlotBefore, ragonePlot);
    expectFound(processedDataBefore, processedData);
}

TEST_F(ShippedDocument, RecipesNameWhatTheCatalogueAndTheOtherSectionsHold)
{
    const auto& graphs = config.getRecipeGraphCombinationsList();
    EXPECT_THAT(graphs, SizeIs(9));
    const QJsonArray graphEntries = document.value("Recipe"_L1).toObject().value(UIConfig::graphCommand()).toArray();
    for (const auto& value : graphEntries) {
        const QJsonObject entry = value.toObject();
        for (const QString& key : {u"Param2"_s, u"Param3"_s, u"Param4"_s}) {
            EXPECT_TRUE((key == u"Param4" && !entry.contains(key))
                        || isInCatalogue(entry.value(key).toString(), entry.value("Param1"_L1).toString()))
                << testing::PrintToString(entry) << key.toStdString();
        }
    }
    const QJsonObject tables = document.value("Tools"_L1).toObject().value("Summary Table"_L1).toObject();
    EXPECT_THAT(config.getRecipeToolsTablesList(), SizeIs(3));
    for (const RecipeConfigItem& table : config.getRecipeToolsTablesList()) {
        EXPECT_TRUE(tables.value(table.getParameter(0)).isObject()) << table.getUITitle().toStdString();
    }
    EXPECT_THAT(config.getRecipeToolsGraphsList(), SizeIs(14 + 9));
    for (const RecipeConfigItem& graph : config.getRecipeToolsGraphsList()) {
        if (graph.getType() == UIConfig::toolStatisticsCommand()) {
            EXPECT_THAT(config.getStatGraphFromTitle(graph.getParameter(0)).getGraphItemsTitleList(),
                        testing::Contains(graph.getParameter(1)));
        } else {
            EXPECT_EQ(config.getProcessedDataGraphFromTitle(graph.getParameter(0)).getTitle(), graph.getParameter(0));
        }
    }
}

TEST_F(ShippedDocument, RecipeTitlesAreUniqueInTheirCommand)
{
    const QJsonObject recipe = document.value("Recipe"_L1).toObject();
    for (const QString& command : recipe.keys()) {
        QStringList titles;
        const QJsonArray entries = recipe.value(command).toArray();
        for (const auto& entry : entries) {
            titles.append(entry.toObject().value("UITitle"_L1).toString());
        }
        EXPECT_THAT(titles, Each(Not(QString()))) << command.toStdString();
        EXPECT_EQ(titles.removeDuplicates(), 0) << command.toStdString();
    }
}

TEST_F(ShippedDocument, EveryAxisHasFiveFormulasOrMoreThatAreComplete)
{
    for (const QString& axis : {u"X"_s, u"Y1"_s, u"Y2"_s}) {
        const auto formulas = config.getAxisFormulaConfigByName(axis);
        EXPECT_GE(formulas.size(), 5) << axis.toStdString();
        for (const auto& [displayed, compiled] : formulas) {
            EXPECT_FALSE(displayed.isEmpty() || compiled.isEmpty()) << axis.toStdString();
        }
    }
}

TEST_F(ShippedDocument, SkipsTasksByTheirNames)
{
    EXPECT_THAT(config.getSkippedTasks(), SizeIs(8));
    EXPECT_THAT(config.getSkippedTasks(), Each(Not(QString())));
}
