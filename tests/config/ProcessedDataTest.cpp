#include <config/UIConfigTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

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
