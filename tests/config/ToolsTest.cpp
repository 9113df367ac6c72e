#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/ColumnsTest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SummaryTable : public ColumnsTest
{
protected:
    QString readTools(const QByteArray& json) const { return read(&UIConfigReaders::readTools, json); }

    QStringList perStep() const { return names(config.getSummaryTablePerStepColumns()); }
    QStringList perCycle() const { return names(config.getSummaryTablePerCycleColumns()); }
    QStringList perLoop() const { return names(config.getSummaryTablePerLoopColumns()); }
};

} // namespace

TEST_F(SummaryTable, ReadsTheColumnsOfEachKind)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {"Step": ["Capacity", "Duration"]},
        "Per cycle": {"Cycle": ["Capacity"]},
        "Per loop": {"Loop": ["Energy", "Capacity", "Energy"]}}}})"),
              Success);
    EXPECT_THAT(perStep(), ElementsAre(u"Step/Capacity"_s, u"Step/Duration"_s));
    EXPECT_THAT(perCycle(), ElementsAre(u"Cycle/Capacity"_s));
    EXPECT_THAT(perLoop(), ElementsAre(u"Loop/Energy"_s, u"Loop/Capacity"_s, u"Loop/Energy"_s));
}

TEST_F(SummaryTable, ColumnsAreTheCatalogueOwnArrays)
{
    auto* added = TestCatalogue::add({u"Late"_s, u"Step"_s});
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {"Per step": {"Step": ["Late"]}}}})"), Success);
    EXPECT_THAT(config.getSummaryTablePerStepColumns(), ElementsAre(added));
}

TEST_F(SummaryTable, MissingPerStepHidesTheLaterKinds)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per cycle": {"Cycle": ["Capacity"]}, "Per loop": {"Loop": ["Energy"]}}}})"),
              Success);
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(SummaryTable, MissingPerCycleHidesPerLoop)
{
    for (const char* perCycle : {"", R"("Per cycle": [], )", R"("Per cycle": null, )"}) {
        EXPECT_EQ(readTools(QByteArray(R"({"Tools": {"Summary Table": {"Per step": {"Step": ["Capacity"]}, )")
                            + perCycle + R"("Per loop": {"Loop": ["Energy"]}}}})"),
                  Success);
    }
    EXPECT_THAT(perStep(), ElementsAre(u"Step/Capacity"_s, u"Step/Capacity"_s, u"Step/Capacity"_s));
    EXPECT_THAT(perCycle(), IsEmpty());
    EXPECT_THAT(perLoop(), IsEmpty());
}

TEST_F(SummaryTable, MissingPerLoopIsNoFailure)
{
    for (const char* perLoop : {"", R"(, "Per loop": null)", R"(, "Per loop": "Loop")"}) {
        EXPECT_EQ(
            readTools(QByteArray(R"({"Tools": {"Summary Table": {"Per step": {}, "Per cycle": {"Cycle": ["Capacity"]})")
                      + perLoop + "}}}"),
            Success);
    }
    EXPECT_EQ(perCycle().size(), 3);
    EXPECT_THAT(perLoop(), IsEmpty());
}

TEST_F(SummaryTable, WhatIsNoObjectOnTheWayDownReadsNothing)
{
    for (const char* json : {R"({})", R"({"Tools": []})", R"({"Tools": {}})", R"({"Tools": "text"})",
                             R"({"Tools": {"Summary Table": [{"Per step": {"Step": ["Capacity"]}}]}})",
                             R"({"Tools": {"Summary Table": {"Per step": ["Capacity"]}}})",
                             R"({"Tools": {"Per step": {"Step": ["Capacity"]}}})",
                             R"({"tools": {"Summary Table": {"Per step": {"Step": ["Capacity"]}}}})"}) {
        EXPECT_EQ(readTools(json), Success) << json;
    }
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(SummaryTable, CategoryThatIsNoArrayFailsAfterThoseThatSortBeforeIt)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {"Zoo": ["Capacity"], "Step": "Capacity", "Cycle": ["Capacity"], "Loop": ["Energy"]},
        "Per cycle": {"Cycle": ["Capacity"]}}}})"),
              u"Summary table category is not a Json array"_s);
    EXPECT_THAT(perStep(), ElementsAre(u"Cycle/Capacity"_s, u"Loop/Energy"_s));
    EXPECT_THAT(perCycle(), IsEmpty());
}

TEST_F(SummaryTable, FailureInALaterKindKeepsTheEarlierOnes)
{
    const QString message = u"Summary table category is not a Json array"_s;
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {"Step": ["Capacity"]}, "Per cycle": {"Cycle": {}}, "Per loop": {"Loop": ["Energy"]}}}})"),
              message);
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {}, "Per cycle": {"Cycle": ["Capacity"]}, "Per loop": {"Loop": 1}}}})"),
              message);
    EXPECT_THAT(perStep(), ElementsAre(u"Step/Capacity"_s));
    EXPECT_THAT(perCycle(), ElementsAre(u"Cycle/Capacity"_s));
    EXPECT_THAT(perLoop(), IsEmpty());
}

TEST_F(SummaryTable, CategoriesAreReadInKeyOrderAndNamesInFileOrder)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {"Step": ["Duration", "Capacity"], "Loop": ["Energy", "Capacity"], "Cycle": ["Capacity"]}}}})"),
              Success);
    EXPECT_THAT(
        perStep(),
        ElementsAre(u"Cycle/Capacity"_s, u"Loop/Energy"_s, u"Loop/Capacity"_s, u"Step/Duration"_s, u"Step/Capacity"_s));
}

TEST_F(SummaryTable, UnknownColumnIsNull)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {"Step": ["Energy", "capacity", "Duration", 7, null]}, "Per cycle": {"None": ["Capacity"]}}}})"),
              Success);
    EXPECT_THAT(perStep(), ElementsAre(u"null"_s, u"null"_s, u"Step/Duration"_s, u"null"_s, u"null"_s));
    EXPECT_THAT(perCycle(), ElementsAre(u"null"_s));
}

TEST_F(SummaryTable, NameThatIsNoTextIsLookedUpAsTheEmptyName)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {"Per step": {"Aggregates": [3]}}}})"), Success);
    EXPECT_THAT(perStep(), ElementsAre(u"Aggregates/"_s));
}

TEST_F(SummaryTable, EmptyKindIsReadAndLetsTheNextOneThrough)
{
    EXPECT_EQ(readTools(R"({"Tools": {"Summary Table": {
        "Per step": {}, "Per cycle": {}, "Per loop": {"Loop": ["Energy"]}}}})"),
              Success);
    EXPECT_THAT(perLoop(), ElementsAre(u"Loop/Energy"_s));
}

TEST_F(SummaryTable, SecondReadingAppends)
{
    const char* const json = R"({"Tools": {"Summary Table": {"Per step": {"Step": ["Duration"]}}}})";
    EXPECT_EQ(readTools(json), Success);
    EXPECT_EQ(readTools(json), Success);
    EXPECT_THAT(perStep(), ElementsAre(u"Step/Duration"_s, u"Step/Duration"_s));
}

TEST_F(SummaryTable, ColumnReaderFillsAnyList)
{
    QList<ClConfigDataArray*> columns;
    QString error = u"untouched"_s;
    const auto readColumns = [&](const QJsonValue& category) {
        return (config.*&UIConfigReaders::readSummaryTableColumns)(category, columns, error);
    };
    EXPECT_TRUE(readColumns(jsonObject(R"({"Loop": ["Energy"], "Cycle": []})")));
    EXPECT_TRUE(readColumns(u"text"_s)) << "reads as an empty object";
    EXPECT_EQ(error, u"untouched"_s);
    EXPECT_THAT(names(columns), ElementsAre(u"Loop/Energy"_s));
    EXPECT_FALSE(readColumns(jsonObject(R"({"Step": null})")));
    EXPECT_EQ(error, u"Summary table category is not a Json array"_s);
}
