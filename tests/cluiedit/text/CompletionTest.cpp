#include <check/Check.h>
#include <cluiedit/text/Completion.h>
#include <cluiedit/text/JsonScanner.h>
#include <data/ShippedFile.h>
#include <support/QtPrinters.h>
#include <support/Random.h>

#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace cluiedit;
using cluiconfig::check::checkText;
using cluiconfig::check::Result;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

const Result& shipped()
{
    static const Result result = checkText(shippedBytes(u"UIConfig.json"_s), u"UIConfig.json"_s);
    return result;
}

Candidates candidatesIn(QByteArray text)
{
    const qsizetype offset = text.indexOf('|');
    return candidates(text.remove(offset, 1), offset, shipped().configuration);
}

/// What is offered at the bar | in \p text.
QStringList offeredIn(const QByteArray& text)
{
    QStringList labels;
    for (const Candidate& each : candidatesIn(text).list) {
        labels.append(each.label);
    }
    return labels;
}

/// The same in an object of \p section.
QStringList offeredIn(const char* section, const QByteArray& text)
{
    return offeredIn(QByteArray("{ \"") + section + "\": " + text + " }");
}

} // namespace

TEST(Completion, OffersTheSectionsThatAreMissing)
{
    const QStringList offered = offeredIn(R"({ "Version": 29, "Colors": {}, "|" })");
    EXPECT_THAT(offered, Contains(u"Representations"_s));
    EXPECT_THAT(offered, Contains(u"dQ_dU"_s));
    EXPECT_THAT(offered, Not(Contains(u"Version"_s)));
    EXPECT_THAT(offered, Not(Contains(u"Colors"_s)));
}

TEST(Completion, AKeyComesWithItsColon)
{
    const Candidates found = candidatesIn(R"({ "Representations": [{ "Na|" }] })");
    ASSERT_FALSE(found.list.isEmpty());
    EXPECT_EQ(found.list.first().text, u"\"Name\": "_s);
    EXPECT_EQ(candidatesIn(R"({ "Representations": [{ "Na|": "x" }] })").list.first().text, u"\"Name\""_s);
}

TEST(Completion, OffersTheWordsOfTheDocument)
{
    EXPECT_THAT(offeredIn("Axes combinations", R"([{ "DEFAULT_SCALE_X": "|" }])"),
                ElementsAre(u"LINEAR"_s, u"LOGARITHMIC"_s));
    EXPECT_THAT(offeredIn("Axes combinations", R"([{ "ORTHONORMAL_AXIS": | }])"), ElementsAre(u"TRUE"_s, u"FALSE"_s));
    EXPECT_THAT(offeredIn("MSVUnits", R"([{ "Operator": "|" }])"), ElementsAre(u"None"_s, u"Multiply"_s, u"Divide"_s));
    EXPECT_THAT(offeredIn("MSVUnits", R"([{ "MultiParams": ["Mass", "|"] }])"), Contains(u"Area"_s));
    EXPECT_THAT(offeredIn("MSVUnits", R"([{ "MultiParams": ["Mass", "|"] }])"), Not(Contains(u"Mass"_s)));
    EXPECT_THAT(offeredIn("Debug", R"({ "saveZFitInputData": | })"), ElementsAre(u"true"_s, u"false"_s));
    EXPECT_THAT(offeredIn("Version", "|"), ElementsAre(u"29"_s));
}

TEST(Completion, NarrowsNamesToTheCategoryBeside)
{
    const QStringList ofStep = offeredIn("Axes combinations", R"([{ "X": [{ "Name": "|", "Category": "Step" }] }])");
    EXPECT_THAT(ofStep, Contains(u"End Voltage / V"_s));
    EXPECT_THAT(ofStep, Not(Contains(u"Voltage / V"_s)));
    EXPECT_EQ(offeredIn("Axes combinations", R"([{ "X": [{ "Category": "Step", "Name": "| }] }])"), ofStep)
        << "while it is typed";
    EXPECT_GT(offeredIn("Axes combinations", R"([{ "X": [{ "Name": "|" }] }])").size(), ofStep.size());
    EXPECT_GT(offeredIn("Axes combinations", R"([{ "X": [{ "Name": "|", "Category": "Nowhere" }] }])").size(),
              ofStep.size());
    EXPECT_EQ(offeredIn("Statistics", R"({ "A": [{ "Category": "Step", "Y": "|" }] })"), ofStep);
    EXPECT_EQ(offeredIn("Tools", R"({ "Summary Table": { "Per step": { "Step": ["|"] } } })"), ofStep);
    EXPECT_EQ(offeredIn("Recipe", R"({ "GraphCommand": [{ "Param1": "Step", "Param3": "|" }] })"), ofStep);
    EXPECT_THAT(offeredIn("dQ_dU", R"({ "Table": ["|"] })"), Contains(u"Voltage / V"_s));
    EXPECT_THAT(offeredIn("dQ_dU", R"({ "Table": ["|"] })"), Not(Contains(u"End Voltage / V"_s)));
}

TEST(Completion, NarrowsCategoriesToThoseThatHaveTheNamesBeside)
{
    EXPECT_THAT(offeredIn("Axes combinations", R"([{ "X": [{ "Name": "End Voltage / V", "Category": "|" }] }])"),
                ElementsAre(u"Step"_s));
    EXPECT_THAT(offeredIn("Axes combinations", R"([{ "X": [{ "Category": "|" }] }])").size(), testing::Gt(3));
    EXPECT_THAT(offeredIn("Recipe", R"({ "GraphCommand": [{ "Param1": "|", "Param2": "End Voltage / V" }] })"),
                ElementsAre(u"Step"_s));
    EXPECT_THAT(offeredIn("Tools", R"({ "Summary Table": { "Per step": { "Step": [], "|" } } })"),
                Contains(u"Cycle"_s));
}

TEST(Completion, OffersColorsAndTheElementsThatTheyAreFor)
{
    EXPECT_THAT(offeredIn("Colors", R"({ "Default colors": { "Grid": "|" } })"), Contains(u"Sky blue"_s));
    EXPECT_THAT(offeredIn("Colors", R"({ "Default colors": { "Grid": "Blue", "|" } })"), Contains(u"Cursor"_s));
    EXPECT_THAT(offeredIn("Colors", R"({ "Default colors": { "Grid": "Blue", "|" } })"), Not(Contains(u"Grid"_s)));
    EXPECT_THAT(offeredIn("Colors", R"({ "Custom colors": [{ "name": "|" }] })"), IsEmpty());
}

TEST(Completion, OffersTheTitlesThatRecipesReferTo)
{
    const QString graph = shipped().configuration.statistics.first().getTitle();
    const QString curve = shipped().configuration.statistics.first().getGraphItemsTitleList().first();
    EXPECT_THAT(offeredIn("Recipe", R"({ "ToolSummaryCommand": [{ "Param1": "|" }] })"),
                ElementsAre(u"Per step"_s, u"Per cycle"_s, u"Per loop"_s));
    EXPECT_THAT(offeredIn("Recipe", R"({ "ToolStatisticsCommand": [{ "Param1": "|" }] })"), Contains(graph));
    EXPECT_THAT(offeredIn("Recipe",
                          R"({ "ToolStatisticsCommand": [{ "Param2": "|", "Param1": ")" + graph.toUtf8() + R"(" }] })"),
                Contains(curve));
    EXPECT_THAT(offeredIn("Recipe", R"({ "ToolProcessedDataCommand": [{ "Param1": "|" }] })"),
                Contains(shipped().configuration.processedData.first().getTitle()));
    EXPECT_THAT(offeredIn("Recipe", R"({ "|" })"), Contains(u"GraphCommand"_s));
}

TEST(Completion, WhatBeginsAsTypedComesFirstThenWhatHasTheWords)
{
    const QStringList offered = offeredIn("Representations", R"([{ "X": "volt|" }])");
    ASSERT_FALSE(offered.isEmpty());
    EXPECT_TRUE(offered.first().startsWith("Voltage"_L1)) << offered.first().toStdString();
    EXPECT_THAT(offered, Contains(u"End Voltage / V"_s));
    EXPECT_EQ(offeredIn("Representations", R"([{ "X": "volt end| }])").first(), u"End Voltage / V"_s);
    EXPECT_THAT(offeredIn("Representations", R"([{ "X": "/ V|" }])"), Contains(u"Voltage / V"_s));
    EXPECT_THAT(offeredIn("Representations", R"([{ "X": "tstm|" }])"), Contains(u"Test Time / s"_s));
    EXPECT_THAT(offeredIn("Representations", R"([{ "X": "qqqqq|" }])"), IsEmpty());
}

TEST(Completion, KnowsWhatToReplace)
{
    const Candidates closed = candidatesIn(R"({ "MSVUnits": [{ "Operator": "Di|xx", "a": 1 }] })");
    EXPECT_EQ(closed.typed, u"Di"_s);
    EXPECT_TRUE(closed.isOpen);
    EXPECT_EQ(closed.end - closed.begin, 6);
    const Candidates behind = candidatesIn(R"({ "MSVUnits": [{ "Operator": "Divide"| }] })");
    EXPECT_FALSE(behind.isOpen);
    const Candidates empty = candidatesIn(R"({ "MSVUnits": [{ "Operator": | }] })");
    EXPECT_EQ(empty.begin, empty.end);
}

TEST(Completion, NothingIsOfferedWhereAnyTextWillDo)
{
    EXPECT_THAT(offeredIn("Representations", R"([{ "Name": "|" }])"), IsEmpty());
    EXPECT_THAT(offeredIn("Nothing", R"([{ "Name": "|" }])"), IsEmpty());
    EXPECT_THAT(offeredIn("|"), IsEmpty());
    EXPECT_THAT(offeredIn(R"([ "|" ])"), IsEmpty());
}

/// A quarter of the tokens of the shipped document each.
class CompletionOfTheShippedDocument : public testing::TestWithParam<int>
{
};

INSTANTIATE_TEST_SUITE_P(Quarters, CompletionOfTheShippedDocument, testing::Range(0, 4));

TEST_P(CompletionOfTheShippedDocument, AlwaysLoads)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    ASSERT_TRUE(shipped().verdict.loads);
    const int most = qEnvironmentVariableIntValue("CLCONFIGUI_COMPLETION_ALL") != 0 ? 1'000'000 : 1;
    Random random(static_cast<unsigned>(GetParam()));
    JsonScanner scanner(text);
    int tokens = 0;
    int tried = 0;
    while (scanner.next()) {
        if (scanner.sign() != 0 || tokens++ % 4 != GetParam()) {
            continue;
        }
        const Candidates found = candidates(text, scanner.token().begin, shipped().configuration);
        ASSERT_EQ(found.begin, scanner.token().begin);
        for (int i = 0; i < std::min<qsizetype>(most, found.list.size()); ++i) {
            const Candidate& candidate = most == 1 ? random.of(found.list) : found.list.at(i);
            QByteArray changed = text;
            changed.replace(found.begin, found.end - found.begin, candidate.text.toUtf8());
            const Result result = checkText(changed, u"UIConfig.json"_s);
            ASSERT_TRUE(result.verdict.loads)
                << candidate.text.toStdString() << " at " << found.begin << ": " << result.verdict.error.toStdString();
            ++tried;
        }
    }
    EXPECT_GT(tokens, 3000);
    EXPECT_GT(tried, 500);
}

TEST(Completion, SurvivesAnyPlaceInATextThatIsCutOff)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    Random random(3);
    for (int i = 0; i < 300; ++i) {
        const QByteArray cut = text.first(random.below(text.size())) + text.sliced(random.below(text.size()));
        const qsizetype offset = random.below(cut.size() + 1);
        const Candidates found = candidates(cut, offset, shipped().configuration);
        ASSERT_LE(found.begin, offset);
        ASSERT_LE(offset, found.end);
        ASSERT_LE(found.end, cut.size());
    }
}
