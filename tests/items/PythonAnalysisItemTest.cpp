#include <items/PythonAnalysisItem.h>
#include <items/PythonGraphAnalysisItem.h>
#include <items/PythonTableAnalysisItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using Getter = const QString& (PythonAnalysisItem::*)() const;
using ListGetter = const QList<QString>& (PythonAnalysisItem::*)() const;
using GraphGetter = const QString& (PythonGraphAnalysisItem::*)() const;
using GraphTest = bool (PythonGraphAnalysisItem::*)() const;

static_assert(std::is_same_v<decltype(&PythonAnalysisItem::getId), Getter>);
static_assert(std::is_same_v<decltype(&PythonAnalysisItem::getTitle), Getter>);
static_assert(std::is_same_v<decltype(&PythonAnalysisItem::getCategory), Getter>);
static_assert(std::is_same_v<decltype(&PythonAnalysisItem::getInputColumnsList), ListGetter>);
static_assert(std::is_same_v<decltype(&PythonAnalysisItem::getDutRunPathsList), ListGetter>);
static_assert(std::is_same_v<decltype(&PythonGraphAnalysisItem::getStreamX), GraphGetter>);
static_assert(std::is_same_v<decltype(&PythonGraphAnalysisItem::getStreamY1), GraphGetter>);
static_assert(std::is_same_v<decltype(&PythonGraphAnalysisItem::getStreamY2), GraphGetter>);
static_assert(std::is_same_v<decltype(&PythonGraphAnalysisItem::useX), GraphTest>);
static_assert(std::is_same_v<decltype(&PythonGraphAnalysisItem::useY1), GraphTest>);
static_assert(std::is_same_v<decltype(&PythonGraphAnalysisItem::useY2), GraphTest>);
static_assert(std::is_same_v<decltype(&PythonTableAnalysisItem::getOutputColumnsList),
                             const QList<QString>& (PythonTableAnalysisItem::*)() const>);

QStringList texts(const PythonAnalysisItem& item)
{
    return {item.getId(), item.getTitle(), item.getCategory()};
}

QStringList streams(const PythonGraphAnalysisItem& item)
{
    return {item.getStreamX(), item.getStreamY1(), item.getStreamY2()};
}

QJsonObject archived()
{
    return jsonObject(R"({"id": "i", "title": "t", "category": "c", "inputs": ["b", "a"], "dutRuns": ["run 2", "run 1"],
                          "streamX": "x", "streamY1": "y1", "streamY2": "y2", "outputs": ["z", "y", "z"]})");
}

template <typename Item>
Item readFrom(const QJsonObject& object, Item item = {})
{
    EXPECT_TRUE(readInto(item, object));
    return item;
}

} // namespace

TEST(PythonAnalysisItem, DefaultConstructedIsEmpty)
{
    const PythonAnalysisItem item;
    EXPECT_EQ(texts(item), QStringList(3, u""_s));
    EXPECT_TRUE(item.getInputColumnsList().isEmpty());
    EXPECT_TRUE(item.getDutRunPathsList().isEmpty());
}

TEST(PythonAnalysisItem, SettersReplaceOneFieldEach)
{
    PythonAnalysisItem item;
    item.setId(u"i"_s);
    EXPECT_EQ(texts(item), QStringList({u"i"_s, u""_s, u""_s}));
    item.setTitle(u"t"_s);
    EXPECT_EQ(texts(item), QStringList({u"i"_s, u"t"_s, u""_s}));
    item.setCategory(u"c"_s);
    EXPECT_EQ(texts(item), QStringList({u"i"_s, u"t"_s, u"c"_s}));
}

TEST(PythonAnalysisItem, ListsTakeRepeatedAndEmptyTextsAtTheirEnd)
{
    PythonAnalysisItem item;
    for (const QString& text : {u"b"_s, u"a"_s, u"b"_s, u""_s}) {
        item.addInputColToList(text);
        item.addDutRunPathToList(u"/"_s + text);
    }
    EXPECT_EQ(item.getInputColumnsList(), QStringList({u"b"_s, u"a"_s, u"b"_s, u""_s}));
    EXPECT_EQ(item.getDutRunPathsList(), QStringList({u"/b"_s, u"/a"_s, u"/b"_s, u"/"_s}));
    item.addInputColToList(item.getInputColumnsList().first());
    EXPECT_EQ(item.getInputColumnsList().last(), u"b"_s);
}

TEST(PythonAnalysisItem, ReadsItsArchiveKeys)
{
    const auto item = readFrom<PythonAnalysisItem>(archived());
    EXPECT_EQ(texts(item), QStringList({u"i"_s, u"t"_s, u"c"_s}));
    EXPECT_EQ(item.getInputColumnsList(), QStringList({u"b"_s, u"a"_s}));
    EXPECT_EQ(item.getDutRunPathsList(), QStringList({u"run 2"_s, u"run 1"_s}));
}

TEST(PythonAnalysisItem, ReadReplacesListsAndAddingAppendsToThem)
{
    PythonAnalysisItem item;
    item.addInputColToList(u"gone"_s);
    item.addDutRunPathToList(u"gone"_s);
    item = readFrom(archived(), item);
    item.addInputColToList(u"new"_s);
    item.addDutRunPathToList(u"new"_s);
    EXPECT_EQ(item.getInputColumnsList(), QStringList({u"b"_s, u"a"_s, u"new"_s}));
    EXPECT_EQ(item.getDutRunPathsList(), QStringList({u"run 2"_s, u"run 1"_s, u"new"_s}));
}

TEST(PythonAnalysisItem, ElementThatIsNoStringIsEmptyInItsPlace)
{
    const auto item = readFrom<PythonTableAnalysisItem>(
        jsonObject(R"({"inputs": [1, "a", null], "dutRuns": ["r", {}, ["s"]], "outputs": [true, "o"]})"));
    EXPECT_EQ(item.getInputColumnsList(), QStringList({u""_s, u"a"_s, u""_s}));
    EXPECT_EQ(item.getDutRunPathsList(), QStringList({u"r"_s, u""_s, u""_s}));
    EXPECT_EQ(item.getOutputColumnsList(), QStringList({u""_s, u"o"_s}));
}

TEST(PythonGraphAnalysisItem, SettersReplaceOneStreamEach)
{
    PythonGraphAnalysisItem item;
    EXPECT_EQ(streams(item), QStringList(3, u""_s));
    item.setStreamX(u"x"_s);
    EXPECT_EQ(streams(item), QStringList({u"x"_s, u""_s, u""_s}));
    item.setStreamY1(u"y1"_s);
    EXPECT_EQ(streams(item), QStringList({u"x"_s, u"y1"_s, u""_s}));
    item.setStreamY2(u"y2"_s);
    EXPECT_EQ(streams(item), QStringList({u"x"_s, u"y1"_s, u"y2"_s}));
}

TEST(PythonGraphAnalysisItem, UsesTheAxesWhoseStreamIsNotEmpty)
{
    const auto used = [](const QString& x, const QString& y1, const QString& y2) {
        PythonGraphAnalysisItem item;
        item.setStreamX(x);
        item.setStreamY1(y1);
        item.setStreamY2(y2);
        return QList<bool>{item.useX(), item.useY1(), item.useY2()};
    };
    EXPECT_EQ(used(u""_s, u""_s, u""_s), QList<bool>({false, false, false}));
    EXPECT_EQ(used(u"x"_s, u""_s, u""_s), QList<bool>({true, false, false}));
    EXPECT_EQ(used(u""_s, u"y1"_s, u""_s), QList<bool>({false, true, false}));
    EXPECT_EQ(used(u""_s, u""_s, u"y2"_s), QList<bool>({false, false, true}));
    EXPECT_EQ(used(u" "_s, u" "_s, u" "_s), QList<bool>({true, true, true}));
}

TEST(PythonGraphAnalysisItem, ReadsItsStreamsBesideTheFieldsOfItsBase)
{
    const auto item = readFrom<PythonGraphAnalysisItem>(archived());
    EXPECT_EQ(streams(item), QStringList({u"x"_s, u"y1"_s, u"y2"_s}));
    EXPECT_EQ(texts(item), QStringList({u"i"_s, u"t"_s, u"c"_s}));
    EXPECT_EQ(item.getInputColumnsList(), QStringList({u"b"_s, u"a"_s}));
    EXPECT_EQ(item.getDutRunPathsList(), QStringList({u"run 2"_s, u"run 1"_s}));
}

TEST(PythonGraphAnalysisItem, WritesAnUnusedStreamAsAnEmptyText)
{
    auto item = readFrom<PythonGraphAnalysisItem>(archived());
    item.setStreamY2(QString());
    EXPECT_FALSE(item.useY2());
    EXPECT_EQ(written(item).value(u"streamY2"_s), QJsonValue(u""_s));
}

TEST(PythonTableAnalysisItem, OutputColumnsTakeRepeatedAndEmptyTextsAtTheirEnd)
{
    PythonTableAnalysisItem item;
    EXPECT_TRUE(item.getOutputColumnsList().isEmpty());
    for (const QString& text : {u"z"_s, u""_s, u"z"_s}) {
        item.addOutputColumnToList(text);
    }
    EXPECT_EQ(item.getOutputColumnsList(), QStringList({u"z"_s, u""_s, u"z"_s}));
}

TEST(PythonTableAnalysisItem, ReadReplacesOutputColumns)
{
    PythonTableAnalysisItem item;
    item.addOutputColumnToList(u"gone"_s);
    item = readFrom(archived(), item);
    EXPECT_EQ(item.getOutputColumnsList(), QStringList({u"z"_s, u"y"_s, u"z"_s}));
    item = readFrom({}, item);
    EXPECT_TRUE(item.getOutputColumnsList().isEmpty());
}

TEST(PythonTableAnalysisItem, WriteThenReadKeepsTheOrderOfItsColumnsAndTheFieldsOfItsBase)
{
    const auto item = readFrom<PythonTableAnalysisItem>(written(readFrom<PythonTableAnalysisItem>(archived())));
    EXPECT_EQ(item.getOutputColumnsList(), QStringList({u"z"_s, u"y"_s, u"z"_s}));
    EXPECT_EQ(texts(item), QStringList({u"i"_s, u"t"_s, u"c"_s}));
    EXPECT_EQ(item.getInputColumnsList(), QStringList({u"b"_s, u"a"_s}));
    EXPECT_EQ(item.getDutRunPathsList(), QStringList({u"run 2"_s, u"run 1"_s}));
}
