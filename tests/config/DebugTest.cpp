#include <config/UIConfigTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

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
