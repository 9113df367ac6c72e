#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Linear = QCPAxis::stLinear;
constexpr auto Logarithmic = QCPAxis::stLogarithmic;

/// The record that \p manager gives for these two names.
QString timeAndVoltage(const AxesCombinationManager& manager)
{
    return described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s));
}

} // namespace

TEST(AxesCombinationDuplicates, OfDuplicatesTheFirstStaysWithItsOwnScalesAndFlag)
{
    AxesCombinationManager manager = managerOf({
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}, Logarithmic, Linear, true),
        record({u"Time"_s, u"c"_s}, {u"Charge"_s, u"c"_s}),
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}, Linear, Logarithmic, false),
        record({u"Time"_s, u"c"_s}, {u"Charge"_s, u"c"_s}, Logarithmic),
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}),
    });
    EXPECT_EQ(timeAndVoltage(manager), u"Time (c) / Voltage (c), logarithmic / linear, orthonormal"_s);
    manager.removeDuplicates();
    EXPECT_EQ(described(manager.getAxesCombinations()),
              QStringList({
                  u"Time (c) / Voltage (c), logarithmic / linear, orthonormal"_s,
                  u"Time (c) / Charge (c), linear / linear"_s,
              }));
    EXPECT_EQ(timeAndVoltage(manager), u"Time (c) / Voltage (c), logarithmic / linear, orthonormal"_s);
}

TEST(AxesCombinationDuplicates, EqualNamesInOtherCategoriesOrOtherCaseAreNoDuplicates)
{
    AxesCombinationManager manager = managerOf({
        record({u"Time"_s, u"b"_s}, {u"Voltage"_s, u"b"_s}),
        record({u"Time"_s, u"a"_s}, {u"Voltage"_s, u"a"_s}),
        record({u"TIME"_s, u"a"_s}, {u"Voltage"_s, u"a"_s}),
    });
    const QStringList before = described(manager.getAxesCombinations());
    manager.removeDuplicates();
    EXPECT_EQ(described(manager.getAxesCombinations()), before);
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"TIME"_s}));
    EXPECT_EQ(timeAndVoltage(manager), u"Time (b) / Voltage (b), linear / linear"_s);
}

// Known and relied upon: duplicates are told by their text key, in which blanks separate.
TEST(AxesCombinationDuplicates, AnotherSplitOfTheSameWordsIsADuplicate)
{
    AxesCombinationManager manager = managerOf({
        record({u"Step Time"_s, u"Cell"_s}, {u"y"_s, u"c"_s}),
        record({u"Time"_s, u"Cell Step"_s}, {u"y"_s, u"c"_s}),
        record({u"Time"_s, u"Cell Step"_s}, {u"y c"_s, u"c"_s}),
        record({u"Time c"_s, u"Cell Step"_s}, {u"c"_s, u"y"_s}),
    });
    manager.removeDuplicates();
    EXPECT_EQ(described(manager.getAxesCombinations()),
              QStringList({
                  u"Step Time (Cell) / y (c), linear / linear"_s,
                  u"Time (Cell Step) / y c (c), linear / linear"_s,
              }));
    EXPECT_FALSE(manager.getAxesCombination(u"Time"_s, u"y"_s).isValid());
}

TEST(AxesCombinationDuplicates, RemoveDuplicatesRemovesEveryInvalidRecord)
{
    AxesCombinationManager manager = managerOf({
        AxesCombination(),
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u""_s}),
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}),
        record({u""_s, u"Time c"_s}, {u"Voltage"_s, u"c"_s}),
    });
    manager.removeDuplicates();
    EXPECT_EQ(described(manager.getAxesCombinations()), QStringList({u"Time (c) / Voltage (c), linear / linear"_s}));
    manager.append(record({u"Time"_s, u"c"_s}, {u"Charge"_s, u"c"_s}));
    EXPECT_EQ(manager.getYAxesNames(u"Time"_s), QStringList({u"Voltage"_s, u"Charge"_s}));
}

TEST(AxesCombinationDuplicates, RemoveDuplicatesLeavesCopiesAlone)
{
    AxesCombinationManager manager = sampleManager();
    const AxesCombinationManager copy(manager);
    const QList<AxesCombination> list = manager.getAxesCombinations();
    manager.append(list.at(1));
    manager.removeDuplicates();
    EXPECT_EQ(manager.getAxesCombinations().size(), 4);
    EXPECT_EQ(copy.getAxesCombinations().size(), 5);
    EXPECT_EQ(list.size(), 5);
}
