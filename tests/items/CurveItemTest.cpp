#include <items/RagonePlotChildItem.h>
#include <items/StatisticsChildItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <type_traits>

using namespace Qt::StringLiterals;

// The curves of statistics graphs and of Ragone plots: the same five texts, and two flags of the first alone.
namespace {

template <typename Curve>
class CurveItem : public testing::Test
{
protected:
    using Getter = const QString& (Curve::*)() const;

    static_assert(std::is_same_v<decltype(&Curve::getTitle), Getter>);
    static_assert(std::is_same_v<decltype(&Curve::getCategory), Getter>);
    static_assert(std::is_same_v<decltype(&Curve::getStreamX), Getter>);
    static_assert(std::is_same_v<decltype(&Curve::getStreamY), Getter>);
    static_assert(std::is_same_v<decltype(&Curve::getType), Getter>);
    static_assert(std::is_same_v<decltype(&Curve::getAxesCombination), AxesCombination (Curve::*)() const>);

    static QStringList texts(const Curve& curve)
    {
        return {curve.getTitle(), curve.getCategory(), curve.getStreamX(), curve.getStreamY(), curve.getType()};
    }
};

using Curves = testing::Types<StatisticsChildItem, RagonePlotChildItem>;
TYPED_TEST_SUITE(CurveItem, Curves);

QList<bool> flags(const StatisticsChildItem& curve)
{
    return {curve.getIsStatisticsEnvelope(), curve.getIsStatisticsErrorBars()};
}

} // namespace

TYPED_TEST(CurveItem, DefaultConstructedIsEmpty)
{
    EXPECT_EQ(this->texts(TypeParam()), QStringList(5, u""_s));
}

TYPED_TEST(CurveItem, SettersReplaceOneTextEach)
{
    TypeParam curve;
    curve.setTitle(u"t"_s);
    EXPECT_EQ(this->texts(curve), QStringList({u"t"_s, u""_s, u""_s, u""_s, u""_s}));
    curve.setCategory(u"c"_s);
    EXPECT_EQ(this->texts(curve), QStringList({u"t"_s, u"c"_s, u""_s, u""_s, u""_s}));
    curve.setStreamX(u"x"_s);
    EXPECT_EQ(this->texts(curve), QStringList({u"t"_s, u"c"_s, u"x"_s, u""_s, u""_s}));
    curve.setStreamY(u"y"_s);
    EXPECT_EQ(this->texts(curve), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y"_s, u""_s}));
    curve.setType(u"k"_s);
    EXPECT_EQ(this->texts(curve), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y"_s, u"k"_s}));
}

TYPED_TEST(CurveItem, ReadsItsArchiveKeys)
{
    TypeParam curve;
    EXPECT_TRUE(
        readInto(curve, jsonObject(R"({"title": "t", "category": "c", "streamX": "x", "streamY": "y", "type": "k"})")));
    EXPECT_EQ(this->texts(curve), QStringList({u"t"_s, u"c"_s, u"x"_s, u"y"_s, u"k"_s}));
}

TEST(StatisticsChildItem, FlagsAreFalseUntilTheyAreSet)
{
    StatisticsChildItem curve;
    EXPECT_EQ(flags(curve), QList<bool>({false, false}));
    curve.setIsStatisticsEnvelope(true);
    EXPECT_EQ(flags(curve), QList<bool>({true, false}));
    curve.setIsStatisticsErrorBars(true);
    curve.setIsStatisticsEnvelope(false);
    EXPECT_EQ(flags(curve), QList<bool>({false, true}));
    const StatisticsChildItem copy(curve);
    EXPECT_EQ(flags(copy), QList<bool>({false, true}));
}

TEST(StatisticsChildItem, EachFlagHasAnArchiveKey)
{
    StatisticsChildItem curve;
    EXPECT_TRUE(readInto(curve, jsonObject(R"({"isStatisticsEnvelope": true})")));
    EXPECT_EQ(flags(curve), QList<bool>({true, false}));
    EXPECT_TRUE(readInto(curve, jsonObject(R"({"isStatisticsErrorBars": true})")));
    EXPECT_EQ(flags(curve), QList<bool>({false, true}));
    const QJsonObject object = written(curve);
    EXPECT_EQ(object.value(u"isStatisticsEnvelope"_s), QJsonValue(false));
    EXPECT_EQ(object.value(u"isStatisticsErrorBars"_s), QJsonValue(true));
}
