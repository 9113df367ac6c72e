// The document that is shipped must say what it means: every name in it is one of the shipped catalogue, every choice
// leads somewhere.

#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/ConfigRepresentation.h>
#include <config/MSVUnitsCombination.h>
#include <config/UIConfigTest.h>
#include <datastorage/Converter.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using cl::batterydata::RawDataCollection;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnitOperator;
using lumo::tools::Singleton;

namespace {

const QString ShippedPath = QStringLiteral(SHIPPED_DATA_DIRECTORY "/UIConfig.json");

QByteArray shippedBytes()
{
    QFile file(ShippedPath);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

bool isInCatalogue(const QString& name, const QString& category)
{
    return Singleton<RawDataCollection>::instance().getDataConfiguration().getConfigDataArray(name, category)
        != nullptr;
}

class ShippedDocument : public UIConfigTest
{
protected:
    void SetUp() override { ASSERT_EQ(loadFile(ShippedPath), Success); }

    const QJsonObject document = jsonObject(shippedBytes());
};

} // namespace

TEST_F(ShippedDocument, FillsEverySection)
{
    QStringList quiet = allSections();
    quiet.removeOne(u"Debug"_s); // nobody ships with switches for debugging on
    EXPECT_EQ(filledSections(config), quiet);
    for (const QString& section : allSections()) {
        EXPECT_TRUE(document.contains(section)) << section.toStdString();
    }
}

TEST_F(ShippedDocument, HoldsNoKeyTwice)
{
    // The parser keeps the last of two equal keys, so the text holds more names of members than the objects do.
    qsizetype members = 0;
    const auto count = [&](const QJsonValue& value, const auto& self) -> void {
        for (const auto& element : value.toArray()) {
            self(element, self);
        }
        const QJsonObject object = value.toObject();
        for (const QString& key : object.keys()) {
            ++members;
            self(object.value(key), self);
        }
    };
    count(document, count);
    const QRegularExpression member(uR"("(?:[^"\\]|\\.)*"\s*:)"_s);
    qsizetype written = 0;
    const QString text = QString::fromUtf8(shippedBytes());
    for (auto it = member.globalMatch(text); it.hasNext(); it.next()) {
        ++written;
    }
    EXPECT_EQ(written, members);
}

TEST_F(ShippedDocument, ExpandsToManyCombinationsWithoutRepetition)
{
    EXPECT_GE(document.value("Axes combinations"_L1).toArray().size(), 40);
    const AxesCombinationManager& manager = config.getAxesCombinationManager();
    EXPECT_GT(manager.getAxesCombinations().size(), 500);

    AxesCombinationManager copy(manager);
    copy.removeDuplicates();
    EXPECT_EQ(copy.getAxesCombinations().size(), manager.getAxesCombinations().size());
}

TEST_F(ShippedDocument, EveryAxesEntryYieldsCombinations)
{
    const QJsonArray entries = document.value("Axes combinations"_L1).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        AxesCombinationManager manager;
        QString error;
        EXPECT_TRUE(manager.readAxesCombination(entries.at(i).toObject(), error)) << i << error.toStdString();
        EXPECT_FALSE(manager.getAxesCombinations().isEmpty()) << i;
        for (const auto* axis : {"X", "Y1/Y2"}) {
            const QJsonArray references = entries.at(i).toObject().value(QLatin1StringView(axis)).toArray();
            for (const auto& reference : references) {
                const QString name = reference.toObject().value("Name"_L1).toString();
                EXPECT_FALSE(
                    Singleton<RawDataCollection>::instance().getDataConfiguration().getConfigDataArrays(name).isEmpty())
                    << "entry " << i << ": " << name.toStdString();
            }
        }
    }
}

TEST_F(ShippedDocument, RepresentationsAreValidAndOneIsTheDefault)
{
    const auto records = config.getConfigRepresentationManager().getConfigRepresentationList();
    EXPECT_EQ(records.size(), 15);
    EXPECT_EQ(std::count_if(records.begin(), records.end(), [](const auto* record) { return record->isDefault(); }), 1);
    const AxesCombinationManager& axes = config.getAxesCombinationManager();
    QSet<QString> names;
    for (const ConfigRepresentation* record : records) {
        EXPECT_TRUE(axes.isRepresentationValid(record)) << record->name().toStdString();
        for (const QString& y : {record->y1(), record->y2()}) {
            EXPECT_TRUE(y.isEmpty() || axes.getAxesCombination(record->x(), y).isValid())
                << record->name().toStdString() << ": " << y.toStdString();
        }
        names.insert(record->name());
    }
    EXPECT_EQ(names.size(), records.size()) << "each has a name of its own";
}

TEST_F(ShippedDocument, EveryColumnIsInTheCatalogue)
{
    const auto& step = config.getSummaryTablePerStepColumns();
    const auto& cycle = config.getSummaryTablePerCycleColumns();
    const auto& loop = config.getSummaryTablePerLoopColumns();
    const auto& dQdU = config.getDQdUColumns();
    for (const auto* columns : {&step, &cycle, &loop, &dQdU}) {
        EXPECT_FALSE(columns->isEmpty());
        EXPECT_FALSE(columns->contains(nullptr));
    }
}

TEST_F(ShippedDocument, EveryCurveOfEveryGraphHasItsStreams)
{
    EXPECT_FALSE(config.getStatsGraph().isEmpty());
    for (const StatisticsItem& graph : config.getStatsGraph()) {
        EXPECT_FALSE(graph.getGraphItemsList().isEmpty()) << graph.getTitle().toStdString();
        for (const StatisticsChildItem& curve : graph.getGraphItemsList()) {
            EXPECT_TRUE(curve.getAxesCombination().isValid()) << curve.getTitle().toStdString();
        }
    }
    EXPECT_FALSE(config.getRagonePlotGraph().isEmpty());
    for (const RagonePlotItem& graph : config.getRagonePlotGraph()) {
        EXPECT_FALSE(graph.getGraphItemsList().isEmpty()) << graph.getTitle().toStdString();
        for (const RagonePlotChildItem& curve : graph.getGraphItemsList()) {
            EXPECT_TRUE(curve.getAxesCombination().isValid()) << curve.getTitle().toStdString();
        }
    }
    EXPECT_TRUE(config.getDQdUItem().getAxesCombination().isValid());
}

TEST_F(ShippedDocument, EveryProcessedDataGraphHasItsStreams)
{
    EXPECT_FALSE(config.getProcessedDataGraph().isEmpty());
    for (const ProcessedDataItem& graph : config.getProcessedDataGraph()) {
        EXPECT_TRUE(graph.getAxesCombination().isValid()) << graph.getTitle().toStdString();
        EXPECT_TRUE(graph.getStreamY2().isEmpty() || isInCatalogue(graph.getStreamY2(), graph.getCategory()))
            << graph.getStreamY2().toStdString();
        EXPECT_FALSE(graph.getProcessedStreamsY().isEmpty()) << graph.getTitle().toStdString();
        for (const QString& stream : graph.getProcessedStreamsY()) {
            EXPECT_TRUE(isInCatalogue(stream, graph.getCategory())) << stream.toStdString();
        }
    }
}

TEST_F(ShippedDocument, GraphsAreFoundByTheirTitles)
{
    QSet<QString> titles;
    for (const StatisticsItem& graph : config.getStatsGraph()) {
        EXPECT_EQ(config.getStatGraphFromTitle(graph.getTitle()).getGraphItemsList().size(),
                  graph.getGraphItemsList().size());
    }
    for (const ProcessedDataItem& graph : config.getProcessedDataGraph()) {
        EXPECT_FALSE(graph.getTitle().isEmpty() || titles.contains(graph.getTitle())) << graph.getTitle().toStdString();
        titles.insert(graph.getTitle());
    }
}

TEST_F(ShippedDocument, PaletteHasManyColoursEachOnceAndEveryDefaultIsOfThem)
{
    QSet<QString> names;
    QSet<QRgb> values;
    for (const auto& [name, color] : config.getCustomColors()) {
        EXPECT_FALSE(name.isEmpty());
        EXPECT_TRUE(color.isValid()) << name.toStdString();
        names.insert(name);
        values.insert(color.rgb());
    }
    EXPECT_GE(config.getCustomColors().size(), 20);
    EXPECT_EQ(names.size(), config.getCustomColors().size());
    EXPECT_EQ(values.size(), config.getCustomColors().size());

    const QStringList keys = document.value("Colors"_L1).toObject().value("Default colors"_L1).toObject().keys();
    EXPECT_FALSE(keys.isEmpty());
    for (const QString& key : keys) {
        QColor color;
        EXPECT_TRUE(config.getDefaultColor(key, color)) << key.toStdString();
    }
}

TEST_F(ShippedDocument, CompoundUnitsNameKnownQuantitiesAndOperators)
{
    QSet<int> parameters;
    for (const MSVUnitsCombination* combination :
         config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsList()) {
        EXPECT_NE(combination->getPhysicalParameter(), PhysicalParameter::None);
        EXPECT_NE(combination->getOperator(), UsualUnitOperator::None);
        EXPECT_FALSE(combination->getMultiParamsList().isEmpty());
        EXPECT_FALSE(combination->getMultiParamsList().contains(PhysicalParameter::None))
            << Converter::toString(combination->getPhysicalParameter()).toStdString();
        parameters.insert(static_cast<int>(combination->getPhysicalParameter()));
    }
    EXPECT_FALSE(parameters.isEmpty());
}

TEST_F(ShippedDocument, FormulasAndRecipesAreComplete)
{
    for (const QString& axis : {u"X"_s, u"Y1"_s, u"Y2"_s}) {
        const auto formulas = config.getAxisFormulaConfigByName(axis);
        EXPECT_FALSE(formulas.isEmpty()) << axis.toStdString();
        for (const auto& [displayed, compiled] : formulas) {
            EXPECT_FALSE(displayed.isEmpty());
            EXPECT_FALSE(compiled.isEmpty()) << displayed.toStdString();
        }
    }
    const auto& graphs = config.getRecipeGraphCombinationsList();
    const auto& toolGraphs = config.getRecipeToolsGraphsList();
    const auto& toolTables = config.getRecipeToolsTablesList();
    QSet<QString> types;
    for (const auto* entries : {&graphs, &toolGraphs, &toolTables}) {
        EXPECT_FALSE(entries->isEmpty());
        for (const RecipeConfigItem& entry : *entries) {
            EXPECT_FALSE(entry.getUITitle().isEmpty());
            types.insert(entry.getType());
        }
    }
    EXPECT_EQ(types.size(), 4) << "each command has its entries";
    for (const QString& task : config.getSkippedTasks()) {
        EXPECT_FALSE(task.isEmpty());
    }
}
