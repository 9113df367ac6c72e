#include <config/UIConfigTest.h>
#include <support/VirtualSlot.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// "type: title" of each entry.
QStringList summary(const QList<RecipeConfigItem>& entries)
{
    QStringList result;
    for (const RecipeConfigItem& entry : entries) {
        result.append(entry.getType() + u": "_s + entry.getUITitle());
    }
    return result;
}

class Recipe : public UIConfigTest
{
protected:
    QString readRecipe(const QByteArray& json) const { return read(&UIConfigReaders::readContentListForRecipe, json); }

    /// The one entry that a group with \p entry yields.
    RecipeConfigItem readEntry(const QByteArray& entry) const
    {
        QList<RecipeConfigItem> entries;
        QString error;
        EXPECT_TRUE((config.*&UIConfigReaders::readRecipeCommandConfig)(
            jsonObject("{\"GraphCommand\": [" + entry + "]}"), u"GraphCommand"_s, entries, error));
        return entries.value(0);
    }

    QStringList graphs() const { return summary(config.getRecipeGraphCombinationsList()); }
    QStringList toolGraphs() const { return summary(config.getRecipeToolsGraphsList()); }
    QStringList toolTables() const { return summary(config.getRecipeToolsTablesList()); }
};

using RecipeDeathTest = Recipe;

} // namespace

TEST_F(Recipe, EachGroupFillsItsList)
{
    EXPECT_EQ(readRecipe(R"({"Recipe": {
        "ToolProcessedDataCommand": [{"UITitle": "p"}], "ToolStatisticsCommand": [{"UITitle": "s"}, {"UITitle": "t"}],
        "ToolSummaryCommand": [{"UITitle": "c"}], "GraphCommand": [{"UITitle": "g"}, {"UITitle": "h"}],
        "ToolRagonePlotCommand": [{"UITitle": "r"}]}})"),
              Success);
    EXPECT_THAT(graphs(), ElementsAre(u"GraphCommand: g"_s, u"GraphCommand: h"_s));
    EXPECT_THAT(toolTables(), ElementsAre(u"ToolSummaryCommand: c"_s));
    EXPECT_THAT(
        toolGraphs(),
        ElementsAre(u"ToolStatisticsCommand: s"_s, u"ToolStatisticsCommand: t"_s, u"ToolProcessedDataCommand: p"_s));
}

TEST_F(Recipe, EmptyGroupsAreAccepted)
{
    EXPECT_EQ(readRecipe(R"({"Recipe": {"GraphCommand": [], "ToolSummaryCommand": [], "ToolStatisticsCommand": [],
                                        "ToolProcessedDataCommand": []}})"),
              Success);
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(Recipe, MissingSectionFails)
{
    for (const char* json : {R"({})", R"({"Recipe": []})", R"({"recipe": {}})", R"({"Recipe": "text"})"}) {
        EXPECT_EQ(readRecipe(json), u"Missing recipe node"_s) << json;
    }
}

TEST_F(Recipe, MissingGroupFailsAfterTheGroupsBeforeIt)
{
    const QStringList commands{u"GraphCommand"_s, u"ToolSummaryCommand"_s, u"ToolStatisticsCommand"_s,
                               u"ToolProcessedDataCommand"_s};
    const QJsonArray group{QJsonObject{{u"UITitle"_s, u"title"_s}}};
    for (qsizetype missing = 0; missing < commands.size(); ++missing) {
        QJsonObject groups;
        for (const QString& command : commands) {
            groups.insert(command, group);
        }
        const qsizetype before = graphs().size() + toolTables().size() + toolGraphs().size();
        groups.insert(commands.at(missing), group.first().toObject());
        EXPECT_EQ(read(&UIConfigReaders::readContentListForRecipe, QJsonObject{{u"Recipe"_s, groups}}),
                  commands.at(missing) + u" command is not a Json array"_s);
        groups.remove(commands.at(missing));
        EXPECT_EQ(read(&UIConfigReaders::readContentListForRecipe, QJsonObject{{u"Recipe"_s, groups}}),
                  commands.at(missing) + u" command is not a Json array"_s);
        EXPECT_EQ(graphs().size() + toolTables().size() + toolGraphs().size(), before + 2 * missing);
    }
    EXPECT_EQ(graphs().size(), 6);
    EXPECT_EQ(toolTables().size(), 4);
    EXPECT_THAT(toolGraphs(), ElementsAre(u"ToolStatisticsCommand: title"_s, u"ToolStatisticsCommand: title"_s));
}

TEST_F(Recipe, SecondReadingAppends)
{
    const char* const json = R"({"Recipe": {"GraphCommand": [{"UITitle": "g"}], "ToolSummaryCommand": [],
        "ToolStatisticsCommand": [{"UITitle": "s"}], "ToolProcessedDataCommand": [{"UITitle": "p"}]}})";
    EXPECT_EQ(readRecipe(json), Success);
    EXPECT_EQ(readRecipe(json), Success);
    EXPECT_THAT(graphs(), ElementsAre(u"GraphCommand: g"_s, u"GraphCommand: g"_s));
    EXPECT_THAT(toolGraphs(),
                ElementsAre(u"ToolStatisticsCommand: s"_s, u"ToolProcessedDataCommand: p"_s,
                            u"ToolStatisticsCommand: s"_s, u"ToolProcessedDataCommand: p"_s));
}

TEST_F(Recipe, ParametersAreTakenInTheOrderOfTheirNumbers)
{
    const RecipeConfigItem entry =
        readEntry(R"({"UITitle": "t", "Param5": "e", "Param4": "d", "Param3": "c", "Param2": "b", "Param1": "a"})");
    EXPECT_EQ(entry.getUITitle(), u"t"_s);
    EXPECT_EQ(entry.getType(), u"GraphCommand"_s);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(entry.getParameter(i), QString(QChar(u'a' + i)));
    }
}

TEST_F(RecipeDeathTest, GapsBetweenParametersCloseUp)
{
    const RecipeConfigItem entry = readEntry(R"({"Param1": "one", "Param3": "three"})");
    EXPECT_EQ(entry.getParameter(0), u"one"_s);
    EXPECT_EQ(entry.getParameter(1), u"three"_s);
    EXPECT_DEATH(entry.getParameter(2), "index 2 .* 2 parameters");
}

TEST_F(RecipeDeathTest, SecondParameterAloneStandsAtIndexZero)
{
    const RecipeConfigItem entry = readEntry(R"({"Param2": "two"})");
    EXPECT_EQ(entry.getParameter(0), u"two"_s);
    EXPECT_DEATH(entry.getParameter(1), "index 1 .* 1 parameters");
}

TEST_F(RecipeDeathTest, ParametersThatAreNoTextOrHaveOtherNumbersAreSkipped)
{
    const RecipeConfigItem entry = readEntry(R"({"Param0": "zero", "Param1": 1, "Param2": null, "Param3": ["x"],
                                                 "Param4": "", "Param6": "six", "param5": "small", "Param05": "o"})");
    EXPECT_EQ(entry.getParameter(0), QString());
    EXPECT_DEATH(entry.getParameter(1), "index 1 .* 1 parameters");
}

TEST_F(RecipeDeathTest, EntryThatIsNoObjectIsAnEntryWithoutContent)
{
    const RecipeConfigItem entry = readEntry(R"("Param1")");
    EXPECT_EQ(entry.getUITitle(), QString());
    EXPECT_EQ(entry.getType(), u"GraphCommand"_s);
    EXPECT_DEATH(entry.getParameter(0), "index 0 .* 0 parameters");
}

TEST_F(RecipeDeathTest, ParameterOutOfRangeEndsTheProgramNamingIndexAndCount)
{
    RecipeConfigItem entry;
    EXPECT_DEATH(entry.getParameter(0), "getParameter: index 0 is out of range, the entry has 0 parameters");
    entry.addParameter(u"a"_s);
    entry.addParameter(u"b"_s);
    entry.addParameter(u"c"_s);
    EXPECT_DEATH(entry.getParameter(3), "getParameter: index 3 is out of range, the entry has 3 parameters");
    EXPECT_DEATH(entry.getParameter(-1), "getParameter: index -1 is out of range, the entry has 3 parameters");
}

TEST(RecipeConfigItemTest, IsEmptyByDefault)
{
    const RecipeConfigItem entry;
    EXPECT_TRUE(entry.getUITitle().isNull());
    EXPECT_TRUE(entry.getType().isNull());
}

TEST(RecipeConfigItemTest, CopiesCarryAllFieldsAndAreIndependent)
{
    RecipeConfigItem entry;
    entry.setUiTitle(u"title"_s);
    entry.setType(u"type"_s);
    entry.addParameter(u"a"_s);
    RecipeConfigItem copy(entry);
    RecipeConfigItem assigned;
    assigned = entry;
    entry.setUiTitle(u"changed"_s);
    entry.addParameter(u"b"_s);
    for (RecipeConfigItem* each : {&copy, &assigned}) {
        EXPECT_EQ(each->getUITitle(), u"title"_s);
        EXPECT_EQ(each->getType(), u"type"_s);
        EXPECT_EQ(each->getParameter(0), u"a"_s);
        each->addParameter(u"c"_s);
        EXPECT_EQ(each->getParameter(1), u"c"_s);
    }
    EXPECT_EQ(entry.getParameter(1), u"b"_s);
}

#if HAVE_VIRTUAL_SLOTS
TEST(RecipeConfigItemTest, OnlyTheDestructorIsVirtual)
{
    EXPECT_EQ(virtualSlots<RecipeConfigItem>(), 2U);
}
#endif

TEST(CommandNames, AreThoseOfTheRecipeSection)
{
    EXPECT_EQ(UIConfig::graphCommand(), u"GraphCommand"_s);
    EXPECT_EQ(UIConfig::toolSummaryCommand(), u"ToolSummaryCommand"_s);
    EXPECT_EQ(UIConfig::toolStatisticsCommand(), u"ToolStatisticsCommand"_s);
    EXPECT_EQ(UIConfig::toolRagonePlotCommand(), u"ToolRagonePlotCommand"_s);
    EXPECT_EQ(UIConfig::toolProcessedDataCommand(), u"ToolProcessedDataCommand"_s);
}
