// A document as a value, read without the process-wide configuration.

#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
#include <config/Configuration.h>
#include <config/UIConfigTest.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using uiconfig::Configuration;
using uiconfig::Refusals;

namespace {

class ConfigurationTest : public UIConfigTest
{
protected:
    static void read(const QJsonObject& root, Configuration& configuration, Refusals& refusals)
    {
        const auto& catalogue =
            lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
        uiconfig::readConfiguration(root, {catalogue, configuration, refusals});
    }

    /// What a reading that goes on refuses: "place: sentence".
    static QStringList allRefusals(const QJsonObject& root)
    {
        Configuration configuration;
        Refusals refusals(Refusals::AtFirst::GoOn);
        read(root, configuration, refusals);
        QStringList all;
        for (const uiconfig::Refusal& refusal : refusals.all()) {
            all.append(refusal.place + u": "_s + refusal.sentence);
        }
        return all;
    }

private:
    const ConfigDocumentCatalogue m_catalogue;
};

/// The small document with one entry of axes combinations.
QJsonObject withEntry(const QByteArray& entry)
{
    return with(configDocument(), u"Axes combinations"_s, QJsonArray{jsonObject(entry)});
}

} // namespace

TEST_F(ConfigurationTest, TwoDocumentsStandSideBySideAndTheProcessHasNeither)
{
    Configuration first;
    Configuration second;
    Refusals refusals(Refusals::AtFirst::Stop);
    read(configDocument(), first, refusals);
    read(with(configDocument(), u"Filters"_s, jsonObject(R"({"Tasks": {"Skipped": ["A", "B"]}})")), second, refusals);
    EXPECT_TRUE(refusals.isEmpty());
    EXPECT_THAT(first.skippedTasks, ElementsAre(u"Rest"_s));
    EXPECT_THAT(second.skippedTasks, ElementsAre(u"A"_s, u"B"_s));
    EXPECT_EQ(first.axesCombinations.size(), 3);
    EXPECT_EQ(second.axesCombinations.size(), 3);
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(ConfigurationTest, ReadingMarksNoDataArrayAsDefaultAxis)
{
    auto& catalogue = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    auto* time = dynamic_cast<cl::batterydata::ClConfigDataArray*>(catalogue.getConfigDataArrays(u"Time"_s).value(0));
    ASSERT_NE(time, nullptr);
    time->setExportCategory(cl::batterydata::ExportCategory{2});
    Configuration configuration;
    Refusals refusals(Refusals::AtFirst::Stop);
    read(configDocument(), configuration, refusals);
    EXPECT_TRUE(configuration.representations.constFirst().isDefault());
    EXPECT_FALSE(time->isDefaultX());
    EXPECT_EQ(load(configDocument()), Success);
    EXPECT_TRUE(time->isDefaultX());
}

TEST_F(ConfigurationTest, LoadingStopsAtTheFirstRefusalAndKeepsWhatWasRead)
{
    Configuration configuration;
    Refusals refusals(Refusals::AtFirst::Stop);
    read(without(without(configDocument(), u"MSVUnits"_s), u"Colors"_s), configuration, refusals);
    ASSERT_EQ(refusals.all().size(), 1);
    EXPECT_EQ(refusals.all().constFirst().place, u"/MSVUnits"_s);
    EXPECT_EQ(configuration.representations.size(), 2);
    EXPECT_TRUE(configuration.skippedTasks.isEmpty());
}

TEST_F(ConfigurationTest, DiagnosisGoesOnThroughAllSectionsInTheOrderOfReading)
{
    QJsonObject document = without(without(configDocument(), u"MSVUnits"_s), u"Colors"_s);
    document.insert(u"Version"_s, 28);
    document.insert(u"Recipe"_s, QJsonObject{{u"GraphCommand"_s, QJsonArray()}});
    EXPECT_THAT(
        allRefusals(document),
        ElementsAre(u"/Version: The format version is 28: expected 29"_s,
                    u"/MSVUnits: Multi units combinations array missing"_s,
                    u"/Colors: Missing colors configuration node"_s,
                    u"/Recipe/ToolSummaryCommand: ToolSummaryCommand command is not a Json array"_s,
                    u"/Recipe/ToolStatisticsCommand: ToolStatisticsCommand command is not a Json array"_s,
                    u"/Recipe/ToolProcessedDataCommand: ToolProcessedDataCommand command is not a Json array"_s));
}

TEST_F(ConfigurationTest, DiagnosisTakesAnUnknownArrayForOneThatWaitsToBeCorrected)
{
    EXPECT_THAT(
        allRefusals(withEntry(R"({
            "X": [{ "Name": "Tme", "Category": "Potentiostat" }],
            "Y1/Y2": [{ "Name": "Voltage" }, { "Name": "Curent", "Category": "Potentiostat" }],
            "DEFAULT_SCALE_X": "LINEAR", "ORTHONORMAL_AXIS": true })")),
        ElementsAre(u"/Axes combinations/0/X/0: Unexpected axes combination X: Tme (Potentiostat)"_s,
                    u"/Axes combinations/0/DEFAULT_SCALE_Y: Unexpected axes combination default scale"_s,
                    u"/Axes combinations/0/ORTHONORMAL_AXIS: Unexpected axes combination orthonormal parameter"_s,
                    u"/Axes combinations/0/Y1~1Y2/1: Unexpected axes combination Y1/Y2: Curent (Potentiostat)"_s));
}

TEST_F(ConfigurationTest, DiagnosisPairsWhatItCanOnceScalesWereRefused)
{
    Configuration configuration;
    Refusals refusals(Refusals::AtFirst::GoOn);
    read(withEntry(R"({ "X": [{ "Name": "Time" }, { "Name": "Tme", "Category": "Potentiostat" }],
                        "Y1/Y2": [{ "Name": "Voltage" }] })"),
         configuration, refusals);
    EXPECT_EQ(refusals.all().size(), 4);
    EXPECT_EQ(configuration.axesCombinations.size(), 1);
}

TEST_F(ConfigurationTest, DiagnosisRefusesAnEntryForEachOfItsMistakes)
{
    QJsonObject document = configDocument();
    document.insert(u"Representations"_s, QJsonArray{jsonObject(R"({"X": "Tme", "Y1": "Voltge", "Y2": "Curent"})"), 1});
    document.insert(u"Colors"_s, jsonObject(R"({"Custom colors": [1, {"name": "a"}, {"name": "b", "RGB": [1]}]})"));
    document.insert(u"Processed Data"_s, QJsonArray{1, QJsonObject(), 2});
    document.insert(u"Tools"_s,
                    jsonObject(R"({"Summary Table": {"Per step": {"A": 1, "B": 2}, "Per loop": {"A": 1}}})"));
    document.insert(u"dQ_dU"_s, QJsonObject());
    EXPECT_THAT(allRefusals(document),
                ElementsAre(u"/Representations/0/Name: No name set for representation"_s,
                            u"/Representations/0/X: X not set for representation "_s,
                            u"/Representations/0/Y1: Unexpected Y1 Voltge"_s,
                            u"/Representations/0/Y2: Unexpected Y2 Curent"_s,
                            u"/Representations/1/Name: No name set for representation"_s,
                            u"/Representations/1/X: X not set for representation "_s,
                            u"/Representations/1: Neither Y1 nor Y2 set for representation "_s,
                            u"/Tools/Summary Table/Per step/A: Summary table category is not a Json array"_s,
                            u"/Tools/Summary Table/Per step/B: Summary table category is not a Json array"_s,
                            u"/Colors/Custom colors/0: Color is not a Json object"_s,
                            u"/Colors/Custom colors/1/RGB: Color a is not a Json array"_s,
                            u"/Colors/Custom colors/2/RGB: Color b is not correctly formed"_s,
                            u"/Colors/Default colors: Default colors is not an object node"_s,
                            u"/Processed Data/0: Missing processed data graphs configuration node"_s,
                            u"/Processed Data/2: Missing processed data graphs configuration node"_s,
                            u"/dQ_dU/Table: Missing dQ/dU table configuration node"_s));
}
