#include <cluiedit/text/JsonPlace.h>
#include <cluiedit/text/JsonScanner.h>
#include <data/ShippedFile.h>
#include <support/QtPrinters.h>
#include <support/Random.h>

#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace cluiedit;
using testing::ElementsAre;

namespace {

/// The place of the bar | in \p text, which is taken out.
JsonPlace placeIn(QByteArray text)
{
    const qsizetype offset = text.indexOf('|');
    return placeAt(text.remove(offset, 1), offset);
}

QString pathOf(const JsonPlace& place)
{
    QString path;
    for (const JsonStep& step : place.path) {
        path += u'/' + (step.isKey() ? step.key : QString::number(step.index));
    }
    return path;
}

} // namespace

TEST(JsonPlace, KnowsTheWayToAValueAndItsText)
{
    const JsonPlace place = placeIn(R"({ "a": [1, { "b": "c|d", "e": "f" }] })");
    EXPECT_EQ(pathOf(place), u"/a/1/b"_s);
    EXPECT_FALSE(place.isKey);
    EXPECT_EQ(place.text, u"cd"_s);
    EXPECT_EQ(place.token.begin, 18);
    EXPECT_EQ(place.token.end, 22);
    EXPECT_THAT(place.texts, ElementsAre(std::pair(u"e"_s, u"f"_s)));
}

TEST(JsonPlace, KnowsAKeyAndWhatStandsBesideAndBehindIt)
{
    const JsonPlace place = placeIn(R"({ "a": { "b": 1, "c|": true, "d": "x" } })");
    EXPECT_EQ(pathOf(place), u"/a"_s);
    EXPECT_TRUE(place.isKey);
    EXPECT_EQ(place.text, u"c"_s);
    EXPECT_TRUE(place.hasColon);
    EXPECT_EQ(place.value.begin, 22);
    EXPECT_THAT(place.keys, ElementsAre(u"b"_s, u"d"_s));
}

TEST(JsonPlace, KnowsWhatBelongsWhereNothingStands)
{
    EXPECT_TRUE(placeIn("{|}").isKey);
    EXPECT_TRUE(placeIn("{\"a\": 1, | }").isKey);
    EXPECT_FALSE(placeIn("{\"a\": | }").isKey);
    EXPECT_EQ(pathOf(placeIn("{\"a\": | }")), u"/a"_s);
    EXPECT_EQ(pathOf(placeIn("{\"a\": [1, |]}")), u"/a/1"_s);
    EXPECT_EQ(pathOf(placeIn("{\"a\": [ | ]}")), u"/a/0"_s);
    EXPECT_EQ(pathOf(placeIn("|")), QString());
    EXPECT_FALSE(placeIn("  | ").isKey);
    EXPECT_FALSE(placeIn("{} | ").token.exists());
}

TEST(JsonPlace, ElementsOfListsStandBesideTheMembersOfTheirObject)
{
    const JsonPlace place = placeIn(R"({ "Category": "Step", "Y": ["a", "|b", "c"] })");
    EXPECT_EQ(pathOf(place), u"/Y/1"_s);
    EXPECT_THAT(place.texts,
                ElementsAre(std::pair(u"Category"_s, u"Step"_s), std::pair(u"Y"_s, u"a"_s), std::pair(u"Y"_s, u"c"_s)));
}

TEST(JsonPlace, AStringWithoutItsEndLeavesTheRestOfTheTextAlone)
{
    const JsonPlace atLineEnd = placeIn("{ \"X\": [{ \"Name\": \"Vol| }],\n\"Y\": 1 }");
    EXPECT_EQ(pathOf(atLineEnd), u"/X/0/Name"_s);
    EXPECT_EQ(atLineEnd.text, u"Vol"_s);
    EXPECT_FALSE(atLineEnd.token.isClosed);

    const JsonPlace before = placeIn(R"({ "Name": "Vol|, "Category": "Step" })");
    EXPECT_EQ(before.text, u"Vol"_s);
    EXPECT_THAT(before.texts, ElementsAre(std::pair(u"Category"_s, u"Step"_s)));

    const JsonPlace lone = placeIn(R"({ "Name": "|, "Category": "Step" })");
    EXPECT_EQ(lone.text, QString());
    EXPECT_EQ(lone.token.end - lone.token.begin, 1);
    EXPECT_THAT(lone.texts, ElementsAre(std::pair(u"Category"_s, u"Step"_s)));
}

TEST(JsonPlace, MissingCommasAndBracketsDoNotConfuseIt)
{
    EXPECT_EQ(pathOf(placeIn("{ \"a\": 1 \"b\": \"|\" }")), u"/b"_s);
    EXPECT_EQ(pathOf(placeIn("{ \"a\": [\"x\" \"y|\"] }")), u"/a/1"_s);
    EXPECT_EQ(pathOf(placeIn("{ \"a\": [{ \"b\": 1 ], \"c\": \"|\" }")), u"/c"_s);
    EXPECT_EQ(pathOf(placeIn("]}{ \"a\": \"|\"")), u"/a"_s);
    EXPECT_TRUE(placeIn("{ \"a\": \"b|\": 1 }").isKey);
}

TEST(JsonPlace, ReadsEscapesAndPassesOverAByteOrderMark)
{
    EXPECT_EQ(placeIn(R"({ "a": "\u0056\"|" })").text, u"V\""_s);
    EXPECT_EQ(placeIn(R"({ "a": "\q|" })").text, QString(u"q"_s)) << "as the application reads it";
    EXPECT_EQ(pathOf(placeIn("\xEF\xBB\xBF{ \"a\": \"|\" }")), u"/a"_s);
    EXPECT_EQ(jsonString(u"a\"b\\\n/µ"_s), "\"a\\\"b\\\\\\n/µ\"");
}

TEST(JsonPlace, WordsWithoutQuotesAreTokens)
{
    const JsonPlace place = placeIn("{ \"a\": tr|u }");
    EXPECT_EQ(place.text, u"tru"_s);
    EXPECT_FALSE(place.token.isString);
}

TEST(JsonPlace, EveryTokenOfTheShippedDocumentIsFoundAtItsBeginAndItsEnd)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s).first(12'000);
    JsonScanner scanner(text);
    int count = 0;
    while (scanner.next()) {
        if (scanner.sign() == 0) {
            const JsonToken token = scanner.token();
            for (const qsizetype offset : {token.begin, token.begin + 1, token.end}) {
                ASSERT_EQ(placeAt(text, offset).token.begin, token.begin) << offset;
            }
            ++count;
        }
    }
    EXPECT_GT(count, 300);
}

TEST(JsonPlace, SurvivesWhateverIsTyped)
{
    Random random(7);
    const QList<QByteArray> pieces{"{",  "}", "[", "]",  ":",    ",",  "\"", "\\", "\"a\"", "1",
                                   "\n", " ", "é", "\0", "\xFF", "'x", "\r", "//", "\\u",   "\xEF\xBB\xBF"};
    for (int round = 0; round < 3000; ++round) {
        QByteArray text;
        const int count = random.below(40);
        for (int i = 0; i < count; ++i) {
            text += random.of(pieces);
        }
        for (qsizetype offset = -1; offset <= text.size() + 1; ++offset) {
            const JsonPlace place = placeAt(text, offset);
            ASSERT_LE(place.token.end, text.size());
            ASSERT_LE(place.token.begin, place.token.end);
        }
    }
}

TEST(JsonPlace, DeepAndLongTextsTakeTimeInProportion)
{
    const auto seconds = [](const QByteArray& text) {
        const auto begin = std::chrono::steady_clock::now();
        placeAt(text, text.size() / 2);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    };
    EXPECT_LT(seconds(QByteArray(500'000, '[')), 5);
    EXPECT_LT(seconds(QByteArray("{\"a\":").repeated(400'000)), 5);
    EXPECT_LT(seconds(QByteArray("\"a ").repeated(700'000)), 5);
    EXPECT_LT(seconds(QByteArray("\"").repeated(2'000'000)), 5);
    EXPECT_LT(seconds(QByteArray("}]").repeated(1'000'000)), 5);
    EXPECT_LT(seconds("[" + QByteArray("{]").repeated(1'000'000)), 5);
    EXPECT_LT(seconds(QByteArray("{").repeated(200'000) + QByteArray("]").repeated(200'000)), 5);
}
