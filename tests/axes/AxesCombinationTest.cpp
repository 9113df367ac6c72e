#include <axes/AxesCombination.h>

#include <axes/Records.h>
#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using namespace Qt::StringLiterals;
using cl::datastorage::DataArrayIdentifier;

namespace {

using IdentifierGetter = const DataArrayIdentifier& (AxesCombination::*)() const;

static_assert(std::is_same_v<decltype(&AxesCombination::getConfigX), IdentifierGetter>);
static_assert(std::is_same_v<decltype(&AxesCombination::getConfigY), IdentifierGetter>);
static_assert(std::is_same_v<decltype(&AxesCombination::getDefaultScaleX), QCPAxis::ScaleType (AxesCombination::*)()>);
static_assert(std::is_same_v<decltype(&AxesCombination::getDefaultScaleY), QCPAxis::ScaleType (AxesCombination::*)()>);
static_assert(!std::is_invocable_v<decltype(&AxesCombination::getDefaultScaleX), const AxesCombination&>);
static_assert(!std::is_invocable_v<decltype(&AxesCombination::getDefaultScaleY), const AxesCombination&>);
static_assert(std::is_same_v<decltype(&AxesCombination::getDataStreamCombination),
                             DataStreamCombination (AxesCombination::*)() const>);
static_assert(std::has_virtual_destructor_v<AxesCombination>);

AxesCombination sample()
{
    return record({u"Time"_s, u"Step"_s}, {u"Voltage"_s, u"Cycle"_s}, QCPAxis::stLogarithmic, QCPAxis::stLinear, true);
}

QJsonObject sampleObject()
{
    return jsonObject(R"({
        "axesCombinationFirst": {"name": "Time", "category": "Step"},
        "axesCombinationSecond": {"name": "Voltage", "category": "Cycle"}
    })");
}

} // namespace

TEST(AxesCombination, DefaultConstructedIsEmptyLinearAndNotOrthonormal)
{
    AxesCombination combination;
    EXPECT_EQ(combination.getConfigX().getName(), QString());
    EXPECT_EQ(combination.getConfigX().getCategory(), QString());
    EXPECT_EQ(combination.getConfigY().getName(), QString());
    EXPECT_EQ(combination.getConfigY().getCategory(), QString());
    EXPECT_EQ(combination.getDefaultScaleX(), QCPAxis::stLinear);
    EXPECT_EQ(combination.getDefaultScaleY(), QCPAxis::stLinear);
    EXPECT_FALSE(combination.isOrthonormal());
}

TEST(AxesCombination, DefaultConstructedIsNotValidAndItsKeyIsThreeBlanks)
{
    EXPECT_FALSE(AxesCombination().isValid());
    EXPECT_EQ(AxesCombination().getDataStreamCombination().toString(), u"   "_s);
}

TEST(AxesCombination, ConstructorTakesXBeforeY)
{
    AxesCombination combination = sample();
    EXPECT_EQ(combination.getConfigX().getName(), u"Time"_s);
    EXPECT_EQ(combination.getConfigX().getCategory(), u"Step"_s);
    EXPECT_EQ(combination.getConfigY().getName(), u"Voltage"_s);
    EXPECT_EQ(combination.getConfigY().getCategory(), u"Cycle"_s);
    EXPECT_EQ(combination.getDefaultScaleX(), QCPAxis::stLogarithmic);
    EXPECT_EQ(combination.getDefaultScaleY(), QCPAxis::stLinear);
    EXPECT_TRUE(combination.isOrthonormal());
}

TEST(AxesCombination, ScalesHaveTheValuesZeroAndOne)
{
    EXPECT_EQ(static_cast<int>(QCPAxis::stLinear), 0);
    EXPECT_EQ(static_cast<int>(QCPAxis::stLogarithmic), 1);
}

TEST(AxesCombination, SettersReplaceOneValueEach)
{
    AxesCombination combination = sample();
    combination.setDefaultScaleX(QCPAxis::stLinear);
    EXPECT_EQ(described(combination), u"Time (Step) / Voltage (Cycle), linear / linear, orthonormal"_s);
    combination.setDefaultScaleY(QCPAxis::stLogarithmic);
    EXPECT_EQ(described(combination), u"Time (Step) / Voltage (Cycle), linear / logarithmic, orthonormal"_s);
    combination.setConfigurationOrthonormal(false);
    EXPECT_EQ(described(combination), u"Time (Step) / Voltage (Cycle), linear / logarithmic"_s);
}

TEST(AxesCombination, CopiesCarryEveryValueAndAreIndependent)
{
    AxesCombination original = sample();
    const AxesCombination constructed(original);
    AxesCombination assigned;
    assigned = original;
    original = AxesCombination();
    EXPECT_EQ(described(constructed), described(sample()));
    EXPECT_EQ(described(assigned), described(sample()));
    EXPECT_EQ(described(original), described(AxesCombination()));
}

TEST(AxesCombination, PairingHasTheFourTextsInTheirPlaces)
{
    const DataStreamCombination pairing = sample().getDataStreamCombination();
    EXPECT_EQ(pairing.getXName(), u"Time"_s);
    EXPECT_EQ(pairing.getXCategory(), u"Step"_s);
    EXPECT_EQ(pairing.getYName(), u"Voltage"_s);
    EXPECT_EQ(pairing.getYCategory(), u"Cycle"_s);
    EXPECT_EQ(pairing.toString(), u"Step Time Cycle Voltage"_s);
}

TEST(AxesCombination, ValidNeedsAllFourTextsAndNothingElse)
{
    EXPECT_TRUE(record({u"x"_s, u"c"_s}, {u"y"_s, u"d"_s}).isValid());
    EXPECT_TRUE(record({u" "_s, u" "_s}, {u" "_s, u" "_s}).isValid());
    EXPECT_TRUE(sample().isValid());
    EXPECT_FALSE(record({u""_s, u"c"_s}, {u"y"_s, u"d"_s}).isValid());
    EXPECT_FALSE(record({u"x"_s, u""_s}, {u"y"_s, u"d"_s}).isValid());
    EXPECT_FALSE(record({u"x"_s, u"c"_s}, {u""_s, u"d"_s}).isValid());
    EXPECT_FALSE(record({u"x"_s, u"c"_s}, {u"y"_s, u""_s}).isValid());
}

TEST(AxesCombination, EqualityIgnoresScalesAndFlag)
{
    const AxesCombination plain = record({u"Time"_s, u"Step"_s}, {u"Voltage"_s, u"Cycle"_s});
    EXPECT_NE(described(sample()), described(plain));
    EXPECT_TRUE(sample() == plain);
    EXPECT_TRUE(AxesCombination() == AxesCombination());
}

TEST(AxesCombination, EqualityComparesEachTextExactly)
{
    const std::array<AxesCombination, 8> others{
        record({u"time"_s, u"Step"_s}, {u"Voltage"_s, u"Cycle"_s}),
        record({u"Time"_s, u"STEP"_s}, {u"Voltage"_s, u"Cycle"_s}),
        record({u"Time"_s, u"Step"_s}, {u"VOLTAGE"_s, u"Cycle"_s}),
        record({u"Time"_s, u"Step"_s}, {u"Voltage"_s, u"cycle"_s}),
        record({u"Time "_s, u"Step"_s}, {u"Voltage"_s, u"Cycle"_s}),
        record({u"Time"_s, u""_s}, {u"Voltage"_s, u"Cycle"_s}),
        record({u"Voltage"_s, u"Cycle"_s}, {u"Time"_s, u"Step"_s}),
        record({u"Step"_s, u"Time"_s}, {u"Cycle"_s, u"Voltage"_s}),
    };
    for (const AxesCombination& other : others) {
        EXPECT_FALSE(sample() == other) << described(other).toStdString();
        EXPECT_FALSE(other == sample()) << described(other).toStdString();
    }
}

// Unlike the text key, equality keeps names and categories apart.
TEST(AxesCombination, EqualityTellsAnotherSplitOfTheSameWords)
{
    const AxesCombination longName = record({u"Step Time"_s, u"Cell"_s}, {u"y"_s, u"c"_s});
    const AxesCombination longCategory = record({u"Time"_s, u"Cell Step"_s}, {u"y"_s, u"c"_s});
    EXPECT_EQ(longName.getDataStreamCombination().toString(), longCategory.getDataStreamCombination().toString());
    EXPECT_FALSE(longName == longCategory);
}

TEST(AxesCombination, WritesTheTwoIdentitiesAndNothingElse)
{
    EXPECT_EQ(written(sample()), sampleObject());
    EXPECT_EQ(written(AxesCombination()), jsonObject(R"({
        "axesCombinationFirst": {"name": "", "category": ""},
        "axesCombinationSecond": {"name": "", "category": ""}
    })"));
}

TEST(AxesCombination, WriteOverwritesItsKeysAndLeavesOthersInPlace)
{
    QJsonObject expected = sampleObject();
    expected.insert(u"other"_s, 1);
    EXPECT_EQ(written(sample(), jsonObject(R"({"other": 1, "axesCombinationFirst": {"name": "", "more": 2}})")),
              expected);
}

TEST(AxesCombination, WriteThenReadLosesScalesAndFlag)
{
    AxesCombination combination;
    EXPECT_TRUE(readInto(combination, written(sample())));
    EXPECT_EQ(described(combination), u"Time (Step) / Voltage (Cycle), linear / linear"_s);
}

TEST(AxesCombination, ReadKeepsTheScalesAndTheFlagOfTheRecord)
{
    AxesCombination combination =
        record({u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}, QCPAxis::stLinear, QCPAxis::stLogarithmic, true);
    EXPECT_TRUE(readInto(combination, sampleObject()));
    EXPECT_EQ(described(combination), u"Time (Step) / Voltage (Cycle), linear / logarithmic, orthonormal"_s);
}

TEST(AxesCombination, ReadAndWriteDoNotDependOnTheVersion)
{
    for (const int version : {-1, 0, 29, 1000}) {
        EXPECT_EQ(written(sample(), {}, version), sampleObject());
        AxesCombination combination;
        EXPECT_TRUE(readInto(combination, sampleObject(), version));
        EXPECT_TRUE(combination == sample());
    }
}

TEST(AxesCombination, ReadThatFailsAtXLeavesTheRecordAlone)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Object)) {
        QJsonObject object = jsonObject(R"({"axesCombinationSecond": {"name": "new", "category": "new"}})");
        object.insert(u"axesCombinationFirst"_s, value);
        AxesCombination combination = sample();
        EXPECT_FALSE(readInto(combination, object));
        EXPECT_EQ(described(combination), described(sample()));
    }
}

TEST(AxesCombination, ReadThatFailsAtYHasReplacedX)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Object)) {
        QJsonObject object = jsonObject(R"({"axesCombinationFirst": {"name": "new", "category": "fresh"}})");
        object.insert(u"axesCombinationSecond"_s, value);
        AxesCombination combination = sample();
        EXPECT_FALSE(readInto(combination, object));
        EXPECT_EQ(described(combination), u"new (fresh) / Voltage (Cycle), logarithmic / linear, orthonormal"_s);
    }
}

#if HAVE_VIRTUAL_SLOTS
TEST(AxesCombination, VirtualOperationsAreDestructorReadWrite)
{
    EXPECT_EQ(virtualSlot(&AxesCombination::read), 2U);
    EXPECT_EQ(virtualSlot(&AxesCombination::write), 3U);
    EXPECT_EQ(virtualSlots<AxesCombination>(), 4U);
}
#endif
