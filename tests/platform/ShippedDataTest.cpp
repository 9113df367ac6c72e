#include <batterydata/RawDataCollection.h>
#include <datastorage/Converter.h>
#include <datastorage/JsonUtils.h>
#include <support/QtPrinters.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <set>
#include <tuple>

using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cl::batterydata::ExportCategory;
using cl::batterydata::RawDataCollection;
using cl::datastorage::ConfigDataArray;
using cl::datastorage::Converter;
using cl::datastorage::JsonUtils;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace {

const ClConfigDataArrayManager& catalogue()
{
    return RawDataCollection::instance().getDataConfiguration();
}

QJsonObject readConfiguration()
{
    QString error;
    QJsonObject root;
    EXPECT_TRUE(JsonUtils::openJsonDocument(QStringLiteral(CLCONFIGUI_SOURCE_DIR "/data/UIConfig.json"), error, root))
        << qPrintable(error);
    return root;
}

QList<QJsonValue> elementsOf(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    return {array.begin(), array.end()};
}

// The arrays that a reference of an axes combination means.
QList<ConfigDataArray*> resolve(const QJsonValue& reference)
{
    const QString name = reference[u"Name"].toString();
    const QString category = reference[u"Category"].toString();
    if (category.isEmpty()) {
        return catalogue().getConfigDataArrays(name);
    }
    ConfigDataArray* array = catalogue().getConfigDataArray(name, category);
    return array ? QList<ConfigDataArray*>{array} : QList<ConfigDataArray*>();
}

using Pair = std::tuple<QString, QString, QString>; // category, X, Y

std::multiset<Pair> pairsOf(const QJsonValue& entry)
{
    std::multiset<Pair> pairs;
    for (const QJsonValue& x : elementsOf(entry[u"X"])) {
        for (const QJsonValue& y : elementsOf(entry[u"Y1/Y2"])) {
            for (const ConfigDataArray* xArray : resolve(x)) {
                for (const ConfigDataArray* yArray : resolve(y)) {
                    if (xArray->getCategory() == yArray->getCategory()) {
                        pairs.emplace(xArray->getCategory(), xArray->getName(), yArray->getName());
                    }
                }
            }
        }
    }
    return pairs;
}

std::multiset<Pair> allPairs(const QJsonObject& configuration)
{
    std::multiset<Pair> pairs;
    for (const QJsonValue& entry : elementsOf(configuration[u"Axes combinations"])) {
        pairs.merge(pairsOf(entry));
    }
    return pairs;
}

bool isPaired(const std::multiset<Pair>& pairs, const QString& x, const QString& y)
{
    return std::ranges::any_of(pairs,
                               [&](const Pair& pair) { return std::get<1>(pair) == x && std::get<2>(pair) == y; });
}

void expectKnown(const QJsonValue& name, const QString& category)
{
    EXPECT_NE(catalogue().getConfigDataArray(name.toString(), category), nullptr)
        << qPrintable(name.toString()) << " in " << qPrintable(category);
}

QSet<QString> keysOf(const QJsonValue& value)
{
    const QStringList keys = value.toObject().keys();
    return {keys.begin(), keys.end()};
}

void expectGraphsOfKnownArrays(const QJsonValue& section)
{
    const QJsonObject graphs = section.toObject();
    EXPECT_FALSE(graphs.isEmpty());
    for (const QString& title : graphs.keys()) {
        QSet<QString> titles;
        for (const QJsonValue& curve : elementsOf(graphs.value(title))) {
            EXPECT_EQ(keysOf(curve), (QSet<QString>{u"Title"_qs, u"Type"_qs, u"Category"_qs, u"X"_qs, u"Y"_qs}));
            expectKnown(curve[u"X"], curve[u"Category"].toString());
            expectKnown(curve[u"Y"], curve[u"Category"].toString());
            EXPECT_FALSE(titles.contains(curve[u"Title"].toString())) << qPrintable(curve[u"Title"].toString());
            titles.insert(curve[u"Title"].toString());
        }
        EXPECT_FALSE(titles.isEmpty()) << qPrintable(title);
    }
}

} // namespace

TEST(ShippedCatalogue, HoldsEveryQuantityOfTheBatteryDataFormatUnderItsNames)
{
    QFile file(QStringLiteral(CLCONFIGUI_SOURCE_DIR "/tests/platform/bdf-quantities.csv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    ASSERT_EQ(file.readLine().trimmed(), "preferred_label,machine_name");
    int count = 0;
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(u',');
        ASSERT_EQ(cells.size(), 2);
        const QString name = QString(cells.at(0)).remove(u'"');
        const auto* array = dynamic_cast<ClConfigDataArray*>(
            catalogue().getConfigDataArray(name, ClConfigDataArray::PotentiostatMeasure()));
        ASSERT_NE(array, nullptr) << qPrintable(name);
        EXPECT_EQ(array->getMachineName(), cells.at(1));
        ++count;
    }
    EXPECT_EQ(count, 58);
}

TEST(ShippedCatalogue, HasSevenCategoriesOfWhichThePotentiostatMeasuresAreTheFirst)
{
    EXPECT_EQ(catalogue().getCategories(),
              (QStringList{ClConfigDataArray::PotentiostatMeasure(), u"Step"_qs, u"Cycle"_qs, u"Loop"_qs,
                           u"Impedance"_qs, u"dQ/dU"_qs, u"Ragone"_qs}));
}

TEST(ShippedCatalogue, IsReadWholeFromItsFile)
{
    QString error;
    QJsonObject root;
    ASSERT_TRUE(
        JsonUtils::openJsonDocument(QStringLiteral(CLCONFIGUI_SOURCE_DIR "/data/DataArrays.json"), error, root));
    qsizetype index = 0;
    for (const QJsonValue& category : elementsOf(root[u"Categories"])) {
        for (const QJsonValue& array : elementsOf(category[u"Arrays"])) {
            ASSERT_LT(index, catalogue().getAll().size()) << "an array repeats a name in its category";
            EXPECT_EQ(catalogue().getAll().at(index)->getName(), array[u"Name"].toString());
            EXPECT_EQ(catalogue().getAll().at(index)->getCategory(), category[u"Name"].toString());
            ++index;
        }
    }
    EXPECT_EQ(catalogue().getAll().size(), index);
    EXPECT_EQ(index, 232);
}

TEST(ShippedCatalogue, EveryArrayIsDescribedAndItsUnitMeasuresItsQuantity)
{
    for (const ClConfigDataArray* array : catalogue().getAll()) {
        const std::string name = array->getName().toStdString() + " in " + array->getCategory().toStdString();
        EXPECT_EQ(Converter::getPhysicalParameterFromUnits(array->getUsualUnit()), array->getPhysicalParameter())
            << name;
        EXPECT_EQ(Converter::getAvailableUnits(array->getPhysicalParameter()).contains(array->getUsualUnit()),
                  array->getPhysicalParameter() != PhysicalParameter::None)
            << name;
        EXPECT_FALSE(array->getMachineName().isEmpty()) << name;
        EXPECT_FALSE(array->getDescription().isEmpty()) << name;
        EXPECT_GE(array->getExportCategory(), ExportCategory::Never) << name;
        EXPECT_LE(array->getExportCategory(), ExportCategory::Complete) << name;
    }
}

TEST(ShippedCatalogue, TheSameNameMeansTheSameInEveryCategory)
{
    bool hasSharedName = false;
    for (const ClConfigDataArray* array : catalogue().getAll()) {
        const QList<ConfigDataArray*> sameName = catalogue().getConfigDataArrays(array->getName());
        hasSharedName = hasSharedName || sameName.size() >= 6;
        for (const ConfigDataArray* other : sameName) {
            const auto* same = dynamic_cast<const ClConfigDataArray*>(other);
            ASSERT_NE(same, nullptr);
            EXPECT_EQ(same->getMachineName(), array->getMachineName());
            EXPECT_EQ(same->getUsualUnit(), array->getUsualUnit());
            EXPECT_EQ(same->getDataType(), array->getDataType());
        }
    }
    EXPECT_TRUE(hasSharedName);
    for (const ClConfigDataArray* array : catalogue().getAll()) {
        for (const ClConfigDataArray* other : catalogue().getAll()) {
            EXPECT_EQ(array->getMachineName() == other->getMachineName(), array->getName() == other->getName())
                << qPrintable(array->getName()) << ", " << qPrintable(other->getName());
        }
    }
}

TEST(ShippedConfiguration, HasItsVersionAndThirteenSections)
{
    const QJsonObject root = readConfiguration();
    QString error;
    EXPECT_TRUE(JsonUtils::checkVersionNumber(root, 29, error)) << qPrintable(error);
    EXPECT_EQ(keysOf(root),
              (QSet<QString>{u"Version"_qs, u"Axes combinations"_qs, u"Representations"_qs, u"MSVUnits"_qs,
                             u"Filters"_qs, u"Tools"_qs, u"Colors"_qs, u"Statistics"_qs, u"Ragone Plot"_qs,
                             u"Processed Data"_qs, u"Recipe"_qs, u"Process Formula"_qs, u"dQ_dU"_qs, u"Debug"_qs}));
}

TEST(ShippedConfiguration, EveryReferenceOfAnAxesCombinationFormsAPair)
{
    const QJsonArray entries = readConfiguration()[u"Axes combinations"].toArray();
    EXPECT_GE(entries.size(), 40);
    const QSet<QString> scales{u"LINEAR"_qs, u"LOGARITHMIC"_qs};
    const QSet<QString> flags{u"TRUE"_qs, u"FALSE"_qs};
    for (const QJsonValue& entry : elementsOf(entries)) {
        EXPECT_EQ(keysOf(entry),
                  (QSet<QString>{u"X"_qs, u"Y1/Y2"_qs, u"DEFAULT_SCALE_X"_qs, u"DEFAULT_SCALE_Y"_qs,
                                 u"ORTHONORMAL_AXIS"_qs}));
        EXPECT_TRUE(scales.contains(entry[u"DEFAULT_SCALE_X"].toString()));
        EXPECT_TRUE(scales.contains(entry[u"DEFAULT_SCALE_Y"].toString()));
        EXPECT_TRUE(flags.contains(entry[u"ORTHONORMAL_AXIS"].toString()));
        for (const QJsonValue& x : elementsOf(entry[u"X"])) {
            for (const QJsonValue& y : elementsOf(entry[u"Y1/Y2"])) {
                const QJsonObject single{{u"X"_qs, QJsonArray{x}}, {u"Y1/Y2"_qs, QJsonArray{y}}};
                EXPECT_FALSE(pairsOf(single).empty())
                    << qPrintable(x[u"Name"].toString()) << ", " << qPrintable(y[u"Name"].toString());
            }
        }
    }
}

TEST(ShippedConfiguration, CombinationsAreOver500AndNoneRepeats)
{
    const std::multiset<Pair> pairs = allPairs(readConfiguration());
    EXPECT_EQ(pairs.size(), 521U);
    for (const Pair& pair : pairs) {
        EXPECT_EQ(pairs.count(pair), 1U) << qPrintable(std::get<0>(pair)) << ": " << qPrintable(std::get<1>(pair))
                                         << ", " << qPrintable(std::get<2>(pair));
    }
}

TEST(ShippedConfiguration, RepresentationsAreFifteenWithOneDefaultAndCombinedAxes)
{
    const QJsonObject root = readConfiguration();
    const std::multiset<Pair> pairs = allPairs(root);
    QSet<QString> names;
    int defaults = 0;
    for (const QJsonValue& representation : elementsOf(root[u"Representations"])) {
        const QString name = representation[u"Name"].toString();
        names.insert(name);
        defaults += representation[u"Default"].toBool() ? 1 : 0;
        EXPECT_FALSE(representation[u"Category"].toString().isEmpty()) << qPrintable(name);
        const QString x = representation[u"X"].toString();
        EXPECT_TRUE(isPaired(pairs, x, representation[u"Y1"].toString())) << qPrintable(name);
        if (representation.toObject().contains(u"Y2")) {
            EXPECT_TRUE(isPaired(pairs, x, representation[u"Y2"].toString())) << qPrintable(name);
        }
    }
    EXPECT_EQ(names.size(), 15);
    EXPECT_EQ(root[u"Representations"].toArray().size(), 15);
    EXPECT_EQ(defaults, 1);
}

TEST(ShippedConfiguration, CompoundUnitsAreNamedAsTheConverterNamesThemAndOffered)
{
    const QJsonArray combinations = readConfiguration()[u"MSVUnits"].toArray();
    EXPECT_FALSE(combinations.isEmpty());
    QSet<QString> parameters;
    for (const auto& combination : combinations) {
        const QString name = combination[u"PhysicalParameter"].toString();
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromString(name);
        const auto op = Converter::getOperatorFromString(combination[u"Operator"].toString());
        EXPECT_NE(parameter, PhysicalParameter::None) << qPrintable(name);
        EXPECT_NE(op, cl::datastorage::UsualUnitOperator::None) << qPrintable(name);
        EXPECT_FALSE(parameters.contains(name)) << qPrintable(name);
        parameters.insert(name);
        for (const QJsonValue& further : elementsOf(combination[u"MultiParams"])) {
            const PhysicalParameter second = Converter::getPhysicalParameterFromString(further.toString());
            ASSERT_NE(second, PhysicalParameter::None) << qPrintable(further.toString());
            const QString sign = Converter::toString(op) == u"Divide"_qs ? u"/"_qs : u"·"_qs;
            const auto unit =
                Converter::getUnitFromString(Converter::toString(Converter::getAvailableUnits(parameter).first()) + sign
                                             + Converter::toString(Converter::getAvailableUnits(second).first()));
            ASSERT_TRUE(unit.has_value());
            EXPECT_NE(Converter::getPhysicalParameterFromUnits(*unit), PhysicalParameter::None)
                << qPrintable(Converter::toString(*unit));
        }
    }
}

TEST(ShippedConfiguration, SummaryTablesHaveKnownColumnsOfEveryKind)
{
    const QJsonValue tables = readConfiguration()[u"Tools"][u"Summary Table"];
    for (const QString& kind : {u"Per step"_qs, u"Per cycle"_qs, u"Per loop"_qs}) {
        const QJsonObject categories = tables[kind].toObject();
        EXPECT_FALSE(categories.isEmpty()) << qPrintable(kind);
        for (const QString& category : categories.keys()) {
            EXPECT_GE(categories.value(category).toArray().size(), 10) << qPrintable(kind);
            for (const QJsonValue& name : elementsOf(categories.value(category))) {
                expectKnown(name, category);
            }
        }
    }
}

TEST(ShippedConfiguration, DefaultColoursUseTheWholePaletteAndNothingElse)
{
    const QJsonValue colors = readConfiguration()[u"Colors"];
    QSet<QString> palette;
    for (const QJsonValue& color : elementsOf(colors[u"Custom colors"])) {
        palette.insert(color[u"name"].toString());
    }
    const QJsonObject defaults = colors[u"Default colors"].toObject();
    QSet<QString> used;
    for (const QString& key : defaults.keys()) {
        used.insert(defaults.value(key).toString());
    }
    EXPECT_EQ(used, palette);
}

TEST(ShippedConfiguration, StatisticsAndRagoneGraphsDrawKnownArrays)
{
    const QJsonObject root = readConfiguration();
    expectGraphsOfKnownArrays(root[u"Statistics"]);
    expectGraphsOfKnownArrays(root[u"Ragone Plot"]);
}

TEST(ShippedConfiguration, ProcessedDataGraphsDrawKnownArrays)
{
    QSet<QString> titles;
    for (const QJsonValue& graph : elementsOf(readConfiguration()[u"Processed Data"])) {
        const QString category = graph[u"Category"].toString();
        expectKnown(graph[u"X"], category);
        expectKnown(graph[u"Y1"], category);
        if (graph.toObject().contains(u"Y2")) {
            expectKnown(graph[u"Y2"], category);
        }
        EXPECT_FALSE(graph[u"Y_processed"].toArray().isEmpty());
        for (const QJsonValue& name : elementsOf(graph[u"Y_processed"])) {
            expectKnown(name, category);
        }
        EXPECT_FALSE(titles.contains(graph[u"Title"].toString())) << qPrintable(graph[u"Title"].toString());
        titles.insert(graph[u"Title"].toString());
    }
    EXPECT_EQ(titles.size(), 9);
}

TEST(ShippedConfiguration, RecipesNameWhatTheOtherSectionsHold)
{
    const QJsonObject root = readConfiguration();
    const QJsonValue recipe = root[u"Recipe"];
    EXPECT_EQ(keysOf(recipe),
              (QSet<QString>{u"GraphCommand"_qs, u"ToolSummaryCommand"_qs, u"ToolStatisticsCommand"_qs,
                             u"ToolProcessedDataCommand"_qs}));
    for (const QJsonValue& graph : elementsOf(recipe[u"GraphCommand"])) {
        const QString category = graph[u"Param1"].toString();
        expectKnown(graph[u"Param2"], category);
        expectKnown(graph[u"Param3"], category);
        if (graph.toObject().contains(u"Param4")) {
            expectKnown(graph[u"Param4"], category);
        }
    }
    for (const QJsonValue& table : elementsOf(recipe[u"ToolSummaryCommand"])) {
        EXPECT_TRUE(root[u"Tools"][u"Summary Table"][table[u"Param1"].toString()].isObject());
    }
    for (const QJsonValue& graph : elementsOf(recipe[u"ToolStatisticsCommand"])) {
        const QJsonArray curves = root[u"Statistics"][graph[u"Param1"].toString()].toArray();
        EXPECT_TRUE(std::any_of(curves.begin(), curves.end(), [&](const QJsonValue& curve) {
            return curve[u"Title"] == graph[u"Param2"];
        })) << qPrintable(graph[u"UITitle"].toString());
    }
    for (const QJsonValue& graph : elementsOf(recipe[u"ToolProcessedDataCommand"])) {
        const QJsonArray graphs = root[u"Processed Data"].toArray();
        EXPECT_TRUE(std::any_of(graphs.begin(), graphs.end(), [&](const QJsonValue& processed) {
            return processed[u"Title"] == graph[u"Param1"];
        })) << qPrintable(graph[u"UITitle"].toString());
    }
}

TEST(ShippedConfiguration, RecipeParametersHaveNoGapAndTitlesAreUniqueInTheirList)
{
    const QJsonObject recipe = readConfiguration()[u"Recipe"].toObject();
    for (const QString& command : recipe.keys()) {
        QSet<QString> titles;
        for (const QJsonValue& entry : elementsOf(recipe.value(command))) {
            const QSet<QString> keys = keysOf(entry);
            QSet<QString> expected{u"UITitle"_qs};
            for (qsizetype n = 1; n < keys.size(); ++n) {
                expected.insert(u"Param"_qs + QString::number(n));
            }
            EXPECT_EQ(keys, expected);
            EXPECT_FALSE(titles.contains(entry[u"UITitle"].toString())) << qPrintable(entry[u"UITitle"].toString());
            titles.insert(entry[u"UITitle"].toString());
        }
        EXPECT_FALSE(titles.isEmpty()) << qPrintable(command);
    }
}

TEST(ShippedConfiguration, FormulasAreCompleteForEveryAxis)
{
    const QJsonObject groups = readConfiguration()[u"Process Formula"].toObject();
    EXPECT_EQ(keysOf(groups), (QSet<QString>{u"X Formulas"_qs, u"Y1 Formulas"_qs, u"Y2 Formulas"_qs}));
    for (const QString& group : groups.keys()) {
        EXPECT_GE(groups.value(group).toArray().size(), 5) << qPrintable(group);
        for (const QJsonValue& formula : elementsOf(groups.value(group))) {
            EXPECT_FALSE(formula[u"Displayed Formula"].toString().isEmpty()) << qPrintable(group);
            EXPECT_FALSE(formula[u"Compiled Formula"].toString().isEmpty()) << qPrintable(group);
        }
    }
}

TEST(ShippedConfiguration, TheDifferentialCapacityTableAndGraphHaveKnownArrays)
{
    const QJsonValue section = readConfiguration()[u"dQ_dU"];
    EXPECT_FALSE(section[u"Table"].toArray().isEmpty());
    for (const QJsonValue& name : elementsOf(section[u"Table"])) {
        expectKnown(name, ClConfigDataArray::PotentiostatMeasure());
    }
    expectKnown(section[u"Graph"][u"X"], section[u"Graph"][u"Category"].toString());
    expectKnown(section[u"Graph"][u"Y1"], section[u"Graph"][u"Category"].toString());
    EXPECT_FALSE(section[u"Graph"][u"Title"].toString().isEmpty());
}

TEST(ShippedConfiguration, SkipsTasksAndDebugsNothing)
{
    const QJsonObject root = readConfiguration();
    EXPECT_FALSE(root[u"Filters"][u"Tasks"][u"Skipped"].toArray().isEmpty());
    const QJsonObject expected{{u"importDialogDisplayClIds"_qs, false},
                               {u"saveImportedParquetFiles"_qs, false},
                               {u"saveZFitInputData"_qs, false}};
    EXPECT_EQ(root[u"Debug"].toObject(), expected);
}
