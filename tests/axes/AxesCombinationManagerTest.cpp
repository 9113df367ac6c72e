#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <config/ConfigRepresentation.h>
#include <support/FakeDataStream.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;
using cl::dataprocess::IDataStream;

namespace {

using Manager = AxesCombinationManager;

static_assert(
    std::is_same_v<decltype(std::declval<const Manager&>().getAxesCombinations()), const QList<AxesCombination>&>);
static_assert(
    std::is_same_v<decltype(std::declval<const Manager&>().getAxesCombinations(QString())), QList<AxesCombination>>);
static_assert(std::is_same_v<decltype(std::declval<Manager&>().append(AxesCombination())), void>);
static_assert(std::is_same_v<decltype(&Manager::getAxesCombination),
                             AxesCombination (Manager::*)(const QString&, const QString&) const>);
static_assert(std::is_same_v<decltype(&Manager::getXAxesNames), QList<QString> (Manager::*)() const>);
static_assert(std::is_same_v<decltype(&Manager::getYAxesNames), QList<QString> (Manager::*)(const QString&) const>);
static_assert(
    std::is_same_v<decltype(&Manager::isRepresentationValid), bool (Manager::*)(const ConfigRepresentation*) const>);
static_assert(std::is_same_v<decltype(&Manager::deleteAll), void (Manager::*)()>);
static_assert(
    std::is_same_v<decltype(&Manager::addCombinationsFromStreams), void (Manager::*)(const QList<IDataStream*>&, int)>);
static_assert(std::is_same_v<decltype(&Manager::removeDuplicates), void (Manager::*)()>);
static_assert(
    std::is_same_v<decltype(&Manager::readAxesCombinations), bool (Manager::*)(const QJsonObject&, QString&)>);
static_assert(std::is_same_v<decltype(&Manager::readAxesCombination), bool (Manager::*)(const QJsonObject&, QString&)>);
static_assert(std::has_virtual_destructor_v<Manager>);
static_assert(std::is_copy_constructible_v<Manager>);
static_assert(std::is_copy_assignable_v<Manager>);

constexpr int AnyVersion = 29;
constexpr int NoIndex = -1;

constexpr auto Linear = QCPAxis::stLinear;
constexpr auto Logarithmic = QCPAxis::stLogarithmic;

Manager managerOf(const QList<AxesCombination>& records)
{
    Manager manager;
    for (const AxesCombination& combination : records) {
        manager.append(combination);
    }
    return manager;
}

/// Voltage and Charge over Time in two categories, Time over Charge, and an invalid record before all of them.
Manager sampleManager()
{
    return managerOf({
        record({u"Time"_s, u"Step"_s}, {u"Nothing"_s, u""_s}),
        record({u"Time"_s, u"Step"_s}, {u"Voltage"_s, u"Step"_s}, Logarithmic, Linear),
        record({u"Time"_s, u"Cycle"_s}, {u"Voltage"_s, u"Cycle"_s}, Linear, Logarithmic, true),
        record({u"Charge"_s, u"Cycle"_s}, {u"Time"_s, u"Cycle"_s}),
        record({u"Time"_s, u"Cycle"_s}, {u"Charge"_s, u"Cycle"_s}),
    });
}

ConfigRepresentation representation(const QString& x, const QString& y1, const QString& y2)
{
    return {u"name"_s, x, y1, y2, u"category"_s, false};
}

bool isValid(const Manager& manager, const QString& x, const QString& y1, const QString& y2)
{
    const ConfigRepresentation candidate = representation(x, y1, y2);
    return manager.isRepresentationValid(&candidate);
}

QJsonObject written(const Manager& manager, QJsonObject object = {})
{
    cl::archive::ArchiveContext context;
    EXPECT_TRUE(manager.write(object, AnyVersion, context));
    return object;
}

void readInto(Manager& manager, const QJsonObject& object)
{
    cl::archive::ArchiveContext context;
    EXPECT_TRUE(manager.read(object, AnyVersion, context));
}

QStringList fromStreams(const QList<IDataStream*>& streams, int index)
{
    Manager manager;
    manager.addCombinationsFromStreams(streams, index);
    return described(manager.getAxesCombinations());
}

} // namespace

TEST(AxesCombinationManager, EmptyManagerAnswersNothing)
{
    Manager manager;
    EXPECT_TRUE(manager.getAxesCombinations().isEmpty());
    EXPECT_TRUE(manager.getAxesCombinations(u"Time"_s).isEmpty());
    EXPECT_TRUE(manager.getXAxesNames().isEmpty());
    EXPECT_TRUE(manager.getYAxesNames(u"Time"_s).isEmpty());
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s)), described(AxesCombination()));
    EXPECT_EQ(described(manager.getAxesCombination(u""_s, u""_s)), described(AxesCombination()));
    EXPECT_FALSE(isValid(manager, u"Time"_s, u"Voltage"_s, u"Charge"_s));
    EXPECT_FALSE(isValid(manager, u""_s, u""_s, u""_s));
    EXPECT_FALSE(manager.isRepresentationValid(nullptr));
    manager.removeDuplicates();
    manager.deleteAll();
    EXPECT_TRUE(manager.getAxesCombinations().isEmpty());
}

TEST(AxesCombinationManager, ListHoldsEveryRecordInTheOrderOfInsertion)
{
    EXPECT_EQ(described(sampleManager().getAxesCombinations()),
              QStringList({
                  u"Time (Step) / Nothing (), linear / linear"_s,
                  u"Time (Step) / Voltage (Step), logarithmic / linear"_s,
                  u"Time (Cycle) / Voltage (Cycle), linear / logarithmic, orthonormal"_s,
                  u"Charge (Cycle) / Time (Cycle), linear / linear"_s,
                  u"Time (Cycle) / Charge (Cycle), linear / linear"_s,
              }));
}

TEST(AxesCombinationManager, PairGivesTheEarliestRecordWhateverItsCategory)
{
    const Manager manager = sampleManager();
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s)),
              u"Time (Step) / Voltage (Step), logarithmic / linear"_s);
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Charge"_s)),
              u"Time (Cycle) / Charge (Cycle), linear / linear"_s);
}

TEST(AxesCombinationManager, UnknownPairGivesADefaultRecord)
{
    const Manager manager = sampleManager();
    for (const auto& [x, y] : QList<std::pair<QString, QString>>{{u"Time"_s, u"Time"_s},
                                                                 {u"Voltage"_s, u"Time"_s},
                                                                 {u"Charge"_s, u"Voltage"_s},
                                                                 {u"time"_s, u"Voltage"_s},
                                                                 {u"Time"_s, u"VOLTAGE"_s},
                                                                 {u"Time "_s, u"Voltage"_s},
                                                                 {u"Time"_s, u""_s},
                                                                 {u""_s, u""_s},
                                                                 {QString(), QString()}}) {
        AxesCombination combination = manager.getAxesCombination(x, y);
        EXPECT_EQ(described(combination), described(AxesCombination()));
        EXPECT_FALSE(combination.isValid());
    }
}

TEST(AxesCombinationManager, AnswersAreCopies)
{
    const Manager manager = sampleManager();
    manager.getAxesCombination(u"Time"_s, u"Voltage"_s).setConfigurationOrthonormal(true);
    manager.getAxesCombinations(u"Time"_s).first().setConfigurationOrthonormal(true);
    manager.getXAxesNames().clear();
    manager.getYAxesNames(u"Time"_s).clear();
    EXPECT_EQ(described(manager.getAxesCombinations()), described(sampleManager().getAxesCombinations()));
    EXPECT_EQ(manager.getXAxesNames().size(), 2);
    EXPECT_EQ(manager.getYAxesNames(u"Time"_s).size(), 2);
}

TEST(AxesCombinationManager, RecordsOfAnXNameComeInListOrder)
{
    const Manager manager = sampleManager();
    EXPECT_EQ(described(manager.getAxesCombinations(u"Time"_s)),
              QStringList({
                  u"Time (Step) / Voltage (Step), logarithmic / linear"_s,
                  u"Time (Cycle) / Voltage (Cycle), linear / logarithmic, orthonormal"_s,
                  u"Time (Cycle) / Charge (Cycle), linear / linear"_s,
              }));
    EXPECT_TRUE(manager.getAxesCombinations(u"Voltage"_s).isEmpty());
    EXPECT_TRUE(manager.getAxesCombinations(u"TIME"_s).isEmpty());
    EXPECT_TRUE(manager.getAxesCombinations(u""_s).isEmpty());
}

TEST(AxesCombinationManager, NamesComeOnceInTheOrderOfTheirFirstOccurrence)
{
    const Manager manager = sampleManager();
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
    EXPECT_EQ(manager.getYAxesNames(u"Time"_s), QStringList({u"Voltage"_s, u"Charge"_s}));
    EXPECT_EQ(manager.getYAxesNames(u"Charge"_s), QStringList({u"Time"_s}));
    EXPECT_TRUE(manager.getYAxesNames(u"Voltage"_s).isEmpty());
    EXPECT_TRUE(manager.getYAxesNames(u"time"_s).isEmpty());
}

TEST(AxesCombinationManager, InvalidRecordsAreInTheListAndInNoAnswer)
{
    Manager manager;
    manager.append(record({u"x1"_s, u"c"_s}, {u"y"_s, u""_s}));
    manager.append(record({u"x2"_s, u""_s}, {u"y"_s, u"c"_s}));
    manager.append(record({u"x3"_s, u"c"_s}, {u""_s, u"c"_s}));
    manager.append(record({u""_s, u"c"_s}, {u"y"_s, u"c"_s}));
    manager.append(AxesCombination());
    EXPECT_EQ(manager.getAxesCombinations().size(), 5);
    EXPECT_TRUE(manager.getXAxesNames().isEmpty());
    for (const QString& x : {u"x1"_s, u"x2"_s, u"x3"_s, u""_s}) {
        EXPECT_TRUE(manager.getAxesCombinations(x).isEmpty());
        EXPECT_TRUE(manager.getYAxesNames(x).isEmpty());
        EXPECT_FALSE(manager.getAxesCombination(x, u"y"_s).isValid());
        EXPECT_FALSE(manager.getAxesCombination(x, u""_s).isValid());
        EXPECT_FALSE(isValid(manager, x, u"y"_s, u""_s));
    }
}

TEST(AxesCombinationManager, RepresentationIsValidWithEitherOfItsYNames)
{
    const Manager manager = sampleManager();
    EXPECT_TRUE(isValid(manager, u"Time"_s, u"Voltage"_s, u"Charge"_s));
    EXPECT_TRUE(isValid(manager, u"Time"_s, u"Voltage"_s, u""_s));
    EXPECT_TRUE(isValid(manager, u"Time"_s, u""_s, u"Voltage"_s));
    EXPECT_TRUE(isValid(manager, u"Time"_s, u"Unknown"_s, u"Charge"_s));
    EXPECT_FALSE(isValid(manager, u"Time"_s, u"Unknown"_s, u""_s));
    EXPECT_FALSE(isValid(manager, u"Time"_s, u""_s, u""_s));
    EXPECT_FALSE(isValid(manager, u"Charge"_s, u"Voltage"_s, u"Charge"_s));
    EXPECT_FALSE(isValid(manager, u"Voltage"_s, u"Time"_s, u"Charge"_s));
    EXPECT_FALSE(isValid(manager, u"time"_s, u"Voltage"_s, u"Charge"_s));
    EXPECT_FALSE(manager.isRepresentationValid(nullptr));
}

TEST(AxesCombinationManager, AppendTakesRepeatedAndInvalidRecordsAndRecordsOfItsOwnList)
{
    Manager manager = managerOf({record({u"x"_s, u"c"_s}, {u"y"_s, u"c"_s}, Logarithmic), AxesCombination()});
    for (int i = 0; i < 100; ++i) {
        manager.append(manager.getAxesCombinations().first());
        manager.append(manager.getAxesCombinations().at(1));
    }
    EXPECT_EQ(manager.getAxesCombinations().size(), 202);
    EXPECT_EQ(described(manager.getAxesCombinations().last()), described(AxesCombination()));
    const QStringList answer = described(manager.getAxesCombinations(u"x"_s));
    EXPECT_EQ(answer, QStringList(101, u"x (c) / y (c), logarithmic / linear"_s));
}

TEST(AxesCombinationManager, DeleteAllForgetsEverything)
{
    Manager manager = sampleManager();
    manager.deleteAll();
    EXPECT_TRUE(manager.getAxesCombinations().isEmpty());
    EXPECT_TRUE(manager.getXAxesNames().isEmpty());
    EXPECT_TRUE(manager.getYAxesNames(u"Time"_s).isEmpty());
    EXPECT_FALSE(manager.getAxesCombination(u"Time"_s, u"Voltage"_s).isValid());

    manager.append(record({u"Time"_s, u"New"_s}, {u"Voltage"_s, u"New"_s}));
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s)),
              u"Time (New) / Voltage (New), linear / linear"_s);
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s}));
}

TEST(AxesCombinationManager, CopiesAreIndependent)
{
    Manager original = sampleManager();
    const Manager constructed(original);
    Manager assigned;
    assigned.append(record({u"gone"_s, u"c"_s}, {u"y"_s, u"c"_s}));
    assigned = original;
    original.deleteAll();
    original.append(record({u"own"_s, u"c"_s}, {u"y"_s, u"c"_s}));
    assigned.append(record({u"more"_s, u"c"_s}, {u"y"_s, u"c"_s}));

    EXPECT_EQ(original.getXAxesNames(), QStringList({u"own"_s}));
    EXPECT_EQ(constructed.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
    EXPECT_EQ(assigned.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s, u"more"_s}));
    EXPECT_EQ(constructed.getAxesCombinations().size(), 5);
    EXPECT_EQ(assigned.getAxesCombinations().size(), 6);
    EXPECT_EQ(described(constructed.getAxesCombination(u"Time"_s, u"Voltage"_s)),
              u"Time (Step) / Voltage (Step), logarithmic / linear"_s);
    EXPECT_FALSE(constructed.getAxesCombination(u"own"_s, u"y"_s).isValid());
}

TEST(AxesCombinationManager, AssignmentToItselfChangesNothing)
{
    Manager manager = sampleManager();
    const Manager& same = manager;
    manager = same;
    EXPECT_EQ(described(manager.getAxesCombinations()), described(sampleManager().getAxesCombinations()));
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
}

TEST(AxesCombinationManager, OfDuplicatesTheFirstStaysWithItsOwnScalesAndFlag)
{
    Manager manager = managerOf({
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}, Logarithmic, Linear, true),
        record({u"Time"_s, u"c"_s}, {u"Charge"_s, u"c"_s}),
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}, Linear, Logarithmic, false),
        record({u"Time"_s, u"c"_s}, {u"Charge"_s, u"c"_s}, Logarithmic),
        record({u"Time"_s, u"c"_s}, {u"Voltage"_s, u"c"_s}),
    });
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s)),
              u"Time (c) / Voltage (c), logarithmic / linear, orthonormal"_s);
    manager.removeDuplicates();
    EXPECT_EQ(described(manager.getAxesCombinations()),
              QStringList({
                  u"Time (c) / Voltage (c), logarithmic / linear, orthonormal"_s,
                  u"Time (c) / Charge (c), linear / linear"_s,
              }));
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s)),
              u"Time (c) / Voltage (c), logarithmic / linear, orthonormal"_s);
}

TEST(AxesCombinationManager, EqualNamesInOtherCategoriesOrOtherCaseAreNoDuplicates)
{
    Manager manager = managerOf({
        record({u"Time"_s, u"b"_s}, {u"Voltage"_s, u"b"_s}),
        record({u"Time"_s, u"a"_s}, {u"Voltage"_s, u"a"_s}),
        record({u"TIME"_s, u"a"_s}, {u"Voltage"_s, u"a"_s}),
    });
    const QStringList before = described(manager.getAxesCombinations());
    manager.removeDuplicates();
    EXPECT_EQ(described(manager.getAxesCombinations()), before);
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"TIME"_s}));
    EXPECT_EQ(described(manager.getAxesCombination(u"Time"_s, u"Voltage"_s)),
              u"Time (b) / Voltage (b), linear / linear"_s);
}

// Known and relied upon: duplicates are told by their text key, in which blanks separate.
TEST(AxesCombinationManager, AnotherSplitOfTheSameWordsIsADuplicate)
{
    Manager manager = managerOf({
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

TEST(AxesCombinationManager, RemoveDuplicatesRemovesEveryInvalidRecord)
{
    Manager manager = managerOf({
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

TEST(AxesCombinationManager, RemoveDuplicatesLeavesCopiesAlone)
{
    Manager manager = sampleManager();
    const Manager copy(manager);
    const QList<AxesCombination> list = manager.getAxesCombinations();
    manager.append(list.at(1));
    manager.removeDuplicates();
    EXPECT_EQ(manager.getAxesCombinations().size(), 4);
    EXPECT_EQ(copy.getAxesCombinations().size(), 5);
    EXPECT_EQ(list.size(), 5);
}

TEST(AxesCombinationManager, TwoStreamsGiveFourCombinations)
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

TEST(AxesCombinationManager, StreamsAreAppendedWithoutAnyCheck)
{
    FakeDataStream time(u"Time"_s, u"Step"_s);
    FakeDataStream nameless(u""_s, u"Step"_s);
    Manager manager = sampleManager();
    manager.addCombinationsFromStreams({&time, &time, &nameless}, NoIndex);
    EXPECT_EQ(manager.getAxesCombinations().size(), 5 + 9);
    EXPECT_EQ(described(manager.getAxesCombinations(u"Time"_s)).mid(3),
              QStringList(4, u"Time (Step) / Time (Step), linear / linear"_s));
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
    manager.removeDuplicates();
    EXPECT_EQ(manager.getAxesCombinations().size(), 5);
}

TEST(AxesCombinationManager, WithoutAnIndexNoStreamIsAskedForOne)
{
    FakeDataStream empty(u"Time"_s, u"a"_s, 0, {});
    FakeDataStream full(u"Voltage"_s, u"a"_s, 3, {0, 1, 2});
    EXPECT_EQ(fromStreams({&empty, &full}, NoIndex).size(), 4);
    EXPECT_EQ(empty.indexTests(), 0);
    EXPECT_EQ(full.indexTests(), 0);
}

TEST(AxesCombinationManager, StreamThatRefusesTheIndexTakesNoPart)
{
    FakeDataStream with(u"Time"_s, u"a"_s, 3, {1});
    FakeDataStream without(u"Voltage"_s, u"a"_s, 3, {0, 2});
    EXPECT_EQ(fromStreams({&without, &with}, 1), QStringList({u"Time (a) / Time (a), linear / linear"_s}));
}

TEST(AxesCombinationManager, StreamWhoseCountIsNotAboveTheIndexServesAsYOnly)
{
    FakeDataStream shortStream(u"Time"_s, u"a"_s, 2, {2});
    FakeDataStream longStream(u"Voltage"_s, u"a"_s, 3, {2});
    EXPECT_EQ(fromStreams({&shortStream, &longStream}, 2),
              QStringList({
                  u"Voltage (a) / Time (a), linear / linear"_s,
                  u"Voltage (a) / Voltage (a), linear / linear"_s,
              }));
}

TEST(AxesCombinationManager, CountIsComparedAsASignedNumber)
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

TEST(AxesCombinationManager, WritesTheIdentitiesOfEveryRecordInOrder)
{
    const Manager manager = managerOf({
        record({u"Time"_s, u"a"_s}, {u"Voltage"_s, u"b"_s}, Logarithmic, Logarithmic, true),
        AxesCombination(),
    });
    EXPECT_EQ(written(manager), jsonObject(R"({"axesCombinations": [
        {
            "axesCombinationFirst": {"name": "Time", "category": "a"},
            "axesCombinationSecond": {"name": "Voltage", "category": "b"}
        },
        {
            "axesCombinationFirst": {"name": "", "category": ""},
            "axesCombinationSecond": {"name": "", "category": ""}
        }
    ]})"));
    EXPECT_EQ(written(Manager()), jsonObject(R"({"axesCombinations": []})"));
    EXPECT_EQ(written(Manager(), jsonObject(R"({"axesCombinations": 1, "other": 2})")),
              jsonObject(R"({"axesCombinations": [], "other": 2})"));
}

TEST(AxesCombinationManager, WriteThenReadKeepsIdentitiesAndOrderButNoScales)
{
    Manager manager = managerOf({record({u"gone"_s, u"c"_s}, {u"y"_s, u"c"_s})});
    readInto(manager, written(sampleManager()));
    EXPECT_EQ(described(manager.getAxesCombinations()),
              QStringList({
                  u"Time (Step) / Nothing (), linear / linear"_s,
                  u"Time (Step) / Voltage (Step), linear / linear"_s,
                  u"Time (Cycle) / Voltage (Cycle), linear / linear"_s,
                  u"Charge (Cycle) / Time (Cycle), linear / linear"_s,
                  u"Time (Cycle) / Charge (Cycle), linear / linear"_s,
              }));
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
    EXPECT_FALSE(manager.getAxesCombination(u"gone"_s, u"y"_s).isValid());
}

TEST(AxesCombinationManager, ReadAndWriteDoNotDependOnTheVersion)
{
    cl::archive::ArchiveContext context;
    for (const int version : {-1, 0, 29, 1000}) {
        QJsonObject object;
        EXPECT_TRUE(sampleManager().write(object, version, context));
        EXPECT_EQ(object, written(sampleManager()));
        Manager manager;
        EXPECT_TRUE(manager.read(object, version, context));
        EXPECT_EQ(manager.getAxesCombinations(), sampleManager().getAxesCombinations());
    }
}

TEST(AxesCombinationManager, ReadWithoutAListEmptiesTheManager)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Array)) {
        QJsonObject object;
        object.insert(u"axesCombinations"_s, value);
        Manager manager = sampleManager();
        readInto(manager, object);
        EXPECT_TRUE(manager.getAxesCombinations().isEmpty());
        EXPECT_TRUE(manager.getXAxesNames().isEmpty());
    }
}

TEST(AxesCombinationManager, ReadStopsAtTheFirstRecordThatFails)
{
    const QJsonObject good = written(sampleManager()).value(u"axesCombinations"_s).toArray().at(1).toObject();
    const QJsonObject halfGood{{u"axesCombinationFirst"_s, good.value(u"axesCombinationFirst"_s)}};
    for (const QJsonValue& bad : {QJsonValue(halfGood), QJsonValue(QJsonObject()), QJsonValue(3), QJsonValue()}) {
        Manager manager = sampleManager();
        readInto(manager, {{u"axesCombinations"_s, QJsonArray{good, good, bad, good}}});
        EXPECT_EQ(described(manager.getAxesCombinations()),
                  QStringList(2, u"Time (Step) / Voltage (Step), linear / linear"_s));
    }
}

#if HAVE_VIRTUAL_SLOTS
TEST(AxesCombinationManager, VirtualOperationsAreDestructorReadWrite)
{
    EXPECT_EQ(virtualSlot(&Manager::read), 2U);
    EXPECT_EQ(virtualSlot(&Manager::write), 3U);
    EXPECT_EQ(virtualSlots<Manager>(), 4U);
}
#endif
