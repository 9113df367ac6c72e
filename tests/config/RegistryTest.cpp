// On Windows the settings store is the registry. The values that the library puts there are read with the functions of
// Windows, as other programs and older versions of the application see them.

#include <config/ProcessTask.h>
#include <config/UIConfig.h>
#include <support/QtPrinters.h>

#include <QCoreApplication>
#include <QSettings>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include <windows.h>

using namespace Qt::StringLiterals;
using lumo::tools::Singleton;
using testing::FieldsAre;

namespace {

/// A value as the registry holds it: "dword 1", "text true", or "type 7" for any other type.
QString describe(DWORD type, const std::vector<BYTE>& data)
{
    if (type == REG_DWORD && data.size() == sizeof(DWORD)) {
        DWORD number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        return u"dword %1"_s.arg(number);
    }
    if (type == REG_SZ) {
        std::vector<wchar_t> text(data.size() / sizeof(wchar_t) + 1); // with a zero at the end whatever is stored
        std::memcpy(text.data(), data.data(), data.size());
        return u"text "_s + QString::fromWCharArray(text.data());
    }
    return u"type %1"_s.arg(type);
}

/// Every value below the key of the tests' application, "name: value" each, sorted.
QStringList registryValues()
{
    const QString path =
        u"Software\\%1\\%2"_s.arg(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.toStdWString().c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return {};
    }
    QStringList values;
    std::vector<wchar_t> name(256);
    std::vector<BYTE> data(256);
    for (DWORD i = 0;; ++i) {
        auto nameSize = static_cast<DWORD>(name.size());
        auto dataSize = static_cast<DWORD>(data.size());
        DWORD type = REG_NONE;
        if (RegEnumValueW(key, i, name.data(), &nameSize, nullptr, &type, data.data(), &dataSize) != ERROR_SUCCESS) {
            break;
        }
        values.append(QString::fromWCharArray(name.data()) + u": "_s
                      + describe(type, {data.begin(), data.begin() + static_cast<std::ptrdiff_t>(dataSize)}));
    }
    RegCloseKey(key);
    values.sort();
    return values;
}

/// Lets the settings be those that the application has on Windows, and begins and ends without any.
class Registry : public testing::Test
{
protected:
    Registry() { removeAll(); }
    ~Registry() override { removeAll(); }

    static UIConfig& config() { return Singleton<UIConfig>::instance(); }

private:
    static void removeAll()
    {
        QSettings::setDefaultFormat(QSettings::NativeFormat);
        QSettings().clear();
    }
};

const ProcessTask PrintStoredRendering("print-stored-rendering", [] {
    QSettings::setDefaultFormat(QSettings::NativeFormat);
    const UIConfig::RenderingConfiguration rendering = Singleton<UIConfig>::instance().getRenderingConfiguration();
    printLine(u"%1 %2 %3 %4 %5 %6"_s.arg(rendering.maxNumberPointsInput)
                  .arg(rendering.minNumberPointsInput)
                  .arg(rendering.targetNumberPointsInput)
                  .arg(rendering.markerVisibilityThresholdEnable)
                  .arg(rendering.markerVisibilityThresholdValue)
                  .arg(rendering.lineWidth));
});

} // namespace

TEST_F(Registry, EmptyRegistryGivesTheDefaultsAndStaysEmpty)
{
    EXPECT_THAT(config().getRenderingConfiguration(), FieldsAre(32000U, 4000U, 8000U, true, 1000, 1));
    EXPECT_TRUE(config().isRefreshDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isRemoveDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isDUTTypeEditionConfirmDialogDisplay());
    EXPECT_FALSE(config().showStickersFrequency());
    EXPECT_EQ(registryValues(), QStringList());
}

TEST_F(Registry, RenderingIsFourByteNumbersAndATextForTheFlag)
{
    config().setRenderingConfiguration({4294967295U, 2, 3, false, -4, 0});
    EXPECT_EQ(registryValues(),
              QStringList({u"Graph.Line.Width: dword 0"_s, u"Graph.Marker.VisibilityThresholdEnable: text false"_s,
                           u"Graph.Marker.VisibilityThresholdValue: dword 4294967292"_s,
                           u"Graph.MaxNumberPointsInput: dword 4294967295"_s, u"Graph.MinNumberPointsInput: dword 2"_s,
                           u"Graph.TargetNumberPointsInput: dword 3"_s}));
}

TEST_F(Registry, FlagsAreTexts)
{
    config().setRefreshDataConfirmDialogDisplay(false);
    config().setRemoveDataConfirmDialogDisplay(true);
    config().setDUTTypeEditionConfirmDialogDisplay(false);
    config().setShowStickersFrequency(true);
    EXPECT_EQ(registryValues(),
              QStringList({u"DUTTypeEditionConfirmDisplay: text false"_s, u"RefreshDataConfirmDisplay: text false"_s,
                           u"RemoveDataConfirmDisplay: text true"_s, u"ShowStickerFrequency: text true"_s}));
    EXPECT_FALSE(config().isRefreshDataConfirmDialogDisplay());
    EXPECT_TRUE(config().isRemoveDataConfirmDialogDisplay());
    EXPECT_FALSE(config().isDUTTypeEditionConfirmDialogDisplay());
    EXPECT_TRUE(config().showStickersFrequency());
}

TEST_F(Registry, RenderingComesBackInANewProcess)
{
    config().setRenderingConfiguration({4294967295U, 0, 12345, false, -2147483647, 3});
    EXPECT_EQ(PrintStoredRendering.run().lines, QStringList(u"4294967295 0 12345 0 -2147483647 3"_s));
}
