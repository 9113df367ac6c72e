#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/ConfigRepresentation.h>
#include <config/Configuration.h>
#include <config/MSVUnitsCombination.h>
#include <config/ProcessTask.h>
#include <config/UIConfigTest.h>

#include <QCoreApplication>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using lumo::tools::Singleton;

namespace {

class LoudCombination : public MSVUnitsCombination
{
public:
    ~LoudCombination() override { printLine(u"record deleted"_s); }
};

const ProcessTask ExitWithRecord("exit-with-record", [] {
    Singleton<UIConfig>::instance().getMSVUnitsCombinationManager().append(new LoudCombination);
    printLine(u"exit"_s);
});

class LifeCycle : public UIConfigTest
{
    const ConfigDocumentCatalogue m_catalogue;
};

/// A document with one section that makes its reader fail, and what the load then says.
struct BadSection
{
    QString key;
    QByteArray section;
    QString message;
};

void PrintTo(const BadSection& bad, std::ostream* out)
{
    *out << bad.key.toStdString();
}

class LifeCycleWithBadSection : public LifeCycle, public testing::WithParamInterface<BadSection>
{
};

} // namespace

TEST_F(LifeCycle, ConstructionLeavesEverySectionEmpty)
{
    EXPECT_EQ(filledSections(config), QStringList());
    EXPECT_EQ(config.getDefaultConfigRepresentation(), nullptr);
    EXPECT_FALSE(config.importDialogShowClIds());
    EXPECT_FALSE(config.saveImportedParquetFiles());
    EXPECT_FALSE(config.saveZFitInputData());
    QColor color(Qt::green);
    EXPECT_FALSE(config.getDefaultColor(u"voltage"_s, color));
    EXPECT_EQ(color, QColor(Qt::green));
}

TEST_F(LifeCycle, ConstructionTakesTheDocumentsDirectoryAndNoFileFilter)
{
    const QString documents = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0);
    EXPECT_FALSE(documents.isEmpty());
    EXPECT_EQ(config.getLastDirectoryBoard(), documents);
    EXPECT_EQ(config.getLastDirectoryImport(), documents);
    EXPECT_EQ(config.getLastDirectoryExport(), documents);
    EXPECT_EQ(config.getLastDirectoryRecipe(), documents);
    EXPECT_EQ(config.getLastImportedFileFilter(), QString());
}

TEST_F(LifeCycle, LoadFillsEverySection)
{
    EXPECT_EQ(load(configDocument()), Success);
    EXPECT_EQ(filledSections(config), allSections());
    EXPECT_EQ(config.getAxesCombinationManager().getAxesCombinations().size(), 3);

    EXPECT_EQ(config.getAxesCombinationManager().getYAxesNames(u"Time"_s), QStringList({u"Voltage"_s, u"Current"_s}));
    EXPECT_EQ(config.getDefaultConfigRepresentation()->name(), u"Course"_s);
    EXPECT_EQ(config.getSkippedTasks(), QStringList(u"Rest"_s));
    QColor color;
    EXPECT_TRUE(config.getDefaultColor(u"voltage"_s, color));
    EXPECT_EQ(color, QColor(230, 159, 0));
    EXPECT_EQ(config.getStatGraphFromTitle(u"Retention"_s).getGraphItemsTitleList(), QStringList(u"Mean"_s));
    EXPECT_EQ(config.getRagonePlotGraphFromTitle(u"Cells"_s).getGraphItemsTitleList(), QStringList(u"Discharge"_s));
    EXPECT_EQ(config.getProcessedDataGraphFromTitle(u"Smoothed"_s).getStreamY2(), u"Current"_s);
    EXPECT_EQ(config.getDQdUItem().getTitle(), u"dQ/dU"_s);
    EXPECT_TRUE(config.saveZFitInputData());
}

TEST_F(LifeCycle, SecondLoadAppendsToEveryList)
{
    EXPECT_EQ(load(configDocument()), Success);
    QMap<QString, qsizetype> doubled = entries(config);
    for (auto size = doubled.begin(); size != doubled.end(); ++size) {
        *size *= size.key() == u"Debug"_s ? 1 : 2; // a switch is on or off
    }
    EXPECT_EQ(load(configDocument()), Success);
    EXPECT_EQ(entries(config), doubled);
}

TEST_F(LifeCycle, DeleteAllEmptiesFiveSectionsAndKeepsTheOthers)
{
    EXPECT_EQ(load(configDocument()), Success);
    QMap<QString, qsizetype> left = entries(config);
    for (const QString& emptied :
         {u"Axes combinations"_s, u"Representations"_s, u"MSVUnits"_s, u"Filters"_s, u"Tools"_s}) {
        left[emptied] = 0;
    }
    UIConfig::RenderingConfiguration rendering;
    rendering.lineWidth = 7;
    config.setRenderingConfiguration(rendering);
    config.setLastDirectoryExport(u"elsewhere"_s);
    config.setLastImportedFileFilter(u"*.csv"_s);

    config.deleteAll();

    EXPECT_EQ(entries(config), left);
    EXPECT_EQ(config.getDefaultConfigRepresentation(), nullptr);
    QColor color;
    EXPECT_TRUE(config.getDefaultColor(u"voltage"_s, color));
    EXPECT_EQ(config.getDQdUItem().getTitle(), u"dQ/dU"_s);
    EXPECT_TRUE(config.importDialogShowClIds());
    EXPECT_TRUE(config.saveImportedParquetFiles());
    EXPECT_TRUE(config.saveZFitInputData());
    EXPECT_EQ(config.getRenderingConfiguration().lineWidth, 7);
    EXPECT_EQ(config.getLastDirectoryExport(), u"elsewhere"_s);
    EXPECT_EQ(config.getLastImportedFileFilter(), u"*.csv"_s);
}

TEST_F(LifeCycle, DeleteAllTwiceDoesNothingMore)
{
    EXPECT_EQ(load(configDocument()), Success);
    config.deleteAll();
    const QStringList left = filledSections(config);
    config.deleteAll();
    EXPECT_EQ(filledSections(config), left);
}

TEST_F(LifeCycle, DeleteAllLeavesTheCatalogueAlone)
{
    EXPECT_EQ(load(configDocument()), Success);
    const auto* column = config.getSummaryTablePerLoopColumns().value(0);
    ASSERT_NE(column, nullptr);
    config.deleteAll();
    const auto& catalogue = Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    EXPECT_EQ(catalogue.getConfigDataArray(u"Energy"_s, u"Loop"_s), column);
    EXPECT_THAT(catalogue.getAll(), testing::SizeIs(7));
}

TEST_F(LifeCycle, DestructionDeletesTheRecords)
{
    EXPECT_EQ(ExitWithRecord.run().lines, QStringList({u"exit"_s, u"record deleted"_s}));
}

TEST_P(LifeCycleWithBadSection, KeepsTheSectionsBeforeItAndReadsNoneAfterIt)
{
    const BadSection& bad = GetParam();
    EXPECT_EQ(load(with(configDocument(), bad.key, jsonValue(bad.section))), bad.message);
    EXPECT_EQ(filledSections(config), allSections().first(allSections().indexOf(bad.key)));
}

// "Filters" and "Debug" cannot fail. The sections around them tell when they are read.
INSTANTIATE_TEST_SUITE_P(
    All, LifeCycleWithBadSection,
    testing::Values(BadSection{u"Axes combinations"_s, "0", u"Axes combinations array missing"_s},
                    BadSection{u"Representations"_s, "0", u"Representations array missing"_s},
                    BadSection{u"MSVUnits"_s, "0", u"Multi units combinations array missing"_s},
                    BadSection{u"Tools"_s, R"({"Summary Table": {"Per step": {"Step": 0}}})",
                               u"Summary table category is not a Json array"_s},
                    BadSection{u"Colors"_s, "0", u"Missing colors configuration node"_s},
                    BadSection{u"Statistics"_s, "0", u"Missing statistics graphs configuration node"_s},
                    BadSection{u"Ragone Plot"_s, "0", u"Missing Ragone Plot graphs configuration node"_s},
                    BadSection{u"Processed Data"_s, "0", u"Missing processed data graphs configuration node"_s},
                    BadSection{u"Recipe"_s, "0", u"Missing recipe node"_s},
                    BadSection{u"Process Formula"_s, "0", u"Missing Process Formula configuration node"_s},
                    BadSection{u"dQ_dU"_s, "0", u"Missing dQ/dU node"_s}),
    [](const auto& parameter) { return parameter.param.key.simplified().remove(u' ').remove(u'_').toStdString(); });

TEST_F(LifeCycle, RequiredSectionsAreRefusedWithTheirSentencesWhenTheyAreMissing)
{
    QStringList optional;
    const QList<uiconfig::Section> sections = uiconfig::sections();
    for (const uiconfig::Section& section : sections) {
        config.deleteAll();
        const QString outcome = load(without(configDocument(), section.key));
        EXPECT_EQ(outcome, QString(section.missing)) << section.key.data();
        if (outcome == Success) {
            optional.append(section.key);
        }
    }
    EXPECT_THAT(optional, testing::IsSupersetOf({u"Filters"_s, u"Tools"_s, u"Debug"_s}));
}

TEST_F(LifeCycle, OtherTopLevelKeysAreIgnored)
{
    EXPECT_EQ(load(with(configDocument(), u"Comment"_s, u"kept by hand"_s)), Success);
    EXPECT_EQ(filledSections(config), allSections());
}

TEST_F(LifeCycle, SectionKeysAreCaseSensitive)
{
    const QJsonObject document = configDocument();
    EXPECT_EQ(load(with(without(document, u"Colors"_s), u"colors"_s, document.value("Colors"_L1))),
              u"Missing colors configuration node"_s);
}

TEST_F(LifeCycle, FileNamesAreBareAndThePathUsesSlashes)
{
    EXPECT_EQ(UIConfig::uiConfigJson(), u"UIConfig.json"_s);
    EXPECT_EQ(UIConfig::zfitConfigJson(), u"ZFitConfig.json"_s);
    EXPECT_EQ(UIConfig::zfitConfigJsonPath(), QCoreApplication::applicationDirPath() + u"/ZFitConfig.json"_s);
}
