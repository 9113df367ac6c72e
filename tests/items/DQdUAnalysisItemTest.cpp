#include <items/DQdUAnalysisItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using Getter = const QString& (DQdUAnalysisItem::*)() const;

static_assert(std::is_same_v<decltype(&DQdUAnalysisItem::getTitle), Getter>);
static_assert(std::is_same_v<decltype(&DQdUAnalysisItem::getCategory), Getter>);
static_assert(std::is_same_v<decltype(&DQdUAnalysisItem::getStreamX), Getter>);
static_assert(std::is_same_v<decltype(&DQdUAnalysisItem::getStreamY1), Getter>);
static_assert(
    std::is_same_v<decltype(&DQdUAnalysisItem::getAxesCombination), AxesCombination (DQdUAnalysisItem::*)() const>);

QStringList fields(const DQdUAnalysisItem& item)
{
    return {item.getTitle(), item.getCategory(), item.getStreamX(), item.getStreamY1()};
}

QJsonObject entry()
{
    return jsonObject(R"({"Title": "t", "Category": "c", "X": "x", "Y1": "y"})");
}

} // namespace

TEST(DQdUAnalysisItem, DefaultConstructedIsEmpty)
{
    EXPECT_EQ(fields(DQdUAnalysisItem()), QStringList(4, u""_s));
}

TEST(DQdUAnalysisItem, SettersReplaceOneFieldEach)
{
    DQdUAnalysisItem item;
    item.setTitle(u"t"_s);
    EXPECT_EQ(fields(item), QStringList({u"t"_s, u""_s, u""_s, u""_s}));
    item.setCategory(u"c"_s);
    EXPECT_EQ(fields(item), QStringList({u"t"_s, u"c"_s, u""_s, u""_s}));
    item.setStreamX(u"x"_s);
    EXPECT_EQ(fields(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u""_s}));
    item.setStreamY1(u"y"_s);
    EXPECT_EQ(fields(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y"_s}));
}

TEST(DQdUAnalysisItem, ReadsItsArchiveKeys)
{
    DQdUAnalysisItem item;
    EXPECT_TRUE(readInto(item, jsonObject(R"({"title": "t", "category": "c", "streamX": "x", "streamY1": "y"})")));
    EXPECT_EQ(fields(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y"_s}));
}

TEST(DQdUAnalysisItem, ReadsTheKeysOfTheConfiguration)
{
    DQdUAnalysisItem item;
    item.readGraphItem(entry());
    EXPECT_EQ(fields(item), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y"_s}));
}

TEST(DQdUAnalysisItem, ConfigurationReplacesEveryField)
{
    DQdUAnalysisItem item;
    item.readGraphItem(entry());
    item.readGraphItem(jsonObject(R"({"title": "t", "streamX": "x"})"));
    EXPECT_EQ(fields(item), QStringList(4, u""_s));
}

TEST(DQdUAnalysisItem, MissingOrMistypedConfigurationKeyReadsAsEmpty)
{
    const QStringList keys{u"Title"_s, u"Category"_s, u"X"_s, u"Y1"_s};
    for (qsizetype i = 0; i < keys.size(); ++i) {
        for (const QJsonValue& wrong : valuesOfOtherTypes(QJsonValue::String)) {
            QJsonObject spoilt = entry();
            spoilt.insert(keys.at(i), wrong);
            DQdUAnalysisItem item;
            item.readGraphItem(spoilt);
            QStringList expected{u"t"_s, u"c"_s, u"x"_s, u"y"_s};
            expected[i].clear();
            EXPECT_EQ(fields(item), expected);
        }
    }
}
