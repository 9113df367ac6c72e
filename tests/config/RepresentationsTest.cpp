#include <batterydata/ClConfigDataArray.h>
#include <config/ConfigRepresentation.h>
#include <config/ConfigRepresentationManager.h>
#include <config/Representation.h>
#include <config/UIConfigTest.h>

#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ExportCategory;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A text of which the test can tell whether anybody else still holds it.
QString traceable(const char* text)
{
    return QString::fromLatin1(text);
}

QList<QString> fieldsOf(const ConfigRepresentation& record)
{
    return {record.name(), record.x(),        record.y1(),
            record.y2(),   record.category(), record.isDefault() ? u"default"_s : QString()};
}

QList<bool> defaultsOf(const ClConfigDataArray* array)
{
    return {array->isDefaultX(), array->isDefaultY1(), array->isDefaultY2()};
}

class Representations : public UIConfigTest
{
protected:
    /// Reads a section with these entries.
    QString readEntries(const QByteArray& entries) const
    {
        return read(&UIConfigReaders::readRepresentations, QByteArray("{\"Representations\": [" + entries + "]}"));
    }

    QStringList names() const
    {
        QStringList result;
        for (const auto* record : config.getConfigRepresentationManager().getConfigRepresentationList()) {
            result.append(record->name());
        }
        return result;
    }

    const ConfigRepresentationManager& manager = config.getConfigRepresentationManager();

private:
    const TestCatalogue m_catalogue{
        {u"Time"_s, u"Potentiostat"_s}, {u"Voltage"_s, u"Potentiostat"_s}, {u"Current"_s, u"Potentiostat"_s}};
};

} // namespace

TEST_F(Representations, EveryFieldIsRead)
{
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "Voltage", "Y2": "Current", "Category": "Free text",
                              "Default": true},
                             {"Name": "Plain", "X": "Time", "Y1": "Voltage"})"),
              Success);
    ASSERT_EQ(names(), QStringList({u"Course"_s, u"Plain"_s}));
    EXPECT_THAT(fieldsOf(*manager.getConfigRepresentationFromName(u"Course"_s)),
                ElementsAre(u"Course"_s, u"Time"_s, u"Voltage"_s, u"Current"_s, u"Free text"_s, u"default"_s));
    EXPECT_THAT(fieldsOf(*manager.getConfigRepresentationFromName(u"Plain"_s)),
                ElementsAre(u"Plain"_s, u"Time"_s, u"Voltage"_s, QString(), QString(), QString()));
}

TEST_F(Representations, EmptyArrayIsAccepted)
{
    EXPECT_EQ(readEntries(""), Success);
    EXPECT_THAT(manager.getConfigRepresentationList(), IsEmpty());
    EXPECT_EQ(config.getDefaultConfigRepresentation(), nullptr);
}

TEST_F(Representations, MissingSectionFails)
{
    for (const char* json : {R"({})", R"({"Representations": {}})", R"({"representations": []})"}) {
        EXPECT_EQ(read(&UIConfigReaders::readRepresentations, json), u"Representations array missing"_s) << json;
    }
}

TEST_F(Representations, MissingNameFails)
{
    const QString message = u"No name set for representation"_s;
    EXPECT_EQ(readEntries(R"({"X": "Time", "Y1": "Voltage"})"), message);
    EXPECT_EQ(readEntries(R"({"Name": "", "X": "Time", "Y1": "Voltage"})"), message);
    EXPECT_EQ(readEntries(R"({"Name": 7, "X": "Time", "Y1": "Voltage"})"), message);
    EXPECT_EQ(readEntries(R"({})"), message);
    EXPECT_EQ(readEntries(R"("Course")"), message) << "an entry that is no object reads as an empty one";
}

TEST_F(Representations, MissingOrUnknownXFails)
{
    const QString message = u"X not set for representation Course"_s;
    EXPECT_EQ(readEntries(R"({"Name": "Course", "Y1": "Voltage"})"), message);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": ["Time"], "Y1": "Voltage"})"), message);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "time", "Y1": "Voltage"})"), message);
}

TEST_F(Representations, EmptyXFailsAlsoWhenTheCatalogueHasANamelessArray)
{
    TestCatalogue::add({QString(), u"Potentiostat"_s});
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "", "Y1": "Voltage"})"), u"X not set for representation Course"_s);
}

TEST_F(Representations, UnknownY1FailsWithItsNameEvenWhenY2IsKnown)
{
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "Power", "Y2": "Current"})"),
              u"Unexpected Y1 Power"_s);
}

TEST_F(Representations, UnknownY2FailsAfterY1HasPassed)
{
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "Voltage", "Y2": "Power"})"),
              u"Unexpected Y2 Power"_s);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y2": "Power"})"), u"Unexpected Y2 Power"_s);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "Energy", "Y2": "Power"})"),
              u"Unexpected Y1 Energy"_s);
}

TEST_F(Representations, NeitherYFails)
{
    const QString message = u"Neither Y1 nor Y2 set for representation Course"_s;
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time"})"), message);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "", "Y2": 1})"), message);
}

TEST_F(Representations, ChecksRunInTheirOrder)
{
    EXPECT_EQ(readEntries(R"({"Name": "", "X": "", "Y1": "?", "Y2": "?"})"), u"No name set for representation"_s);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "?", "Y1": "?", "Y2": "?"})"),
              u"X not set for representation Course"_s);
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "?", "Y2": "!"})"), u"Unexpected Y1 ?"_s);
}

TEST_F(Representations, EntriesBeforeTheFailingOneStayAndThoseAfterItAreNotRead)
{
    EXPECT_EQ(readEntries(R"({"Name": "First", "X": "Time", "Y1": "Voltage"}, {"Name": "Second"},
                             {"Name": "Third", "X": "Time", "Y1": "Voltage"})"),
              u"X not set for representation Second"_s);
    EXPECT_EQ(names(), QStringList(u"First"_s));
}

TEST_F(Representations, SecondReadingAppends)
{
    const char* const entry = R"({"Name": "Course", "X": "Time", "Y1": "Voltage"})";
    EXPECT_EQ(readEntries(entry), Success);
    EXPECT_EQ(readEntries(entry), Success);
    EXPECT_EQ(names(), QStringList({u"Course"_s, u"Course"_s}));
}

TEST_F(Representations, EntryWithY2OnlyIsFoundByItsThreeNames)
{
    EXPECT_EQ(readEntries(R"({"Name": "Right axis", "X": "Time", "Y2": "Current"})"), Success);
    const ConfigRepresentation* found = manager.getConfigRepresentationFromAxis(u"Time"_s, u""_s, u"Current"_s);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->name(), u"Right axis"_s);
    EXPECT_EQ(manager.getConfigRepresentationFromAxis(u"Time"_s, u"Current"_s, u""_s), nullptr);
}

TEST_F(Representations, EmptyY2MatchesOnlyAnEmptyY2)
{
    EXPECT_EQ(readEntries(R"({"Name": "Two", "X": "Time", "Y1": "Voltage", "Y2": "Current"},
                             {"Name": "One", "X": "Time", "Y1": "Voltage"})"),
              Success);
    EXPECT_EQ(manager.getConfigRepresentationFromAxis(u"Time"_s, u"Voltage"_s, QString())->name(), u"One"_s);
    EXPECT_EQ(manager.getConfigRepresentationFromAxis(u"Time"_s, u"Voltage"_s, u"Current"_s)->name(), u"Two"_s);
    EXPECT_EQ(manager.getConfigRepresentationFromAxis(u"Time"_s, u"voltage"_s, QString()), nullptr);
    EXPECT_EQ(manager.getConfigRepresentationFromAxis(u"Voltage"_s, u"Time"_s, QString()), nullptr);
}

TEST_F(Representations, OfEqualNamesTheFirstIsFound)
{
    EXPECT_EQ(readEntries(R"({"Name": "Course", "X": "Time", "Y1": "Voltage"},
                             {"Name": "Course", "X": "Time", "Y1": "Current"})"),
              Success);
    EXPECT_EQ(manager.getConfigRepresentationFromName(u"Course"_s)->y1(), u"Voltage"_s);
    EXPECT_EQ(manager.getConfigRepresentationFromName(u"course"_s), nullptr);
    EXPECT_EQ(manager.getConfigRepresentationFromName(u"Course "_s), nullptr);
}

TEST_F(Representations, OfTwoDefaultsTheFirstCountsAndBothMarkTheirArrays)
{
    const auto* time = TestCatalogue::add({u"T"_s, u"a"_s, ExportCategory{2}});
    const auto* first = TestCatalogue::add({u"F"_s, u"a"_s, ExportCategory{2}});
    const auto* second = TestCatalogue::add({u"S"_s, u"a"_s, ExportCategory{2}});
    EXPECT_EQ(readEntries(R"({"Name": "None", "X": "Time", "Y1": "Voltage", "Default": "true"},
                             {"Name": "One", "X": "T", "Y1": "F", "Default": true},
                             {"Name": "Two", "X": "F", "Y1": "S", "Y2": "T", "Default": true})"),
              Success);
    EXPECT_EQ(config.getDefaultConfigRepresentation()->name(), u"One"_s);
    EXPECT_EQ(config.getDefaultConfigRepresentation(), manager.getDefaultConfigRepresentation());
    EXPECT_THAT(defaultsOf(time), ElementsAre(true, false, true));
    EXPECT_THAT(defaultsOf(first), ElementsAre(true, true, false));
    EXPECT_THAT(defaultsOf(second), ElementsAre(false, true, false));
}

TEST_F(Representations, DefaultMarksTheStandardArraysOfANameInAllCategories)
{
    QList<ClConfigDataArray*> arrays;
    for (const int category : {0, 1, 2, 3, 2, 4}) {
        arrays.append(
            TestCatalogue::add({u"T"_s, u"category %1"_s.arg(arrays.size()), static_cast<ExportCategory>(category)}));
    }
    EXPECT_EQ(readEntries(R"({"Name": "One", "X": "T", "Y2": "T", "Default": true})"), Success);
    for (const ClConfigDataArray* array : arrays) {
        const bool isMarked = static_cast<int>(array->getExportCategory()) == 2;
        EXPECT_THAT(defaultsOf(array), ElementsAre(isMarked, false, isMarked)) << array->getCategory().toStdString();
    }
}

TEST_F(Representations, OnlyDefaultsMarkAndNothingEverUnmarks)
{
    auto* array = TestCatalogue::add({u"T"_s, u"a"_s, ExportCategory{2}});
    EXPECT_EQ(readEntries(R"({"Name": "Plain", "X": "T", "Y1": "T", "Y2": "T"})"), Success);
    EXPECT_THAT(defaultsOf(array), ElementsAre(false, false, false));

    EXPECT_EQ(readEntries(R"({"Name": "Marks", "X": "T", "Y1": "T", "Default": true}, {"Name": "Fails"})"),
              u"X not set for representation Fails"_s);
    config.deleteAll();
    EXPECT_EQ(readEntries(R"({"Name": "Plain", "X": "T", "Y1": "T", "Default": false})"), Success);
    EXPECT_THAT(defaultsOf(array), ElementsAre(true, true, false));
}

TEST_F(Representations, DefaultWithAFailingCheckMarksNothing)
{
    const auto* array = TestCatalogue::add({u"T"_s, u"a"_s, ExportCategory{2}});
    EXPECT_EQ(readEntries(R"({"Name": "Bad", "X": "T", "Y1": "T", "Y2": "?", "Default": true})"), u"Unexpected Y2 ?"_s);
    EXPECT_THAT(defaultsOf(array), ElementsAre(false, false, false));
}

TEST_F(Representations, EmptyYOfADefaultIsLookedUpAllTheSame)
{
    const auto* nameless = TestCatalogue::add({QString(), u"a"_s, ExportCategory{2}});
    EXPECT_EQ(readEntries(R"({"Name": "One", "X": "Time", "Y1": "Voltage", "Default": true})"), Success);
    EXPECT_THAT(defaultsOf(nameless), ElementsAre(false, false, true));
}

TEST_F(Representations, DeleteAllDeletesTheRecords)
{
    const QString name = traceable("Course");
    const_cast<ConfigRepresentationManager&>(manager).append(
        new ConfigRepresentation(name, u"x"_s, u"y"_s, {}, {}, true));
    EXPECT_FALSE(name.isDetached());
    config.deleteAll();
    EXPECT_TRUE(name.isDetached()) << "the record still holds the text";
    EXPECT_EQ(config.getDefaultConfigRepresentation(), nullptr);
}

// The manager by itself: who holds the records, and who deletes them.

TEST(ConfigRepresentationManagerTest, CopiesShareTheRecordsAndTheirDestructionDeletesNone)
{
    ConfigRepresentationManager manager;
    auto* record = new ConfigRepresentation(u"n"_s, u"x"_s, u"y"_s, {}, {}, true);
    manager.append(record);
    {
        const ConfigRepresentationManager copy(manager); // NOLINT(performance-unnecessary-copy-initialization)
        ConfigRepresentationManager assigned;
        assigned = copy;
        EXPECT_THAT(copy.getConfigRepresentationList(), ElementsAre(record));
        EXPECT_THAT(assigned.getConfigRepresentationList(), ElementsAre(record));
        EXPECT_EQ(assigned.getDefaultConfigRepresentation(), record);
    }
    EXPECT_EQ(record->name(), u"n"_s);
    manager.deleteAllAndClear();
    EXPECT_THAT(manager.getConfigRepresentationList(), IsEmpty());
}

TEST(ConfigRepresentationManagerTest, MovesTakeTheListAndLeaveTheSourceEmpty)
{
    ConfigRepresentationManager source;
    auto* record = new ConfigRepresentation(u"n"_s, u"x"_s, u"y"_s, {}, {}, false);
    source.append(record);

    ConfigRepresentationManager constructed(std::move(source));
    EXPECT_THAT(constructed.getConfigRepresentationList(), ElementsAre(record));
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_THAT(source.getConfigRepresentationList(), IsEmpty());

    ConfigRepresentationManager assigned;
    assigned = std::move(constructed);
    EXPECT_THAT(assigned.getConfigRepresentationList(), ElementsAre(record));
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_THAT(constructed.getConfigRepresentationList(), IsEmpty());
    assigned.deleteAllAndClear();
}

TEST(ConfigRepresentationManagerTest, AssignmentsDeleteNoRecordOfTheTarget)
{
    const std::unique_ptr<ConfigRepresentation> copiedOver(new ConfigRepresentation(u"a"_s, {}, {}, {}, {}, false));
    const std::unique_ptr<ConfigRepresentation> movedOver(new ConfigRepresentation(u"b"_s, {}, {}, {}, {}, false));
    ConfigRepresentationManager target;
    target.append(copiedOver.get());
    target = ConfigRepresentationManager();
    EXPECT_EQ(copiedOver->name(), u"a"_s);

    target.append(movedOver.get());
    const ConfigRepresentationManager empty;
    target = empty;
    EXPECT_EQ(movedOver->name(), u"b"_s);
    EXPECT_THAT(target.getConfigRepresentationList(), IsEmpty());
}

TEST(ConfigRepresentationManagerTest, EmptyManagerFindsNothing)
{
    const ConfigRepresentationManager manager;
    EXPECT_EQ(manager.getConfigRepresentationFromName(QString()), nullptr);
    EXPECT_EQ(manager.getConfigRepresentationFromAxis({}, {}, {}), nullptr);
    EXPECT_EQ(manager.getDefaultConfigRepresentation(), nullptr);
}

TEST(ConfigRepresentationManagerTest, NullIsTakenAndDeletedLikeARecord)
{
    ConfigRepresentationManager manager;
    manager.append(nullptr);
    manager.append(nullptr);
    EXPECT_THAT(manager.getConfigRepresentationList(), ElementsAre(nullptr, nullptr));
    manager.deleteAllAndClear();
    EXPECT_THAT(manager.getConfigRepresentationList(), IsEmpty());
}

TEST(ConfigRepresentationTest, CopiesAndMovesCarryAllFields)
{
    const ConfigRepresentation record(u"n"_s, u"x"_s, u"y1"_s, u"y2"_s, u"c"_s, true);
    const auto isTheRecord = ElementsAre(u"n"_s, u"x"_s, u"y1"_s, u"y2"_s, u"c"_s, u"default"_s);

    ConfigRepresentation copy(record);
    EXPECT_THAT(fieldsOf(copy), isTheRecord);
    ConfigRepresentation other({}, {}, {}, {}, {}, false);
    other = copy;
    EXPECT_THAT(fieldsOf(other), isTheRecord);
    const ConfigRepresentation moved(std::move(other));
    EXPECT_THAT(fieldsOf(moved), isTheRecord);
    ConfigRepresentation target({}, {}, {}, {}, {}, false);
    target = std::move(copy);
    EXPECT_THAT(fieldsOf(target), isTheRecord);
}

// The handle, which owns a copy of one record.

TEST(RepresentationTest, HoldsACopyAndNoLinkToTheRecord)
{
    const QString name = traceable("Course");
    std::optional<Representation> handle;
    {
        ConfigRepresentation record(name, u"x"_s, u"y1"_s, u"y2"_s, u"c"_s, true);
        handle.emplace(&record);
        EXPECT_NE(handle->getConfig(), &record);
        EXPECT_EQ(fieldsOf(*handle->getConfig()), fieldsOf(record));
    }
    EXPECT_EQ(handle->getConfig()->name(), u"Course"_s);
    EXPECT_FALSE(name.isDetached());
    handle.reset();
    EXPECT_TRUE(name.isDetached()) << "the handle's record was not deleted";
}

TEST(RepresentationTest, MoveConstructionTakesTheCopyAndLeavesNull)
{
    ConfigRepresentation record(u"n"_s, u"x"_s, u"y"_s, {}, {}, false);
    {
        Representation source(&record);
        const ConfigRepresentation* held = source.getConfig();
        const Representation target(std::move(source));
        EXPECT_EQ(target.getConfig(), held);
        EXPECT_EQ(source.getConfig(), nullptr); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    }
    EXPECT_EQ(record.name(), u"n"_s);
}

TEST(RepresentationTest, MoveAssignmentDeletesWhatItHeld)
{
    const QString replaced = traceable("replaced");
    std::optional<ConfigRepresentation> record(std::in_place, replaced, u"x"_s, u"y"_s, QString(), QString(), false);
    Representation target(&*record);
    record.emplace(u"new"_s, u"x"_s, u"y"_s, QString(), QString(), false);
    EXPECT_FALSE(replaced.isDetached());

    Representation source(&*record);
    const ConfigRepresentation* held = source.getConfig();
    target = std::move(source);
    EXPECT_EQ(target.getConfig(), held);
    EXPECT_EQ(source.getConfig(), nullptr); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_TRUE(replaced.isDetached()) << "the earlier record was not deleted";

    source = std::move(target); // a handle that was moved from can be filled again
    EXPECT_EQ(source.getConfig(), held);
    EXPECT_EQ(target.getConfig(), nullptr); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
}

TEST(RepresentationTest, MoveToItselfKeepsTheRecord)
{
    ConfigRepresentation record(u"n"_s, u"x"_s, u"y"_s, {}, {}, false);
    Representation handle(&record);
    Representation& same = handle;
    handle = std::move(same);
    ASSERT_NE(handle.getConfig(), nullptr);
    EXPECT_EQ(handle.getConfig()->name(), u"n"_s);
}
