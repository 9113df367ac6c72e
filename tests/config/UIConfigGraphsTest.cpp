#include <config/UIConfigTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// The statistics section.
struct Statistics
{
    static constexpr auto Key = "Statistics";
    static constexpr auto Missing = "Missing statistics graphs configuration node";
    static constexpr auto Reader = &UIConfigReaders::readStatsGraph;
    static const QList<StatisticsItem>& graphs(const UIConfig& config) { return config.getStatsGraph(); }
    static StatisticsItem find(const UIConfig& config, const QString& title)
    {
        return config.getStatGraphFromTitle(title);
    }
};

/// The Ragone-plot section, which holds the same.
struct RagonePlot
{
    static constexpr auto Key = "Ragone Plot";
    static constexpr auto Missing = "Missing Ragone Plot graphs configuration node";
    static constexpr auto Reader = &UIConfigReaders::readRagonePlotGraph;
    static const QList<RagonePlotItem>& graphs(const UIConfig& config) { return config.getRagonePlotGraph(); }
    static RagonePlotItem find(const UIConfig& config, const QString& title)
    {
        return config.getRagonePlotGraphFromTitle(title);
    }
};

template <typename Curve>
QStringList texts(const QList<Curve>& curves)
{
    QStringList result;
    for (const Curve& curve : curves) {
        result.append(
            QStringList{curve.getTitle(), curve.getCategory(), curve.getStreamX(), curve.getStreamY(), curve.getType()}
                .join(u", "_s));
    }
    return result;
}

template <typename Section>
class TitledGraphs : public UIConfigTest
{
protected:
    QString readSection(const char* section) const
    {
        return read(Section::Reader, QJsonObject{{QString::fromLatin1(Section::Key), jsonValue(section)}});
    }

    QStringList titles() const
    {
        QStringList result;
        for (const auto& graph : Section::graphs(config)) {
            result.append(graph.getTitle());
        }
        return result;
    }
};

using Sections = testing::Types<Statistics, RagonePlot>;
TYPED_TEST_SUITE(TitledGraphs, Sections);

class ProcessedDataGraphs : public UIConfigTest
{
protected:
    QString readSection(const QByteArray& section) const
    {
        return read(&UIConfigReaders::readProcessedDataGraph, "{\"Processed Data\": " + section + "}");
    }
};

constexpr auto ProcessedDataMissing = "Missing processed data graphs configuration node"_L1;

} // namespace

TYPED_TEST(TitledGraphs, StandInTheOrderOfTheirTitlesNotOfTheDocument)
{
    EXPECT_EQ(this->readSection(R"({"b": [], "a": [], "B": []})"), Success);
    EXPECT_THAT(this->titles(), ElementsAre(u"B"_s, u"a"_s, u"b"_s));
}

TYPED_TEST(TitledGraphs, HaveTheirCurvesInDocumentOrder)
{
    EXPECT_EQ(this->readSection(R"({"graph": [
        {"X": "Time", "Y": "Voltage", "Category": "Potentiostat", "Title": "second letter", "Type": "mean"},
        {"Title": "a"}]})"),
              Success);
    const auto graph = TypeParam::find(this->config, u"graph"_s);
    EXPECT_THAT(graph.getGraphItemsTitleList(), ElementsAre(u"second letter"_s, u"a"_s));
    const auto curve = graph.getGraphItemsList().constFirst();
    EXPECT_EQ(curve.getStreamX(), u"Time"_s);
    EXPECT_EQ(curve.getStreamY(), u"Voltage"_s);
    EXPECT_EQ(curve.getCategory(), u"Potentiostat"_s);
    EXPECT_EQ(curve.getType(), u"mean"_s);
}

TYPED_TEST(TitledGraphs, MemberThatIsNoArrayIsAGraphWithoutCurves)
{
    EXPECT_EQ(this->readSection(R"({"text": "curves", "number": 1, "null": null, "object": {"Title": "a"}})"), Success);
    EXPECT_THAT(this->titles(), ElementsAre(u"null"_s, u"number"_s, u"object"_s, u"text"_s));
    for (const auto& graph : TypeParam::graphs(this->config)) {
        EXPECT_THAT(graph.getGraphItemsList(), IsEmpty()) << graph.getTitle().toStdString();
    }
}

TYPED_TEST(TitledGraphs, ElementThatIsNoObjectIsACurveOfEmptyTexts)
{
    EXPECT_EQ(this->readSection(R"({"graph": [1, {"Title": "a"}]})"), Success);
    EXPECT_THAT(TypeParam::find(this->config, u"graph"_s).getGraphItemsTitleList(), ElementsAre(QString(), u"a"_s));
}

TYPED_TEST(TitledGraphs, SectionThatIsNoObjectFails)
{
    for (const char* section : {"[]", "null", "1", "\"text\"", "true"}) {
        EXPECT_EQ(this->readSection(section), QLatin1StringView(TypeParam::Missing)) << section;
    }
    EXPECT_EQ(this->read(TypeParam::Reader, QJsonObject()), QLatin1StringView(TypeParam::Missing));
    EXPECT_THAT(this->titles(), IsEmpty());
}

TYPED_TEST(TitledGraphs, EmptySectionAddsNothing)
{
    EXPECT_EQ(this->readSection("{}"), Success);
    EXPECT_THAT(this->titles(), IsEmpty());
}

TYPED_TEST(TitledGraphs, SecondReadAddsToTheFirst)
{
    EXPECT_EQ(this->readSection(R"({"b": []})"), Success);
    EXPECT_EQ(this->readSection(R"({"a": []})"), Success);
    EXPECT_THAT(this->titles(), ElementsAre(u"b"_s, u"a"_s));
}

TYPED_TEST(TitledGraphs, LookupIsExact)
{
    EXPECT_EQ(this->readSection(R"({"Graph": [{"Title": "a"}]})"), Success);
    EXPECT_EQ(TypeParam::find(this->config, u"Graph"_s).getTitle(), u"Graph"_s);
    for (const QString& title : {u"graph"_s, u"Graph "_s, u" Graph"_s, u"Grap"_s, u""_s, QString()}) {
        const auto missed = TypeParam::find(this->config, title);
        EXPECT_EQ(missed.getTitle(), QString()) << title.toStdString();
        EXPECT_THAT(missed.getGraphItemsList(), IsEmpty()) << title.toStdString();
    }
}

TYPED_TEST(TitledGraphs, FirstOfEqualTitlesIsFound)
{
    EXPECT_EQ(this->readSection(R"({"graph": [{"Title": "first"}]})"), Success);
    EXPECT_EQ(this->readSection(R"({"graph": [{"Title": "second"}]})"), Success);
    EXPECT_THAT(this->titles(), SizeIs(2));
    EXPECT_THAT(TypeParam::find(this->config, u"graph"_s).getGraphItemsTitleList(), ElementsAre(u"first"_s));
}

TEST_F(UIConfigTest, SameSnippetGivesStatisticsAndRagonePlotTheSameGraphs)
{
    const QJsonValue snippet =
        jsonObject(R"({"b": [{"Title": "1", "Category": "c", "X": "x", "Y": "y"}, {"Title": "2", "Type": "t"}],
                       "a": [{}]})");
    EXPECT_EQ(read(&UIConfigReaders::readStatsGraph, QJsonObject{{u"Statistics"_s, snippet}}), Success);
    EXPECT_EQ(read(&UIConfigReaders::readRagonePlotGraph, QJsonObject{{u"Ragone Plot"_s, snippet}}), Success);
    ASSERT_EQ(config.getStatsGraph().size(), config.getRagonePlotGraph().size());
    for (qsizetype i = 0; i < config.getStatsGraph().size(); ++i) {
        const StatisticsItem& statistics = config.getStatsGraph().at(i);
        const RagonePlotItem& ragone = config.getRagonePlotGraph().at(i);
        EXPECT_EQ(statistics.getTitle(), ragone.getTitle());
        EXPECT_EQ(texts(statistics.getGraphItemsList()), texts(ragone.getGraphItemsList()));
    }
    EXPECT_EQ(texts(config.getStatsGraph().at(1).getGraphItemsList()),
              QStringList({u"1, c, x, y, "_s, u"2, , , , t"_s}));
}

TEST_F(UIConfigTest, StatisticsCurveFromTheDocumentHasNoFlagSet)
{
    EXPECT_EQ(read(&UIConfigReaders::readStatsGraph,
                   R"({"Statistics": {"graph": [{"isStatisticsEnvelope": true, "isStatisticsErrorBars": true}]}})"),
              Success);
    const StatisticsChildItem curve = config.getStatsGraph().constFirst().getGraphItemsList().constFirst();
    EXPECT_FALSE(curve.getIsStatisticsEnvelope());
    EXPECT_FALSE(curve.getIsStatisticsErrorBars());
}

TEST_F(ProcessedDataGraphs, StandInDocumentOrder)
{
    EXPECT_EQ(readSection(R"([{"Title": "b", "Y_processed": [1, "Smoothed"]}, {"Title": "a"}])"), Success);
    ASSERT_THAT(config.getProcessedDataGraph(), SizeIs(2));
    EXPECT_EQ(config.getProcessedDataGraph().at(0).getTitle(), u"b"_s);
    EXPECT_THAT(config.getProcessedDataGraph().at(0).getProcessedStreamsY(), ElementsAre(QString(), u"Smoothed"_s));
    EXPECT_EQ(config.getProcessedDataGraph().at(1).getTitle(), u"a"_s);
    EXPECT_THAT(config.getProcessedDataGraph().at(1).getProcessedStreamsY(), IsEmpty());
}

TEST_F(ProcessedDataGraphs, SectionThatIsNoArrayFails)
{
    for (const char* section : {"{}", R"({"Title": "a"})", "null", "1", "\"text\"", "true"}) {
        EXPECT_EQ(readSection(section), ProcessedDataMissing) << section;
    }
    EXPECT_EQ(read(&UIConfigReaders::readProcessedDataGraph, QJsonObject()), ProcessedDataMissing);
    EXPECT_THAT(config.getProcessedDataGraph(), IsEmpty());
}

TEST_F(ProcessedDataGraphs, EmptySectionAddsNothing)
{
    EXPECT_EQ(readSection("[]"), Success);
    EXPECT_THAT(config.getProcessedDataGraph(), IsEmpty());
}

TEST_F(ProcessedDataGraphs, ElementThatIsNoObjectFailsAndLeavesTheEarlierGraphs)
{
    EXPECT_EQ(readSection(R"([{"Title": "kept"}, 1, {"Title": "never reached"}])"), ProcessedDataMissing);
    ASSERT_THAT(config.getProcessedDataGraph(), SizeIs(1));
    EXPECT_EQ(config.getProcessedDataGraph().constFirst().getTitle(), u"kept"_s);
}

TEST_F(ProcessedDataGraphs, LookupIsExact)
{
    EXPECT_EQ(readSection(R"([{"Title": "Graph", "X": "Time"}])"), Success);
    EXPECT_EQ(config.getProcessedDataGraphFromTitle(u"Graph"_s).getStreamX(), u"Time"_s);
    for (const QString& title : {u"graph"_s, u"Graph "_s, u" Graph"_s, u"Grap"_s, u""_s, QString()}) {
        const ProcessedDataItem missed = config.getProcessedDataGraphFromTitle(title);
        EXPECT_EQ(missed.getTitle(), QString()) << title.toStdString();
        EXPECT_EQ(missed.getStreamX(), QString()) << title.toStdString();
    }
}

TEST_F(ProcessedDataGraphs, FirstOfEqualTitlesIsFound)
{
    EXPECT_EQ(readSection(R"([{"Title": "graph", "X": "first"}, {"Title": "graph", "X": "second"}])"), Success);
    EXPECT_EQ(config.getProcessedDataGraphFromTitle(u"graph"_s).getStreamX(), u"first"_s);
}
