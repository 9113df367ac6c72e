#include <config/UIConfigTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DebugFlags : public UIConfigTest
{
protected:
    QString readFlags(const QByteArray& json) const { return read(&UIConfigReaders::readDebugFlags, json); }

    QList<bool> flags() const
    {
        return {config.importDialogShowClIds(), config.saveImportedParquetFiles(), config.saveZFitInputData()};
    }
};

class Filters : public UIConfigTest
{
protected:
    QString readFilters(const QByteArray& json) const { return read(&UIConfig::readFilters, json); }
};

} // namespace

TEST_F(DebugFlags, EachFlagHasItsKey)
{
    EXPECT_EQ(readFlags(R"({"Debug": {"importDialogDisplayClIds": true}})"), Success);
    EXPECT_THAT(flags(), ElementsAre(true, false, false));
    EXPECT_EQ(readFlags(R"({"Debug": {"saveImportedParquetFiles": true}})"), Success);
    EXPECT_THAT(flags(), ElementsAre(false, true, false));
    EXPECT_EQ(readFlags(R"({"Debug": {"saveZFitInputData": true}})"), Success);
    EXPECT_THAT(flags(), ElementsAre(false, false, true));
    EXPECT_EQ(readFlags(R"({"Debug": {"importDialogShowClIds": true}})"), Success);
    EXPECT_THAT(flags(), ElementsAre(false, false, false)) << "the document says Display, not Show";
}

TEST_F(DebugFlags, EmptySectionClearsAllAndMissingSectionKeepsAll)
{
    EXPECT_EQ(readFlags(R"({"Debug": {
        "importDialogDisplayClIds": true, "saveImportedParquetFiles": true, "saveZFitInputData": true}})"),
              Success);
    for (const char* json : {R"({})", R"({"Debug": null})", R"({"Debug": [false]})", R"({"Debug": false})"}) {
        EXPECT_EQ(readFlags(json), Success);
        EXPECT_THAT(flags(), ElementsAre(true, true, true)) << json;
    }
    EXPECT_EQ(readFlags(R"({"Debug": {}})"), Success);
    EXPECT_THAT(flags(), ElementsAre(false, false, false));
}

TEST_F(DebugFlags, WhatIsNoBooleanIsFalse)
{
    EXPECT_EQ(readFlags(R"({"Debug": {
        "importDialogDisplayClIds": true, "saveImportedParquetFiles": true, "saveZFitInputData": true}})"),
              Success);
    EXPECT_EQ(readFlags(R"({"Debug": {
        "importDialogDisplayClIds": 1, "saveImportedParquetFiles": [true], "saveZFitInputData": "yes"}})"),
              Success);
    EXPECT_THAT(flags(), ElementsAre(false, false, false));
}

TEST_F(Filters, SkippedTasksKeepOrderRepetitionsAndEmptyTexts)
{
    EXPECT_EQ(readFilters(R"({"Filters": {"Tasks": {"Skipped": ["A", 3, "A"]}}})"), Success);
    EXPECT_THAT(config.getSkippedTasks(), ElementsAre(u"A"_s, QString(), u"A"_s));
    EXPECT_EQ(readFilters(R"({"Filters": {"Tasks": {"Skipped": ["B"]}}})"), Success);
    EXPECT_THAT(config.getSkippedTasks(), ElementsAre(u"A"_s, QString(), u"A"_s, u"B"_s));
}

TEST_F(Filters, OtherShapesAddNothing)
{
    for (const char* json :
         {R"({})", R"({"Filters": {"Skipped": ["A"]}})", R"({"Filters": ["A"]})", R"({"Filters": {"Tasks": ["A"]}})",
          R"({"Filters": {"Tasks": {"Skipped": "A"}}})", R"({"Filters": {"Tasks": {"Skipped": {"A": "A"}}}})",
          R"({"Filters": {"Tasks": {"Skipped": []}}})", R"({"Tasks": {"Skipped": ["A"]}})"}) {
        EXPECT_EQ(readFilters(json), Success) << json;
    }
    EXPECT_THAT(config.getSkippedTasks(), IsEmpty());
}
