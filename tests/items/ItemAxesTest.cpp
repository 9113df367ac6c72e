#include <items/DQdUAnalysisItem.h>
#include <items/ProcessedDataItem.h>
#include <items/RagonePlotChildItem.h>
#include <items/StatisticsChildItem.h>

#include <axes/Records.h>
#include <support/QtPrinters.h>
#include <support/TestCatalogue.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The axes of the records that name two arrays of the catalogue.
namespace {

const QString NoCombination = described(AxesCombination());

template <typename Item>
class ItemAxes : public testing::Test
{
protected:
    static Item item(const QString& category, const QString& x, const QString& y)
    {
        Item result;
        result.setCategory(category);
        result.setStreamX(x);
        if constexpr (requires { result.setStreamY1(y); }) {
            result.setStreamY1(y);
        } else {
            result.setStreamY(y);
        }
        return result;
    }

    static QString axes(const QString& category, const QString& x, const QString& y)
    {
        return described(item(category, x, y).getAxesCombination());
    }

    TestCatalogue catalogue{
        {u"Time"_s, u"Step"_s},
        {u"Time"_s, u"Cycle"_s},
        {u"Voltage"_s, u"Cycle"_s},
        {u"Charge"_s, u"Step"_s},
    };
};

using Items = testing::Types<DQdUAnalysisItem, ProcessedDataItem, RagonePlotChildItem, StatisticsChildItem>;
TYPED_TEST_SUITE(ItemAxes, Items);

} // namespace

TYPED_TEST(ItemAxes, PairTheTwoArraysOfTheItemsCategoryOnLinearScales)
{
    EXPECT_EQ(this->axes(u"Cycle"_s, u"Time"_s, u"Voltage"_s), u"Time (Cycle) / Voltage (Cycle), linear / linear"_s);
    EXPECT_EQ(this->axes(u"Cycle"_s, u"Voltage"_s, u"Time"_s), u"Voltage (Cycle) / Time (Cycle), linear / linear"_s);
    EXPECT_EQ(this->axes(u"Step"_s, u"Time"_s, u"Charge"_s), u"Time (Step) / Charge (Step), linear / linear"_s);
    EXPECT_EQ(this->axes(u"Step"_s, u"Time"_s, u"Time"_s), u"Time (Step) / Time (Step), linear / linear"_s);
}

TYPED_TEST(ItemAxes, AreInvalidWhenTheCatalogueLacksAnArray)
{
    EXPECT_EQ(this->axes(u"Step"_s, u"Time"_s, u"Voltage"_s), NoCombination);
    EXPECT_EQ(this->axes(u"Step"_s, u"Voltage"_s, u"Time"_s), NoCombination);
    EXPECT_EQ(this->axes(u"Loop"_s, u"Time"_s, u"Time"_s), NoCombination);
    EXPECT_EQ(this->axes(u"cycle"_s, u"Time"_s, u"Time"_s), NoCombination);
    EXPECT_EQ(this->axes(u"Cycle"_s, u"time"_s, u"Time"_s), NoCombination);
    EXPECT_EQ(this->axes(u""_s, u"Time"_s, u"Time"_s), NoCombination);
    EXPECT_EQ(described(TypeParam().getAxesCombination()), NoCombination);
    EXPECT_FALSE(TypeParam().getAxesCombination().isValid());
}

TYPED_TEST(ItemAxes, FollowTheCatalogue)
{
    const TypeParam item = this->item(u"Loop"_s, u"Time"_s, u"Power"_s);
    EXPECT_EQ(described(item.getAxesCombination()), NoCombination);
    {
        const TestCatalogue other{{u"Time"_s, u"Loop"_s}, {u"Power"_s, u"Loop"_s}};
        EXPECT_EQ(described(item.getAxesCombination()), u"Time (Loop) / Power (Loop), linear / linear"_s);
    }
    EXPECT_EQ(described(item.getAxesCombination()), NoCombination);
}

TEST(ProcessedDataItemAxes, IgnoreTheSecondYArrayAndTheProcessedOnes)
{
    const TestCatalogue catalogue{{u"Time"_s, u"Step"_s}, {u"Voltage"_s, u"Step"_s}};
    ProcessedDataItem item;
    item.setCategory(u"Step"_s);
    item.setStreamX(u"Time"_s);
    item.setStreamY2(u"Voltage"_s);
    item.setProcessedStreamsY({u"Voltage"_s});
    EXPECT_EQ(described(item.getAxesCombination()), NoCombination);
    item.setStreamY1(u"Time"_s);
    EXPECT_EQ(described(item.getAxesCombination()), u"Time (Step) / Time (Step), linear / linear"_s);
}
