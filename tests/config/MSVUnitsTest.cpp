#include <archive/ArchiveContext.h>
#include <config/MSVUnitsCombination.h>
#include <config/MSVUnitsCombinationManager.h>
#include <config/UIConfigTest.h>
#include <datastorage/Converter.h>
#include <support/VirtualSlot.h>

#include <QJsonArray>

#include <memory>

using namespace Qt::StringLiterals;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnitOperator;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A record that notes its deletion.
class CountedCombination : public MSVUnitsCombination
{
public:
    CountedCombination(int number, QList<int>& deleted)
        : m_number(number)
        , m_deleted(deleted)
    {
    }
    CountedCombination(const CountedCombination&) = delete;
    CountedCombination& operator=(const CountedCombination&) = delete;
    ~CountedCombination() override { m_deleted.append(m_number); }

private:
    int m_number;
    QList<int>& m_deleted;
};

class MultiUnits : public UIConfigTest
{
protected:
    /// Reads a section with these entries.
    QString readEntries(const QByteArray& entries) const
    {
        return read(&UIConfigReaders::readMSVUnitsCombinationsConfig, QByteArray("{\"MSVUnits\": [" + entries + "]}"));
    }

    MSVUnitsCombinationManager& manager = config.getMSVUnitsCombinationManager();
};

class MultiUnitsArchive : public testing::Test
{
protected:
    MSVUnitsCombination readBack(const QJsonObject& object)
    {
        MSVUnitsCombination combination;
        EXPECT_TRUE(combination.read(object, 0, context));
        return combination;
    }

    cl::archive::ArchiveContext context;
};

} // namespace

TEST_F(MultiUnits, EntriesAreReadInFileOrder)
{
    EXPECT_EQ(readEntries(R"({"PhysicalParameter": "Energy", "Operator": "Multiply", "MultiParams": ["Mass"]},
                             {"PhysicalParameter": "Charge", "Operator": "Divide", "MultiParams": ["Area", "Mass", "Area"]})"),
              Success);
    const auto& list = manager.getMSVUnitsCombinationsList();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list.at(0)->getPhysicalParameter(), PhysicalParameter::Energy);
    EXPECT_EQ(list.at(0)->getOperator(), UsualUnitOperator::Multiply);
    EXPECT_THAT(list.at(0)->getMultiParamsList(), ElementsAre(PhysicalParameter::Mass));
    EXPECT_EQ(list.at(1)->getPhysicalParameter(), PhysicalParameter::Charge);
    EXPECT_EQ(list.at(1)->getOperator(), UsualUnitOperator::Divide);
    EXPECT_THAT(list.at(1)->getMultiParamsList(),
                ElementsAre(PhysicalParameter::Area, PhysicalParameter::Mass, PhysicalParameter::Area));
}

TEST_F(MultiUnits, EmptyArrayIsAcceptedAndEveryLookupMisses)
{
    EXPECT_EQ(readEntries(""), Success);
    EXPECT_THAT(manager.getMSVUnitsCombinationsList(), IsEmpty());
    for (int parameter = 0; parameter < 100; ++parameter) {
        EXPECT_EQ(manager.getMSVUnitsCombinationsFromParam(PhysicalParameter{parameter}), nullptr) << parameter;
    }
}

TEST_F(MultiUnits, MissingSectionFails)
{
    for (const char* json : {R"({})", R"({"MSVUnits": {}})", R"({"MsvUnits": []})", R"({"MSVUnits": null})"}) {
        EXPECT_EQ(read(&UIConfigReaders::readMSVUnitsCombinationsConfig, json),
                  u"Multi units combinations array missing"_s)
            << json;
    }
}

TEST_F(MultiUnits, OfTwoEntriesForOneParameterTheFirstIsFound)
{
    EXPECT_EQ(readEntries(R"({"PhysicalParameter": "Charge", "Operator": "Divide", "MultiParams": ["Mass"]},
                             {"PhysicalParameter": "Charge", "Operator": "Multiply", "MultiParams": ["Area"]})"),
              Success);
    EXPECT_EQ(config.getMSVUnitsCombinationManager().getMSVUnitsCombinationsFromParam(PhysicalParameter::Charge),
              manager.getMSVUnitsCombinationsList().at(0));
    EXPECT_EQ(manager.getMSVUnitsCombinationsFromParam(PhysicalParameter::Energy), nullptr);
}

TEST_F(MultiUnits, UnknownNamesBecomeWhatTheConverterMakesOfThem)
{
    EXPECT_EQ(readEntries(R"({"PhysicalParameter": "charge", "Operator": "per", "MultiParams": ["Mass", 3, "mass"]})"),
              Success);
    const MSVUnitsCombination* entry = manager.getMSVUnitsCombinationsList().at(0);
    const PhysicalParameter unknown = cl::datastorage::Converter::getPhysicalParameterFromString(u"charge"_s);
    EXPECT_EQ(entry->getPhysicalParameter(), unknown);
    EXPECT_EQ(entry->getOperator(), cl::datastorage::Converter::getOperatorFromString(u"per"_s));
    EXPECT_THAT(entry->getMultiParamsList(), ElementsAre(PhysicalParameter::Mass, unknown, unknown));
}

TEST_F(MultiUnits, NoEntryMakesTheReadingFail)
{
    EXPECT_EQ(
        readEntries(R"(7, null, [], {}, {"PhysicalParameter": ["Charge"], "Operator": 2, "MultiParams": "Mass"})"),
        Success);
    ASSERT_EQ(manager.getMSVUnitsCombinationsList().size(), 5);
    for (const MSVUnitsCombination* entry : manager.getMSVUnitsCombinationsList()) {
        EXPECT_EQ(entry->getPhysicalParameter(), PhysicalParameter::None);
        EXPECT_EQ(entry->getOperator(), UsualUnitOperator::None);
        EXPECT_THAT(entry->getMultiParamsList(), IsEmpty());
    }
}

TEST_F(MultiUnits, SecondReadingAppendsAndDeleteAllEmpties)
{
    EXPECT_EQ(readEntries("{}"), Success);
    EXPECT_EQ(readEntries("{}"), Success);
    EXPECT_EQ(manager.getMSVUnitsCombinationsList().size(), 2);
    QList<int> deleted;
    manager.append(new CountedCombination(1, deleted));
    config.deleteAll();
    EXPECT_THAT(deleted, ElementsAre(1));
    EXPECT_THAT(manager.getMSVUnitsCombinationsList(), IsEmpty());
}

// The manager by itself: who holds the records, and who deletes them.

TEST(MSVUnitsCombinationManagerTest, DeletesItsRecordsInOrderAndOnlyWhenAskedTo)
{
    QList<int> deleted;
    MSVUnitsCombinationManager manager;
    for (int i = 1; i <= 3; ++i) {
        manager.append(new CountedCombination(i, deleted));
    }
    {
        MSVUnitsCombinationManager copy(manager);
        MSVUnitsCombinationManager assigned;
        assigned = manager;
        EXPECT_EQ(copy.getMSVUnitsCombinationsList(), manager.getMSVUnitsCombinationsList());
        EXPECT_EQ(assigned.getMSVUnitsCombinationsList(), manager.getMSVUnitsCombinationsList());
    }
    EXPECT_THAT(deleted, IsEmpty());
    manager.deleteAllAndClear();
    EXPECT_THAT(deleted, ElementsAre(1, 2, 3));
    EXPECT_THAT(manager.getMSVUnitsCombinationsList(), IsEmpty());
    manager.deleteAllAndClear();
    EXPECT_EQ(deleted.size(), 3);
}

TEST(MSVUnitsCombinationManagerTest, AssignmentDeletesNoRecordOfTheTarget)
{
    QList<int> deleted;
    const std::unique_ptr<MSVUnitsCombination> record(new CountedCombination(1, deleted));
    MSVUnitsCombinationManager target;
    target.append(record.get());
    target = MSVUnitsCombinationManager();
    EXPECT_THAT(deleted, IsEmpty());
    EXPECT_THAT(target.getMSVUnitsCombinationsList(), IsEmpty());
}

TEST(MSVUnitsCombinationTest, IsZeroByDefault)
{
    const MSVUnitsCombination combination;
    EXPECT_EQ(static_cast<int>(combination.getPhysicalParameter()), 0);
    EXPECT_EQ(static_cast<int>(combination.getOperator()), 0);
    EXPECT_THAT(combination.getMultiParamsList(), IsEmpty());
}

TEST(MSVUnitsCombinationTest, CopiesCarryAllFieldsAndAreIndependent)
{
    MSVUnitsCombination combination;
    combination.setPhysicalParameter(PhysicalParameter::Charge);
    combination.setOperator(UsualUnitOperator::Divide);
    combination.addMultiParamToList(PhysicalParameter::Mass);
    combination.addMultiParamToList(PhysicalParameter::Mass);
    const MSVUnitsCombination copy(combination);
    MSVUnitsCombination assigned;
    assigned = combination;
    combination.addMultiParamToList(PhysicalParameter::Area);
    for (const MSVUnitsCombination* each : {&copy, static_cast<const MSVUnitsCombination*>(&assigned)}) {
        EXPECT_EQ(each->getPhysicalParameter(), PhysicalParameter::Charge);
        EXPECT_EQ(each->getOperator(), UsualUnitOperator::Divide);
        EXPECT_THAT(each->getMultiParamsList(), ElementsAre(PhysicalParameter::Mass, PhysicalParameter::Mass));
    }
}

#if HAVE_VIRTUAL_SLOTS
TEST(MSVUnitsCombinationTest, VirtualOperationsStandInTheirOrder)
{
    EXPECT_EQ(virtualSlot(&MSVUnitsCombination::read), 2U) << "after the destructor";
    EXPECT_EQ(virtualSlot(&MSVUnitsCombination::write), 3U);
    EXPECT_EQ(virtualSlots<MSVUnitsCombination>(), 4U);
    EXPECT_EQ(virtualSlots<MSVUnitsCombinationManager>(), 2U) << "the destructor alone";
}
#endif

TEST_F(MultiUnitsArchive, WritesThreeNumbersAndListsUnderTheirKeys)
{
    MSVUnitsCombination combination;
    combination.setPhysicalParameter(PhysicalParameter{3});
    combination.setOperator(UsualUnitOperator{2});
    combination.addMultiParamToList(PhysicalParameter{14});
    combination.addMultiParamToList(PhysicalParameter{4});
    QJsonObject object{{u"other"_s, u"stays"_s}, {u"operator"_s, u"goes"_s}};
    EXPECT_TRUE(combination.write(object, 99, context));
    EXPECT_EQ(object, jsonObject(R"({"physicalParameter": 3, "operator": 2, "multiParametersList": [14, 4],
                                    "other": "stays"})"));
}

TEST_F(MultiUnitsArchive, WriteThenReadGivesTheRecordBack)
{
    MSVUnitsCombination combination;
    combination.setPhysicalParameter(PhysicalParameter::Energy);
    combination.setOperator(UsualUnitOperator::Multiply);
    combination.addMultiParamToList(PhysicalParameter::Mass);
    combination.addMultiParamToList(PhysicalParameter{1000});
    QJsonObject object;
    EXPECT_TRUE(combination.write(object, 1, context));
    const MSVUnitsCombination copy = readBack(object);
    EXPECT_EQ(copy.getPhysicalParameter(), PhysicalParameter::Energy);
    EXPECT_EQ(copy.getOperator(), UsualUnitOperator::Multiply);
    EXPECT_THAT(copy.getMultiParamsList(), ElementsAre(PhysicalParameter::Mass, PhysicalParameter{1000}));
}

TEST_F(MultiUnitsArchive, ReadingAppendsToTheParametersThatAreThere)
{
    MSVUnitsCombination combination;
    combination.addMultiParamToList(PhysicalParameter::Mass);
    combination.addMultiParamToList(PhysicalParameter::Area);
    EXPECT_TRUE(combination.read(jsonObject(R"({"multiParametersList": [1, 2, 3]})"), 0, context));
    EXPECT_THAT(combination.getMultiParamsList(),
                ElementsAre(PhysicalParameter::Mass, PhysicalParameter::Area, PhysicalParameter{1},
                            PhysicalParameter{2}, PhysicalParameter{3}));
}

TEST_F(MultiUnitsArchive, WhatIsMissingOrNoNumberReadsAsZero)
{
    MSVUnitsCombination combination;
    combination.setPhysicalParameter(PhysicalParameter::Charge);
    combination.setOperator(UsualUnitOperator::Divide);
    EXPECT_TRUE(combination.read({}, 0, context));
    EXPECT_EQ(combination.getPhysicalParameter(), PhysicalParameter::None);
    EXPECT_EQ(combination.getOperator(), UsualUnitOperator::None);

    const MSVUnitsCombination odd =
        readBack(jsonObject(R"({"physicalParameter": "3", "operator": true, "multiParametersList": ["x", 4, null]})"));
    EXPECT_EQ(odd.getPhysicalParameter(), PhysicalParameter::None);
    EXPECT_EQ(odd.getOperator(), UsualUnitOperator::None);
    EXPECT_THAT(odd.getMultiParamsList(),
                ElementsAre(PhysicalParameter::None, PhysicalParameter::Time, PhysicalParameter::None));
    EXPECT_THAT(readBack(jsonObject(R"({"multiParametersList": 5})")).getMultiParamsList(), IsEmpty());
}
