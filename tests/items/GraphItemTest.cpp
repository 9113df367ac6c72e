#include <items/RagonePlotItem.h>
#include <items/StatisticsItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

// Statistics graphs and Ragone plots: a title and a list of curves, alike in everything.
namespace {

template <typename Graph>
using CurveOf = typename std::remove_cvref_t<decltype(std::declval<Graph>().getGraphItemsList())>::value_type;

/// A curve in one line: "title: X / Y (category), type".
template <typename Curve>
QString described(const Curve& curve)
{
    return curve.getTitle() + u": "_s + curve.getStreamX() + u" / "_s + curve.getStreamY() + u" ("_s
        + curve.getCategory() + u"), "_s + curve.getType();
}

template <typename Graph>
QStringList curves(const Graph& graph)
{
    QStringList result;
    for (const auto& curve : graph.getGraphItemsList()) {
        result.append(described(curve));
    }
    return result;
}

const QString NoCurve = u":  /  (), "_s;

/// A section of the configuration document.
QJsonObject section()
{
    return jsonObject(R"({
        "Capacity": [
            {"Title": "charge", "Category": "Cycle", "X": "Cycle", "Y": "Charge", "Type": "Line"},
            {"Title": "discharge", "Category": "Step", "X": "Step", "Y": "Discharge", "Type": "Bar"}
        ],
        "Energy": [{"Title": "energy", "Category": "Cycle", "X": "Cycle", "Y": "Energy", "Type": "Line"}],
        "Text": "text", "Number": 1, "Object": {"Title": "t"}, "Null": null, "True": true, "Empty": []
    })");
}

const QStringList CapacityCurves{u"charge: Cycle / Charge (Cycle), Line"_s,
                                 u"discharge: Step / Discharge (Step), Bar"_s};

template <typename Graph>
class GraphItem : public testing::Test
{
protected:
    using Curve = CurveOf<Graph>;

    static_assert(std::is_same_v<decltype(&Graph::getTitle), const QString& (Graph::*)() const>);
    static_assert(
        std::is_same_v<decltype(&Graph::getGraphItemFromTitle), const Curve (Graph::*)(const QString&) const>);
    static_assert(std::is_same_v<decltype(&Graph::getGraphItemsTitleList), QList<QString> (Graph::*)() const>);
    static_assert(std::is_same_v<decltype(&Graph::getGraphItemsList), const QList<Curve>& (Graph::*)() const>);

    /// A curve that tells apart which of two with the same title it is.
    static Curve curve(const QString& title, const QString& x)
    {
        Curve result;
        result.setTitle(title);
        result.setStreamX(x);
        return result;
    }

    static Graph graphOf(const QList<Curve>& items)
    {
        Graph graph;
        for (const Curve& item : items) {
            graph.addGraphItem(item);
        }
        return graph;
    }

    static Graph configured(const QString& title, const QJsonObject& object)
    {
        Graph graph;
        graph.readGraphItem(title, object);
        return graph;
    }
};

using Graphs = testing::Types<StatisticsItem, RagonePlotItem>;
TYPED_TEST_SUITE(GraphItem, Graphs);

} // namespace

TYPED_TEST(GraphItem, DefaultConstructedHasNoTitleAndNoCurves)
{
    const TypeParam graph;
    EXPECT_EQ(graph.getTitle(), QString());
    EXPECT_TRUE(graph.getGraphItemsList().isEmpty());
    EXPECT_TRUE(graph.getGraphItemsTitleList().isEmpty());
}

TYPED_TEST(GraphItem, SetTitleReplacesTheTitleAlone)
{
    TypeParam graph = this->configured(u"Capacity"_s, section());
    graph.setTitle(u"new"_s);
    EXPECT_EQ(graph.getTitle(), u"new"_s);
    EXPECT_EQ(curves(graph), CapacityCurves);
}

TYPED_TEST(GraphItem, AddedCurvesComeLastAlsoRepeatedOnes)
{
    TypeParam graph = this->graphOf({this->curve(u"b"_s, u"1"_s), this->curve(u"a"_s, u"2"_s)});
    graph.addGraphItem(this->curve(u"b"_s, u"3"_s));
    graph.addGraphItem(graph.getGraphItemsList().first());
    EXPECT_EQ(curves(graph), QStringList({u"b: 1 /  (), "_s, u"a: 2 /  (), "_s, u"b: 3 /  (), "_s, u"b: 1 /  (), "_s}));
}

TYPED_TEST(GraphItem, TitleListNamesEveryCurveAlsoEmptyAndRepeatedOnes)
{
    const TypeParam graph = this->graphOf({this->curve(u"b"_s, u""_s), this->curve(u""_s, u""_s),
                                           this->curve(u"a"_s, u""_s), this->curve(u"b"_s, u""_s)});
    EXPECT_EQ(graph.getGraphItemsTitleList(), QStringList({u"b"_s, u""_s, u"a"_s, u"b"_s}));
}

TYPED_TEST(GraphItem, CurveOfATitleIsTheFirstWithExactlyThatTitle)
{
    const TypeParam graph = this->graphOf({this->curve(u"Charge "_s, u"1"_s), this->curve(u"charge"_s, u"2"_s),
                                           this->curve(u"Charge"_s, u"3"_s), this->curve(u"Charge"_s, u"4"_s)});
    EXPECT_EQ(described(graph.getGraphItemFromTitle(u"Charge"_s)), u"Charge: 3 /  (), "_s);
    EXPECT_EQ(described(graph.getGraphItemFromTitle(u"charge"_s)), u"charge: 2 /  (), "_s);
    EXPECT_EQ(described(graph.getGraphItemFromTitle(u"Charge "_s)), u"Charge : 1 /  (), "_s);
}

TYPED_TEST(GraphItem, CurveOfAnUnknownTitleIsEmpty)
{
    const TypeParam graph = this->graphOf({this->curve(u"Charge"_s, u"x"_s)});
    for (const QString& title : {u"CHARGE"_s, u"Charge "_s, u" Charge"_s, u"Charg"_s, u""_s}) {
        EXPECT_EQ(described(graph.getGraphItemFromTitle(title)), NoCurve) << title.toStdString();
    }
    EXPECT_EQ(described(TypeParam().getGraphItemFromTitle(u"Charge"_s)), NoCurve);
}

TYPED_TEST(GraphItem, CurveWithoutATitleIsFoundByTheEmptyOne)
{
    const TypeParam graph = this->graphOf({this->curve(u"a"_s, u"1"_s), this->curve(QString(), u"2"_s)});
    EXPECT_EQ(described(graph.getGraphItemFromTitle(u""_s)), u": 2 /  (), "_s);
}

TYPED_TEST(GraphItem, ConfigurationGivesTheTitleAndTheCurvesThatStandUnderIt)
{
    const TypeParam graph = this->configured(u"Capacity"_s, section());
    EXPECT_EQ(graph.getTitle(), u"Capacity"_s);
    EXPECT_EQ(curves(graph), CapacityCurves);
}

TYPED_TEST(GraphItem, ConfigurationKeepsTheCurvesThatWereThere)
{
    TypeParam graph = this->configured(u"Energy"_s, section());
    graph.readGraphItem(u"Capacity"_s, section());
    EXPECT_EQ(graph.getTitle(), u"Capacity"_s);
    EXPECT_EQ(curves(graph), QStringList({u"energy: Cycle / Energy (Cycle), Line"_s}) + CapacityCurves);

    graph.readGraphItem(graph.getTitle(), section());
    EXPECT_EQ(curves(graph).size(), 5);
}

TYPED_TEST(GraphItem, ConfigurationWithoutAnArrayGivesATitleAndNoCurves)
{
    for (const QString& title :
         {u"Text"_s, u"Number"_s, u"Object"_s, u"Null"_s, u"True"_s, u"Empty"_s, u"Missing"_s, u"capacity"_s, u""_s}) {
        const TypeParam graph = this->configured(title, section());
        EXPECT_EQ(graph.getTitle(), title);
        EXPECT_TRUE(graph.getGraphItemsList().isEmpty()) << title.toStdString();
    }
}

TYPED_TEST(GraphItem, ConfiguredElementThatIsNoObjectIsAnEmptyCurve)
{
    const TypeParam graph =
        this->configured(u"g"_s, jsonObject(R"({"g": [1, {"Title": "a"}, "a", null, ["a"], true, {}]})"));
    EXPECT_EQ(curves(graph), QStringList({NoCurve, u"a:  /  (), "_s, NoCurve, NoCurve, NoCurve, NoCurve, NoCurve}));
}

TYPED_TEST(GraphItem, MissingOrMistypedConfigurationKeyReadsAsEmpty)
{
    const QList<std::pair<QString, QString>> withoutKeys{
        {u"Title"_s, u": x / y (c), k"_s},    {u"X"_s, u"t:  / y (c), k"_s},    {u"Y"_s, u"t: x /  (c), k"_s},
        {u"Category"_s, u"t: x / y (), k"_s}, {u"Type"_s, u"t: x / y (c), "_s},
    };
    for (const auto& [key, expected] : withoutKeys) {
        for (const QJsonValue& wrong : valuesOfOtherTypes(QJsonValue::String)) {
            QJsonObject spoilt = jsonObject(R"({"Title": "t", "X": "x", "Y": "y", "Category": "c", "Type": "k"})");
            spoilt.insert(key, wrong);
            EXPECT_EQ(curves(this->configured(u"g"_s, {{u"g"_s, QJsonArray{spoilt}}})), QStringList(expected));
        }
    }
}

TYPED_TEST(GraphItem, ConfigurationDoesNotReadArchiveKeys)
{
    const TypeParam graph =
        this->configured(u"g"_s, {{u"g"_s, QJsonArray{written(this->configured(u"Energy"_s, section()))}}});
    EXPECT_EQ(curves(graph), QStringList({NoCurve}));
}

TYPED_TEST(GraphItem, ArchiveReplacesTitleAndCurves)
{
    TypeParam graph = this->configured(u"Energy"_s, section());
    EXPECT_TRUE(readInto(graph, written(this->configured(u"Capacity"_s, section()))));
    EXPECT_EQ(graph.getTitle(), u"Capacity"_s);
    EXPECT_EQ(curves(graph), CapacityCurves);
}

TYPED_TEST(GraphItem, ArchiveWithoutCurvesEmptiesTheList)
{
    TypeParam graph = this->configured(u"Energy"_s, section());
    EXPECT_TRUE(readInto(graph, jsonObject(R"({"title": "archived"})")));
    EXPECT_EQ(graph.getTitle(), u"archived"_s);
    EXPECT_TRUE(graph.getGraphItemsList().isEmpty());
}

TYPED_TEST(GraphItem, ArchivedElementThatIsNoObjectIsAnEmptyCurve)
{
    TypeParam graph;
    EXPECT_TRUE(readInto(graph, jsonObject(R"({"graphItemsList": [1, {"title": "a", "streamX": "x"}, null, "a"]})")));
    EXPECT_EQ(curves(graph), QStringList({NoCurve, u"a: x /  (), "_s, NoCurve, NoCurve}));
}

TYPED_TEST(GraphItem, ReadsTheArchiveOfTheOtherKindOfGraph)
{
    StatisticsItem statistics;
    statistics.readGraphItem(u"Capacity"_s, section());
    RagonePlotItem ragonePlot;
    ragonePlot.readGraphItem(u"Capacity"_s, section());
    for (const QJsonObject& archive : {written(statistics), written(ragonePlot)}) {
        TypeParam graph;
        EXPECT_TRUE(readInto(graph, archive));
        EXPECT_EQ(graph.getTitle(), u"Capacity"_s);
        EXPECT_EQ(curves(graph), CapacityCurves);
    }
}

TEST(StatisticsItem, FlagsOfEveryCurveComeBackFromTheArchive)
{
    StatisticsItem graph;
    for (int flags = 0; flags < 4; ++flags) {
        StatisticsChildItem curve;
        curve.setIsStatisticsEnvelope((flags & 1) != 0);
        curve.setIsStatisticsErrorBars((flags & 2) != 0);
        graph.addGraphItem(curve);
    }
    StatisticsItem read;
    EXPECT_TRUE(readInto(read, written(graph)));
    ASSERT_EQ(read.getGraphItemsList().size(), 4);
    for (int flags = 0; flags < 4; ++flags) {
        EXPECT_EQ(read.getGraphItemsList().at(flags).getIsStatisticsEnvelope(), (flags & 1) != 0);
        EXPECT_EQ(read.getGraphItemsList().at(flags).getIsStatisticsErrorBars(), (flags & 2) != 0);
    }
}

TEST(StatisticsItem, ConfiguredCurveIsWrittenWithTheFlagsThatItHolds)
{
    StatisticsItem graph;
    graph.readGraphItem(u"Energy"_s, section());
    EXPECT_EQ(written(graph), jsonObject(R"({"title": "Energy", "graphItemsList": [{
        "title": "energy", "category": "Cycle", "streamX": "Cycle", "streamY": "Energy", "type": "Line",
        "isStatisticsEnvelope": false, "isStatisticsErrorBars": false
    }]})"));
}

TEST(RagonePlotItem, CurvesAreWrittenWithoutFlags)
{
    RagonePlotItem graph;
    graph.readGraphItem(u"Energy"_s, section());
    EXPECT_EQ(written(graph), jsonObject(R"({"title": "Energy", "graphItemsList": [{
        "title": "energy", "category": "Cycle", "streamX": "Cycle", "streamY": "Energy", "type": "Line"
    }]})"));
}
