#include <config/ColumnsTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class DQdUTable : public ColumnsTest
{
protected:
    QString readDQdU(const QByteArray& json) const { return read(&UIConfigReaders::readDQdUColumns, json); }

    QStringList dQdU() const { return names(config.getDQdUColumns()); }
};

} // namespace

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
    EXPECT_EQ(config.getDQdUItem().getTitle(), QString());
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
