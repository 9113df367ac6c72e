#include <cluiedit/text/Definition.h>
#include <data/ShippedFile.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace cluiedit;

namespace {

constexpr auto Document = R"({
    "Axes combinations": [
        { "X": [{ "Name": "Test Time / s", "Category": "Potentiostat" }],
          "Y1/Y2": [{ "Name": "Voltage / V", "Category": "Potentiostat" }] },
        { "X": [{ "Name": "Test Time / s", "Category": "Other" }], "Y1/Y2": [] }
    ],
    "Representations": [{ "Name": "Course", "X": "Test Time / s", "Y1": "Voltage / V" }],
    "Tools": { "Summary Table": { "Per step": { "Step": ["Test Time / s"] } } },
    "Colors": {
        "Custom colors": [{ "name": "Black", "RGB": [0, 0, 0] }, { "name": "Blue", "RGB": [0, 0, 255] }],
        "Default colors": { "Curve 01": "Blue", "Curve 02": "Red" }
    },
    "Statistics": { "Ageing": [{ "Title": "Retention", "X": "Nothing" }] },
    "Processed Data": [{ "Title": "Smoothed" }],
    "Recipe": {
        "GraphCommand": [{ "UITitle": "Course", "Param1": "Potentiostat", "Param2": "Test Time / s" }],
        "ToolSummaryCommand": [{ "Param1": "Per step" }],
        "ToolStatisticsCommand": [{ "Param1": "Ageing", "Param2": "Retention" }],
        "ToolProcessedDataCommand": [{ "Param1": "Smoothed" }]
    }
})";

/// The place of \p text within \p around, from \p from on.
qsizetype placeOf(const QByteArray& around, const QByteArray& text, qsizetype from = 0)
{
    const QByteArray document(Document);
    const qsizetype start = document.indexOf(around, from);
    EXPECT_GE(start, 0) << around.toStdString();
    return start + around.indexOf(text);
}

qsizetype goesTo(const QByteArray& around, const QByteArray& text)
{
    return definitionOf(Document, placeOf(around, text) + 1);
}

} // namespace

TEST(Definition, OfAColorIsItsEntryInThePalette)
{
    EXPECT_EQ(goesTo(R"("Curve 01": "Blue")", "\"Blue"), placeOf(R"({ "name": "Blue")", "\"Blue"));
    EXPECT_EQ(goesTo(R"("Curve 02": "Red")", "\"Red"), -1);
}

TEST(Definition, OfADataArrayIsTheFirstAxesCombinationWithIt)
{
    const qsizetype first = placeOf(R"("Name": "Test Time / s")", "\"Test");
    EXPECT_EQ(goesTo(R"("Course", "X": "Test Time / s")", "\"Test"), first);
    EXPECT_EQ(goesTo(R"(["Test Time / s"])", "\"Test"), first);
    EXPECT_EQ(goesTo(R"("Param2": "Test Time / s")", "\"Test"), first);
    EXPECT_EQ(goesTo(R"("Y1": "Voltage / V")", "\"Volt"), placeOf(R"("Name": "Voltage / V")", "\"Volt"));
    EXPECT_EQ(goesTo(R"("X": "Nothing")", "\"Noth"), -1);
}

TEST(Definition, AtTheDefinitionTheNextMentionFollows)
{
    const qsizetype first = placeOf(R"("Name": "Test Time / s")", "\"Test");
    EXPECT_EQ(definitionOf(Document, first), placeOf(R"("Name": "Test Time / s", "Category": "Other")", "\"Test"));
    EXPECT_EQ(goesTo(R"({ "name": "Blue")", "\"Blue"), placeOf(R"("Curve 01": "Blue")", "\"Blue"));
    EXPECT_EQ(goesTo(R"("name": "Black")", "\"Black"), -1) << "nothing mentions it";
}

TEST(Definition, OfATitleInARecipeIsWhatHasIt)
{
    EXPECT_EQ(goesTo(R"("Param1": "Ageing")", "\"Ageing"), placeOf(R"("Ageing": [)", "["));
    EXPECT_EQ(goesTo(R"("Param2": "Retention")", "\"Ret"), placeOf(R"("Title": "Retention")", "\"Ret"));
    EXPECT_EQ(goesTo(R"("Param1": "Smoothed")", "\"Smo"), placeOf(R"("Title": "Smoothed")", "\"Smo"));
    EXPECT_EQ(goesTo(R"("Param1": "Per step")", "\"Per"), placeOf(R"("Per step": {)", "{"));
    EXPECT_EQ(goesTo(R"("UITitle": "Course")", "\"Course"), placeOf(R"("Name": "Course")", "\"Course"));
}

TEST(Definition, NothingIsDefinedOutsideOfTextsOrWhereTheTextIsNoJson)
{
    EXPECT_EQ(definitionOf(Document, 0), -1);
    EXPECT_EQ(goesTo(R"("Curve 01": "Blue")", "\"Curve"), -1);
    EXPECT_EQ(goesTo("[0, 0, 255]", "255"), -1);
    EXPECT_EQ(definitionOf("{ \"Colors\": ", 4), -1);
    EXPECT_EQ(definitionOf("", 0), -1);
    EXPECT_EQ(definitionOf(Document, 1'000'000), -1);
}
