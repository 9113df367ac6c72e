#include <items/ProcessedDataItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using Getter = QString (ProcessedDataItem::*)() const; // copies, unlike the getters of the other records

static_assert(std::is_same_v<decltype(&ProcessedDataItem::getTitle), Getter>);
static_assert(std::is_same_v<decltype(&ProcessedDataItem::getCategory), Getter>);
static_assert(std::is_same_v<decltype(&ProcessedDataItem::getStreamX), Getter>);
static_assert(std::is_same_v<decltype(&ProcessedDataItem::getStreamY1), Getter>);
static_assert(std::is_same_v<decltype(&ProcessedDataItem::getStreamY2), Getter>);
static_assert(
    std::is_same_v<decltype(&ProcessedDataItem::getProcessedStreamsY), QList<QString> (ProcessedDataItem::*)() const>);
static_assert(
    std::is_same_v<decltype(&ProcessedDataItem::getAxesCombination), AxesCombination (ProcessedDataItem::*)() const>);

QStringList texts(const ProcessedDataItem& item)
{
    return {item.getTitle(), item.getCategory(), item.getStreamX(), item.getStreamY1(), item.getStreamY2()};
}

QJsonObject entry()
{
    return jsonObject(
        R"({"Title": "t", "Category": "c", "X": "x", "Y1": "y1", "Y2": "y2", "Y_processed": ["p", "q"]})");
}

ProcessedDataItem configured(const QJsonObject& object)
{
    ProcessedDataItem item;
    item.readGraphItem(object);
    return item;
}

} // namespace

TEST(ProcessedDataItem, DefaultConstructedIsEmpty)
{
    EXPECT_EQ(texts(ProcessedDataItem()), QStringList(5, u""_s));
    EXPECT_TRUE(ProcessedDataItem().getProcessedStreamsY().isEmpty());
}

TEST(ProcessedDataItem, SettersReplaceOneFieldEach)
{
    ProcessedDataItem item;
    item.setTitle(u"t"_s);
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u""_s, u""_s, u""_s, u""_s}));
    item.setCategory(u"c"_s);
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u"c"_s, u""_s, u""_s, u""_s}));
    item.setStreamX(u"x"_s);
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u""_s, u""_s}));
    item.setStreamY1(u"y1"_s);
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y1"_s, u""_s}));
    item.setStreamY2(u"y2"_s);
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y1"_s, u"y2"_s}));
    item.setProcessedStreamsY({u"old"_s});
    item.setProcessedStreamsY({u"p"_s, u""_s, u"p"_s});
    EXPECT_EQ(item.getProcessedStreamsY(), QStringList({u"p"_s, u""_s, u"p"_s}));
}

TEST(ProcessedDataItem, ReadsItsArchiveKeys)
{
    ProcessedDataItem item;
    EXPECT_TRUE(readInto(item, jsonObject(R"({"title": "t", "category": "c", "streamX": "x", "streamY1": "y1",
                                        "streamY2": "y2", "processedYAxis": ["q", "p"]})")));
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y1"_s, u"y2"_s}));
    EXPECT_EQ(item.getProcessedStreamsY(), QStringList({u"q"_s, u"p"_s}));
}

TEST(ProcessedDataItem, ArchiveWithoutProcessedAxisGivesAnEmptyList)
{
    ProcessedDataItem item = configured(entry());
    EXPECT_TRUE(readInto(item, jsonObject(R"({"title": "t"})")));
    EXPECT_TRUE(item.getProcessedStreamsY().isEmpty());
}

TEST(ProcessedDataItem, ReadsTheKeysOfTheConfiguration)
{
    const ProcessedDataItem item = configured(entry());
    EXPECT_EQ(texts(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y1"_s, u"y2"_s}));
    EXPECT_EQ(item.getProcessedStreamsY(), QStringList({u"p"_s, u"q"_s}));
}

TEST(ProcessedDataItem, ConfigurationReplacesEveryField)
{
    ProcessedDataItem item = configured(entry());
    item.readGraphItem(jsonObject(R"({"Y_processed": ["r"]})"));
    EXPECT_EQ(texts(item), QStringList(5, u""_s));
    EXPECT_EQ(item.getProcessedStreamsY(), QStringList({u"r"_s}));
    item.readGraphItem({});
    EXPECT_TRUE(item.getProcessedStreamsY().isEmpty());
}

TEST(ProcessedDataItem, ProcessedNameThatIsNoStringIsEmptyInItsPlace)
{
    const ProcessedDataItem item = configured(jsonObject(R"({"Y_processed": [1, "p", null, ["q"], true]})"));
    EXPECT_EQ(item.getProcessedStreamsY(), QStringList({u""_s, u"p"_s, u""_s, u""_s, u""_s}));
}

TEST(ProcessedDataItem, MissingOrMistypedConfigurationKeyReadsAsEmpty)
{
    const QStringList keys{u"Title"_s, u"Category"_s, u"X"_s, u"Y1"_s, u"Y2"_s};
    for (qsizetype i = 0; i < keys.size(); ++i) {
        for (const QJsonValue& wrong : valuesOfOtherTypes(QJsonValue::String)) {
            QJsonObject spoilt = entry();
            spoilt.insert(keys.at(i), wrong);
            QStringList expected{u"t"_s, u"c"_s, u"x"_s, u"y1"_s, u"y2"_s};
            expected[i].clear();
            EXPECT_EQ(texts(configured(spoilt)), expected);
        }
    }
    for (const QJsonValue& wrong : valuesOfOtherTypes(QJsonValue::Array)) {
        QJsonObject spoilt = entry();
        spoilt.insert(u"Y_processed"_s, wrong);
        EXPECT_TRUE(configured(spoilt).getProcessedStreamsY().isEmpty());
    }
}
