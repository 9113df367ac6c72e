#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/UIConfigTest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// "category/name" of each column, "null" for null.
QStringList names(const QList<ClConfigDataArray*>& columns)
{
    QStringList result;
    for (const ClConfigDataArray* column : columns) {
        result.append(column == nullptr ? u"null"_s : column->getCategory() + u'/' + column->getName());
    }
    return result;
}

class Columns : public UIConfigTest
{
protected:
    QString readTools(const QByteArray& json) const { return read(&UIConfigReaders::readTools, json); }
    QString readDQdU(const QByteArray& json) const { return read(&UIConfigReaders::readDQdUColumns, json); }

    QStringList perStep() const { return names(config.getSummaryTablePerStepColumns()); }
    QStringList perCycle() const { return names(config.getSummaryTablePerCycleColumns()); }
    QStringList perLoop() const { return names(config.getSummaryTablePerLoopColumns()); }
    QStringList dQdU() const { return names(config.getDQdUColumns()); }

private:
    const TestCatalogue m_catalogue{
        {u"Duration"_s, u"Step"_s},         {u"Capacity"_s, u"Step"_s},   {u"Capacity"_s, u"Cycle"_s},
        {u"Capacity"_s, u"Loop"_s},         {u"Energy"_s, u"Loop"_s},     {u"Voltage"_s, u"Potentiostat"_s},
        {u"Capacity"_s, u"Potentiostat"_s}, {QString(), u"Aggregates"_s},
    };
};

class SummaryTable : public Columns
{
};

class DQdUTable : public Columns
{
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

TEST_F(DQdUTable, ReadsColumnsOfThePotentiostatAndTheGraph)
{
    EXPECT_EQ(readDQdU(R"({"dQ_dU": {"Table": ["Voltage", "Capacity", "Duration", "Voltage"],
        "Graph": {"Title": "dQ/dU", "Category": "Potentiostat", "X": "Voltage", "Y1": "Capacity"}}})"),
              Success);
    EXPECT_THAT(
        dQdU(),
        ElementsAre(u"Potentiostat/Voltage"_s, u"Potentiostat/Capacity"_s, u"null"_s, u"Potentiostat/Voltage"_s));
    EXPECT_EQ(config.getDQdUItem().getTitle(), u"dQ/dU"_s);
    EXPECT_EQ(config.getDQdUItem().getCategory(), u"Potentiostat"_s);
    EXPECT_EQ(config.getDQdUItem().getStreamX(), u"Voltage"_s);
    EXPECT_EQ(config.getDQdUItem().getStreamY1(), u"Capacity"_s);
}

TEST_F(DQdUTable, EntryThatIsANumberGivesANullColumn)
{
    EXPECT_EQ(readDQdU(R"({"dQ_dU": {"Table": [5, "Voltage"]}})"), Success);
    EXPECT_THAT(dQdU(), ElementsAre(u"null"_s, u"Potentiostat/Voltage"_s));
}

TEST_F(DQdUTable, EntryThatIsNoTextIsLookedUpAsTheEmptyName)
{
    auto* nameless = TestCatalogue::add({QString(), u"Potentiostat"_s});
    EXPECT_EQ(readDQdU(R"({"dQ_dU": {"Table": [5]}})"), Success);
    EXPECT_THAT(config.getDQdUColumns(), ElementsAre(nameless));
}

TEST_F(DQdUTable, MissingSectionFails)
{
    for (const char* json : {R"({})", R"({"dQ_dU": []})", R"({"dQ_dU": null})", R"({"dq_du": {"Table": []}})"}) {
        EXPECT_EQ(readDQdU(json), u"Missing dQ/dU node"_s) << json;
    }
}

TEST_F(DQdUTable, MissingTableFailsAndLeavesTheGraphAlone)
{
    for (const char* table : {"", R"("Table": "Voltage",)", R"("Table": {"Voltage": []},)"}) {
        EXPECT_EQ(readDQdU(QByteArray("{\"dQ_dU\": {") + table + R"("Graph": {"Title": "new"}}})"),
                  u"Missing dQ/dU table configuration node"_s);
    }
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(DQdUTable, MissingGraphEmptiesTheItem)
{
    EXPECT_EQ(readDQdU(R"({"dQ_dU": {"Table": [], "Graph": {"Title": "a", "X": "b", "Y1": "c"}}})"), Success);
    EXPECT_EQ(readDQdU(R"({"dQ_dU": {"Table": [], "Graph": ["Title"]}})"), Success);
    EXPECT_EQ(config.getDQdUItem().getTitle(), QString());
    EXPECT_EQ(config.getDQdUItem().getStreamX(), QString());
    EXPECT_EQ(config.getDQdUItem().getStreamY1(), QString());
}

TEST_F(DQdUTable, SecondReadingAppendsAlsoAfterDeleteAll)
{
    const char* const json = R"({"dQ_dU": {"Table": ["Voltage"]}})";
    EXPECT_EQ(readDQdU(json), Success);
    config.deleteAll();
    EXPECT_EQ(readDQdU(json), Success);
    EXPECT_THAT(dQdU(), ElementsAre(u"Potentiostat/Voltage"_s, u"Potentiostat/Voltage"_s));
}

TEST_F(DQdUTable, DocumentWithoutTheSectionFailsTheLoadAfterElevenSections)
{
    const ConfigDocumentCatalogue catalogue;
    EXPECT_EQ(load(without(configDocument(), u"dQ_dU"_s)), u"Missing dQ/dU node"_s);
    EXPECT_EQ(filledSections(config), allSections().first(11));
}

TEST(CommandNames, AreThoseOfTheRecipeSection)
{
    EXPECT_EQ(UIConfig::graphCommand(), u"GraphCommand"_s);
    EXPECT_EQ(UIConfig::toolSummaryCommand(), u"ToolSummaryCommand"_s);
    EXPECT_EQ(UIConfig::toolStatisticsCommand(), u"ToolStatisticsCommand"_s);
    EXPECT_EQ(UIConfig::toolRagonePlotCommand(), u"ToolRagonePlotCommand"_s);
    EXPECT_EQ(UIConfig::toolProcessedDataCommand(), u"ToolProcessedDataCommand"_s);
}
