#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <config/ConfigRepresentation.h>
#include <support/QtPrinters.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Manager = AxesCombinationManager;

static_assert(
    std::is_same_v<decltype(std::declval<const Manager&>().getAxesCombinations()), const QList<AxesCombination>&>);
static_assert(
    std::is_same_v<decltype(std::declval<const Manager&>().getAxesCombinations(QString())), QList<AxesCombination>>);
static_assert(std::is_same_v<decltype(&Manager::getAxesCombination),
                             AxesCombination (Manager::*)(const QString&, const QString&) const>);
static_assert(std::is_same_v<decltype(&Manager::getXAxesNames), QList<QString> (Manager::*)() const>);
static_assert(std::is_same_v<decltype(&Manager::getYAxesNames), QList<QString> (Manager::*)(const QString&) const>);
static_assert(std::has_virtual_destructor_v<Manager>);

ConfigRepresentation representation(const QString& x, const QString& y1, const QString& y2)
{
    return {u"name"_s, x, y1, y2, u"category"_s, false};
}

bool isValid(const Manager& manager, const QString& x, const QString& y1, const QString& y2)
{
    const ConfigRepresentation candidate = representation(x, y1, y2);
    return manager.isRepresentationValid(&candidate);
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

// The answers are taken by reference, which would follow the manager if they were its own.
TEST(AxesCombinationManager, AnswersStayAsTheyAreWhenTheManagerChanges)
{
    Manager manager = sampleManager();
    const auto& pair = manager.getAxesCombination(u"Time"_s, u"Voltage"_s);
    const auto& records = manager.getAxesCombinations(u"Time"_s);
    const auto& xNames = manager.getXAxesNames();
    const auto& yNames = manager.getYAxesNames(u"Time"_s);
    const auto expectAnswersOfTheSample = [&](const char* change) {
        EXPECT_EQ(described(pair), u"Time (Step) / Voltage (Step), logarithmic / linear"_s) << change;
        EXPECT_EQ(described(records), described(sampleManager().getAxesCombinations(u"Time"_s))) << change;
        EXPECT_EQ(xNames, QStringList({u"Time"_s, u"Charge"_s})) << change;
        EXPECT_EQ(yNames, QStringList({u"Voltage"_s, u"Charge"_s})) << change;
    };
    manager.append(record({u"Time"_s, u"Loop"_s}, {u"Energy"_s, u"Loop"_s}));
    manager.append(record({u"Energy"_s, u"Loop"_s}, {u"Time"_s, u"Loop"_s}));
    expectAnswersOfTheSample("append");
    manager.removeDuplicates();
    expectAnswersOfTheSample("removeDuplicates");
    manager = managerOf({record({u"other"_s, u"c"_s}, {u"y"_s, u"c"_s})});
    expectAnswersOfTheSample("assignment");
    manager.deleteAll();
    expectAnswersOfTheSample("deleteAll");
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
    Manager manager =
        managerOf({record({u"x"_s, u"c"_s}, {u"y"_s, u"c"_s}, QCPAxis::stLogarithmic), AxesCombination()});
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

#if HAVE_VIRTUAL_SLOTS
TEST(AxesCombinationManager, VirtualOperationsAreDestructorReadWrite)
{
    EXPECT_EQ(virtualSlot(&Manager::read), 2U);
    EXPECT_EQ(virtualSlot(&Manager::write), 3U);
    EXPECT_EQ(virtualSlots<Manager>(), 4U);
}
#endif
