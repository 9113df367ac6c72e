#include <config/ProcessTask.h>
#include <config/SettingsKeys.h>
#include <config/UIConfigTest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QVariant>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using lumo::tools::Singleton;
using testing::ElementsAre;
using testing::FieldsAre;

namespace {

/// The keys as the store has them, which other versions of the application rely on.
const QString MaxPoints = u"Graph.MaxNumberPointsInput"_s;
const QString MinPoints = u"Graph.MinNumberPointsInput"_s;
const QString TargetPoints = u"Graph.TargetNumberPointsInput"_s;
const QString MarkerEnable = u"Graph.Marker.VisibilityThresholdEnable"_s;
const QString MarkerValue = u"Graph.Marker.VisibilityThresholdValue"_s;
const QString LineWidth = u"Graph.Line.Width"_s;

void printRendering(const UIConfig::RenderingConfiguration& rendering)
{
    printLine(u"%1 %2 %3 %4 %5 %6"_s.arg(rendering.maxNumberPointsInput)
                  .arg(rendering.minNumberPointsInput)
                  .arg(rendering.targetNumberPointsInput)
                  .arg(rendering.markerVisibilityThresholdEnable)
                  .arg(rendering.markerVisibilityThresholdValue)
                  .arg(rendering.lineWidth));
}

const ProcessTask PrintRenderingConfiguration("print-rendering-configuration", [] {
    printRendering(Singleton<UIConfig>::instance().getRenderingConfiguration());
});

const ProcessTask PrintFlags("print-flags", [] {
    const UIConfig& config = Singleton<UIConfig>::instance();
    printLine(u"%1 %2 %3 %4"_s.arg(config.isRefreshDataConfirmDialogDisplay())
                  .arg(config.isRemoveDataConfirmDialogDisplay())
                  .arg(config.isDUTTypeEditionConfirmDialogDisplay())
                  .arg(config.showStickersFrequency()));
});

const ProcessTask PrintDialogState("print-dialog-state", [] {
    UIConfig& config = Singleton<UIConfig>::instance();
    printLine(config.getLastDirectoryExport());
    printLine(u'"' + config.getLastImportedFileFilter() + u'"');
});

/// A settings store that keeps what it is given as it is given, and remembers every state that was written to it.
/// Formats of files turn values into text.
class RecordingStore
{
public:
    RecordingStore()
    {
        const auto reads = [](QIODevice&, QSettings::SettingsMap& map) {
            map = states.isEmpty() ? QSettings::SettingsMap() : states.constLast();
            return true;
        };
        const auto writes = [](QIODevice& device, const QSettings::SettingsMap& map) {
            states.append(map);
            return device.write("written") > 0;
        };
        const auto format = QSettings::registerFormat(u"recorded"_s, reads, writes);
        QSettings::setPath(format, QSettings::UserScope, qEnvironmentVariable("HOME"));
        QSettings::setPath(format, QSettings::SystemScope, qEnvironmentVariable("HOME") + u"/no-system"_s);
        QSettings::setDefaultFormat(format);
    }

    static inline QList<QSettings::SettingsMap> states;
};

/// A test with a settings store of its own, whose UIConfig is not constructed before the test asks for it.
class Preferences : public testing::Test
{
protected:
    static UIConfig& config() { return Singleton<UIConfig>::instance(); }
    static void store(const QString& key, const QVariant& value) { QSettings().setValue(key, value); }
};

bool operator==(const UIConfig::RenderingConfiguration& a, const UIConfig::RenderingConfiguration& b)
{
    return a.maxNumberPointsInput == b.maxNumberPointsInput && a.minNumberPointsInput == b.minNumberPointsInput
        && a.targetNumberPointsInput == b.targetNumberPointsInput
        && a.markerVisibilityThresholdEnable == b.markerVisibilityThresholdEnable
        && a.markerVisibilityThresholdValue == b.markerVisibilityThresholdValue && a.lineWidth == b.lineWidth;
}

} // namespace

TEST_F(Preferences, EmptyStoreGivesTheDefaultRendering)
{
    EXPECT_THAT(config().getRenderingConfiguration(), FieldsAre(32000U, 4000U, 8000U, true, 1000, 1));
    EXPECT_EQ(QSettings().allKeys(), QStringList()) << "reading writes nothing";
}

TEST_F(Preferences, EmptyStoreShowsTheThreeConfirmationsAndNoStickers)
{
    EXPECT_TRUE(config().isRefreshDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isRemoveDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isDUTTypeEditionConfirmDialogDisplay());
    EXPECT_FALSE(config().showStickersFrequency());
}

TEST_F(Preferences, StoredRenderingIsReadAtConstruction)
{
    store(MaxPoints, 4294967295U);
    store(MinPoints, 2);
    store(TargetPoints, u"3"_s);
    store(MarkerEnable, false);
    store(MarkerValue, -4);
    store(LineWidth, 5);
    EXPECT_THAT(config().getRenderingConfiguration(), FieldsAre(4294967295U, 2U, 3U, false, -4, 5));
}

TEST_F(Preferences, StoredRenderingThatDoesNotConvertIsZeroNotTheDefault)
{
    store(MaxPoints, u"many"_s);
    store(MinPoints, u"-1"_s);
    store(TargetPoints, u"3.5"_s);
    store(MarkerEnable, QStringList({u"true"_s, u"true"_s}));
    store(MarkerValue, u"a thousand"_s);
    store(LineWidth, u"4294967296"_s);
    EXPECT_THAT(config().getRenderingConfiguration(), FieldsAre(0U, 0U, 0U, false, 0, 0));
}

// A folder in the place of the store's file can be neither read nor written, whoever runs the test.
TEST_F(Preferences, UnreadableStoreGivesTheDefaults)
{
    ASSERT_TRUE(QDir().mkpath(QSettings().fileName()));
    EXPECT_THAT(config().getRenderingConfiguration(), FieldsAre(32000U, 4000U, 8000U, true, 1000, 1));
    EXPECT_TRUE(config().isRefreshDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isRemoveDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isDUTTypeEditionConfirmDialogDisplay());
    EXPECT_FALSE(config().showStickersFrequency());
}

TEST_F(Preferences, StoreThatCannotBeWrittenIsPassedOver)
{
    ASSERT_TRUE(QDir().mkpath(QSettings().fileName()));
    const UIConfig::RenderingConfiguration rendering{1, 2, 3, false, -4, 0};
    config().setRenderingConfiguration(rendering);
    EXPECT_TRUE(config().getRenderingConfiguration() == rendering) << "kept for the rest of the run";
    config().setShowStickersFrequency(true);
    EXPECT_FALSE(config().showStickersFrequency()) << "what the store holds, which is nothing";
    config().setRefreshDataConfirmDialogDisplay(false);
    EXPECT_TRUE(config().isRefreshDataConfirmDialogDisplay());
    EXPECT_TRUE(QFileInfo(QSettings().fileName()).isDir());
}

#ifdef Q_OS_UNIX

namespace {

/// As on a disk that is full: nothing gets into a file, whoever runs the test.
class FullDisk
{
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_usual), 0);
        const rlimit none{.rlim_cur = 0, .rlim_max = m_usual.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
    }
    ~FullDisk() { EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_usual), 0); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_usual{};
};

QByteArray contentOfStore()
{
    QFile file(QSettings().fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesOfStore()
{
    return QFileInfo(QSettings().fileName()).dir().entryList(QDir::Files | QDir::Hidden);
}

QSettings::Status statusAfterChange()
{
    QSettings settings;
    settings.setValue(u"Change"_s, 1);
    settings.sync();
    return settings.status();
}

const UIConfig::RenderingConfiguration OtherRendering{1, 2, 3, false, -4, 0};

} // namespace

TEST_F(Preferences, WhatAFullDiskDoesNotTakeHoldsForTheRunAndIsWrittenWithTheNextChange)
{
    store(LineWidth, 5);
    const QByteArray before = contentOfStore();
    ASSERT_FALSE(before.isEmpty());
    {
        const FullDisk disk;
        config().setRenderingConfiguration(OtherRendering);
        config().setShowStickersFrequency(true);
        config().setRemoveDataConfirmDialogDisplay(false);
        EXPECT_TRUE(config().getRenderingConfiguration() == OtherRendering);
        EXPECT_TRUE(config().showStickersFrequency());
        EXPECT_FALSE(config().isRemoveDataConfirmDialogDisplay());
        EXPECT_EQ(statusAfterChange(), QSettings::AccessError);
        EXPECT_EQ(contentOfStore(), before);
        EXPECT_EQ(filesOfStore().size(), 1);
    }
    EXPECT_EQ(PrintFlags.run().lines, QStringList(u"1 1 1 0"_s)) << "other processes do not see it";
    config().setRefreshDataConfirmDialogDisplay(false);
    EXPECT_EQ(PrintFlags.run().lines, QStringList(u"0 0 1 1"_s));
    EXPECT_EQ(PrintRenderingConfiguration.run().lines, QStringList(u"1 2 3 0 -4 0"_s));
}

TEST_F(Preferences, StoreThatAFullDiskDoesNotEvenLetBeginStaysEmpty)
{
    {
        const FullDisk disk;
        config().setRenderingConfiguration(OtherRendering);
        config().setShowStickersFrequency(true);
        EXPECT_TRUE(config().getRenderingConfiguration() == OtherRendering);
        EXPECT_FALSE(config().showStickersFrequency()) << "what the store holds, which is nothing";
        EXPECT_EQ(statusAfterChange(), QSettings::AccessError);
    }
    EXPECT_EQ(contentOfStore(), QByteArray());
    config().setShowStickersFrequency(true);
    EXPECT_EQ(PrintFlags.run().lines, QStringList(u"1 1 1 1"_s));
}

TEST_F(Preferences, StoreThatMayOnlyBeReadStaysAsItIs)
{
    if (geteuid() == 0) {
        // Permissions do not bind root, who becomes somebody else with the same home.
        constexpr uid_t Nobody = 65534;
        ASSERT_EQ(chown(qPrintable(qEnvironmentVariable("HOME")), Nobody, Nobody), 0);
        ASSERT_EQ(seteuid(Nobody), 0);
    }
    store(LineWidth, 5);
    const QByteArray before = contentOfStore();
    const QByteArray directory = QFileInfo(QSettings().fileName()).path().toLocal8Bit();
    ASSERT_EQ(chmod(qPrintable(QSettings().fileName()), 0444), 0);
    ASSERT_EQ(chmod(directory.constData(), 0555), 0);

    EXPECT_EQ(config().getRenderingConfiguration().lineWidth, 5);
    config().setRenderingConfiguration(OtherRendering);
    config().setShowStickersFrequency(true);
    EXPECT_TRUE(config().getRenderingConfiguration() == OtherRendering);
    EXPECT_TRUE(config().showStickersFrequency()) << "for the rest of the run";
    EXPECT_EQ(statusAfterChange(), QSettings::AccessError);
    EXPECT_EQ(contentOfStore(), before);
    EXPECT_EQ(filesOfStore().size(), 1);
    ASSERT_EQ(chmod(directory.constData(), 0755), 0);
    ASSERT_EQ(seteuid(getuid()), 0); // otherwise nobody may look for leaks
}

#endif

TEST_F(Preferences, RenderingIsKeptAndWrittenKeyByKeyWithItsTypes)
{
    const RecordingStore recording;
    UIConfig::RenderingConfiguration rendering{1, 2, 3, false, -4, 0};
    config().setRenderingConfiguration(rendering);
    EXPECT_TRUE(config().getRenderingConfiguration() == rendering);

    // One store a value, in the order of the fields.
    const QStringList keys{MaxPoints, MinPoints, TargetPoints, MarkerEnable, MarkerValue, LineWidth};
    ASSERT_EQ(RecordingStore::states.size(), keys.size());
    for (qsizetype i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(RecordingStore::states.at(i).size(), i + 1);
        EXPECT_TRUE(RecordingStore::states.at(i).contains(keys.at(i))) << keys.at(i).toStdString();
    }
    const QSettings::SettingsMap& written = RecordingStore::states.constLast();
    EXPECT_EQ(written.value(MaxPoints), QVariant(1U));
    EXPECT_EQ(written.value(MinPoints), QVariant(2U));
    EXPECT_EQ(written.value(TargetPoints), QVariant(3U));
    EXPECT_EQ(written.value(MarkerEnable), QVariant(false));
    EXPECT_EQ(written.value(MarkerValue), QVariant(-4));
    EXPECT_EQ(written.value(LineWidth), QVariant(0));
    QList<int> types;
    for (const QString& key : keys) {
        types.append(written.value(key).typeId());
    }
    EXPECT_THAT(types,
                ElementsAre(QMetaType::UInt, QMetaType::UInt, QMetaType::UInt, QMetaType::Bool, QMetaType::Int,
                            QMetaType::Int));
}

TEST_F(Preferences, RenderingIsNeitherCheckedNorClamped)
{
    const UIConfig::RenderingConfiguration odd{0, 4294967295U, 7, true, -2147483647, 0};
    config().setRenderingConfiguration(odd);
    EXPECT_TRUE(config().getRenderingConfiguration() == odd);
    EXPECT_EQ(PrintRenderingConfiguration.run().lines, QStringList(u"0 4294967295 7 1 -2147483647 0"_s));
}

TEST_F(Preferences, RenderingComesBackInANewProcess)
{
    config().setRenderingConfiguration({50000, 5000, 12345, false, 250, 3});
    EXPECT_EQ(PrintRenderingConfiguration.run().lines, QStringList(u"50000 5000 12345 0 250 3"_s));
}

TEST_F(Preferences, ChangeOfTheStoreShowsInTheFlagsAtOnceButNotInTheRendering)
{
    EXPECT_EQ(config().getRenderingConfiguration().lineWidth, 1);
    store(LineWidth, 9);
    EXPECT_EQ(config().getRenderingConfiguration().lineWidth, 1);

    store(u"RefreshDataConfirmDisplay"_s, false);
    EXPECT_FALSE(config().isRefreshDataConfirmDialogDisplay());
    store(u"RefreshDataConfirmDisplay"_s, true);
    EXPECT_TRUE(config().isRefreshDataConfirmDialogDisplay());
    store(u"RemoveDataConfirmDisplay"_s, false);
    EXPECT_FALSE(config().isRemoveDataConfirmDialogDisplay());
    store(u"DUTTypeEditionConfirmDisplay"_s, false);
    EXPECT_FALSE(config().isDUTTypeEditionConfirmDialogDisplay());
    store(u"ShowStickerFrequency"_s, true);
    EXPECT_TRUE(config().showStickersFrequency());
    store(u"ShowStickersFrequency"_s, false);
    EXPECT_TRUE(config().showStickersFrequency()) << "the key is singular";
}

TEST_F(Preferences, FlagThatDoesNotConvertIsFalse)
{
    store(u"RemoveDataConfirmDisplay"_s, QStringList({u"true"_s, u"true"_s}));
    EXPECT_FALSE(config().isRemoveDataConfirmDialogDisplay());
}

TEST_F(Preferences, FlagsAreWrittenAtOnceAsBooleans)
{
    config();
    const RecordingStore recording;
    const auto lastChange = [](const QString& key) {
        const QVariant value =
            RecordingStore::states.isEmpty() ? QVariant() : RecordingStore::states.constLast().value(key);
        EXPECT_EQ(value.typeId(), static_cast<int>(QMetaType::Bool)) << key.toStdString();
        return value.toBool();
    };
    config().setRefreshDataConfirmDialogDisplay(false);
    EXPECT_FALSE(lastChange(u"RefreshDataConfirmDisplay"_s));
    config().setRemoveDataConfirmDialogDisplay(false);
    EXPECT_FALSE(lastChange(u"RemoveDataConfirmDisplay"_s));
    config().setDUTTypeEditionConfirmDialogDisplay(false);
    EXPECT_FALSE(lastChange(u"DUTTypeEditionConfirmDisplay"_s));
    config().setShowStickersFrequency(true);
    EXPECT_TRUE(lastChange(u"ShowStickerFrequency"_s));

    EXPECT_EQ(RecordingStore::states.size(), 4);
    EXPECT_EQ(RecordingStore::states.constLast().size(), 4) << "each flag under its own key";
    EXPECT_FALSE(config().isRefreshDataConfirmDialogDisplay());
    EXPECT_FALSE(config().isRemoveDataConfirmDialogDisplay());
    EXPECT_FALSE(config().isDUTTypeEditionConfirmDialogDisplay());
    EXPECT_TRUE(config().showStickersFrequency());
}

TEST_F(Preferences, FlagsComeBackInANewProcess)
{
    config().setRemoveDataConfirmDialogDisplay(false);
    config().setShowStickersFrequency(true);
    EXPECT_EQ(PrintFlags.run().lines, QStringList(u"1 0 1 1"_s));
}

TEST_F(Preferences, DirectoriesAndFileFilterLastForTheRunOnly)
{
    const QString documents = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0);
    config().setLastDirectoryBoard(u"boards"_s);
    config().setLastDirectoryImport(u"import"_s);
    config().setLastDirectoryExport(u""_s);
    config().setLastDirectoryRecipe(u"recipes"_s);
    config().setLastImportedFileFilter(u"*.mpr"_s);
    EXPECT_EQ(config().getLastDirectoryBoard(), u"boards"_s);
    EXPECT_EQ(config().getLastDirectoryImport(), u"import"_s);
    EXPECT_EQ(config().getLastDirectoryExport(), QString());
    EXPECT_EQ(config().getLastDirectoryRecipe(), u"recipes"_s);
    EXPECT_EQ(config().getLastImportedFileFilter(), u"*.mpr"_s);

    EXPECT_EQ(QSettings().allKeys(), QStringList());
    EXPECT_EQ(PrintDialogState.run().lines, QStringList({documents, u"\"\""_s}));
}

TEST_F(Preferences, KeysAreSharedWithTheApplication)
{
    EXPECT_EQ(settingskeys::MaxNumberPointsInput, MaxPoints);
    EXPECT_EQ(settingskeys::MinNumberPointsInput, MinPoints);
    EXPECT_EQ(settingskeys::TargetNumberPointsInput, TargetPoints);
    EXPECT_EQ(settingskeys::MarkerVisibilityThresholdEnable, MarkerEnable);
    EXPECT_EQ(settingskeys::MarkerVisibilityThresholdValue, MarkerValue);
    EXPECT_EQ(settingskeys::LineWidth, LineWidth);
    EXPECT_EQ(settingskeys::RefreshDataConfirmDisplay, u"RefreshDataConfirmDisplay"_s);
    EXPECT_EQ(settingskeys::RemoveDataConfirmDisplay, u"RemoveDataConfirmDisplay"_s);
    EXPECT_EQ(settingskeys::DUTTypeEditionConfirmDisplay, u"DUTTypeEditionConfirmDisplay"_s);
    EXPECT_EQ(settingskeys::ShowStickerFrequency, u"ShowStickerFrequency"_s);
}

TEST_F(Preferences, TwoKeysAreDeclaredForTheApplicationAlone)
{
    EXPECT_EQ(settingskeys::WelcomePopUpDisplay, u"WelcomePopUpDisplay"_s);
    EXPECT_EQ(settingskeys::CustomEquivalentCircuits, u"CustomEquivalentCircuits"_s);

    config().setRenderingConfiguration(config().getRenderingConfiguration());
    config().setRefreshDataConfirmDialogDisplay(true);
    config().setRemoveDataConfirmDialogDisplay(true);
    config().setDUTTypeEditionConfirmDialogDisplay(true);
    config().setShowStickersFrequency(true);
    EXPECT_EQ(QSettings().allKeys().size(), 10);
    EXPECT_FALSE(QSettings().contains(settingskeys::WelcomePopUpDisplay));
    EXPECT_FALSE(QSettings().contains(settingskeys::CustomEquivalentCircuits));
}
