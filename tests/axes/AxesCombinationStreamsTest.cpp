#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <support/FakeDataStream.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using cl::dataprocess::IDataStream;

namespace {

constexpr int NoIndex = -1;

QStringList fromStreams(const QList<IDataStream*>& streams, int index)
{
    AxesCombinationManager manager;
    manager.addCombinationsFromStreams(streams, index);
    return described(manager.getAxesCombinations());
}

} // namespace

TEST(AxesCombinationStreams, TwoStreamsGiveFourCombinations)
{
    FakeDataStream time(u"Time"_s, u"a"_s);
    FakeDataStream voltage(u"Voltage"_s, u"b"_s);
    EXPECT_EQ(fromStreams({&time, &voltage}, NoIndex),
              QStringList({
                  u"Time (a) / Time (a), linear / linear"_s,
                  u"Time (a) / Voltage (b), linear / linear"_s,
                  u"Voltage (b) / Time (a), linear / linear"_s,
                  u"Voltage (b) / Voltage (b), linear / linear"_s,
              }));
    EXPECT_TRUE(fromStreams({}, NoIndex).isEmpty());
    EXPECT_TRUE(fromStreams({}, 0).isEmpty());
}

TEST(AxesCombinationStreams, StreamsAreAppendedWithoutAnyCheck)
{
    FakeDataStream time(u"Time"_s, u"Step"_s);
    FakeDataStream nameless(u""_s, u"Step"_s);
    AxesCombinationManager manager = sampleManager();
    manager.addCombinationsFromStreams({&time, &time, &nameless}, NoIndex);
    EXPECT_EQ(manager.getAxesCombinations().size(), 5 + 9);
    EXPECT_EQ(described(manager.getAxesCombinations(u"Time"_s)).mid(3),
              QStringList(4, u"Time (Step) / Time (Step), linear / linear"_s));
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
    manager.removeDuplicates();
    EXPECT_EQ(manager.getAxesCombinations().size(), 5);
}

TEST(AxesCombinationStreams, WithoutAnIndexNoStreamIsAskedForOne)
{
    FakeDataStream empty(u"Time"_s, u"a"_s, 0, {});
    FakeDataStream full(u"Voltage"_s, u"a"_s, 3, {0, 1, 2});
    EXPECT_EQ(fromStreams({&empty, &full}, NoIndex).size(), 4);
    EXPECT_EQ(empty.indexTests(), 0);
    EXPECT_EQ(full.indexTests(), 0);
}

TEST(AxesCombinationStreams, StreamThatRefusesTheIndexTakesNoPart)
{
    FakeDataStream with(u"Time"_s, u"a"_s, 3, {1});
    FakeDataStream without(u"Voltage"_s, u"a"_s, 3, {0, 2});
    EXPECT_EQ(fromStreams({&without, &with}, 1), QStringList({u"Time (a) / Time (a), linear / linear"_s}));
}

TEST(AxesCombinationStreams, StreamWhoseCountIsNotAboveTheIndexServesAsYOnly)
{
    FakeDataStream shortStream(u"Time"_s, u"a"_s, 2, {2});
    FakeDataStream longStream(u"Voltage"_s, u"a"_s, 3, {2});
    EXPECT_EQ(fromStreams({&shortStream, &longStream}, 2),
              QStringList({
                  u"Voltage (a) / Time (a), linear / linear"_s,
                  u"Voltage (a) / Voltage (a), linear / linear"_s,
              }));
}

TEST(AxesCombinationStreams, NoStreamIsAskedForAnIndexThatIsBelowNoCount)
{
    FakeDataStream shortStream(u"Time"_s, u"a"_s, 2, {2});
    FakeDataStream otherStream(u"Voltage"_s, u"a"_s, 1, {2});
    EXPECT_EQ(fromStreams({&shortStream, &otherStream}, 2), QStringList());
    EXPECT_EQ(shortStream.indexTests(), 0);
    EXPECT_EQ(otherStream.indexTests(), 0);
}

TEST(AxesCombinationStreams, CountIsComparedAsASignedNumber)
{
    FakeDataStream negative(u"Time"_s, u"a"_s, -1, {-2});
    FakeDataStream empty(u"Voltage"_s, u"a"_s, 0, {-2});
    EXPECT_EQ(fromStreams({&negative, &empty}, NoIndex),
              QStringList({
                  u"Voltage (a) / Time (a), linear / linear"_s,
                  u"Voltage (a) / Voltage (a), linear / linear"_s,
              }));
    // Only −1 means no index: every other number is put to the streams.
    EXPECT_EQ(fromStreams({&negative, &empty}, -2).size(), 4);
    EXPECT_EQ(fromStreams({&negative, &empty}, -3).size(), 0);
}
