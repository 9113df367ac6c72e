#include <config/SettingsKeys.h>
#include <config/UIConfig.h>

#include <QSettings>
#include <QVariant>

namespace {

// Every access opens the store anew, so that what another part of the application or another process has written shows.

QVariant preference(const QString& key, const QVariant& defaultValue)
{
    return QSettings().value(key, defaultValue);
}

void setPreference(const QString& key, const QVariant& value)
{
    QSettings().setValue(key, value);
}

} // namespace

UIConfig::RenderingConfiguration UIConfig::readRenderingConfiguration()
{
    const RenderingConfiguration defaults;
    RenderingConfiguration stored;
    stored.maxNumberPointsInput =
        preference(settingskeys::MaxNumberPointsInput, defaults.maxNumberPointsInput).toUInt();
    stored.minNumberPointsInput =
        preference(settingskeys::MinNumberPointsInput, defaults.minNumberPointsInput).toUInt();
    stored.targetNumberPointsInput =
        preference(settingskeys::TargetNumberPointsInput, defaults.targetNumberPointsInput).toUInt();
    stored.markerVisibilityThresholdEnable =
        preference(settingskeys::MarkerVisibilityThresholdEnable, defaults.markerVisibilityThresholdEnable).toBool();
    stored.markerVisibilityThresholdValue =
        preference(settingskeys::MarkerVisibilityThresholdValue, defaults.markerVisibilityThresholdValue).toInt();
    stored.lineWidth = preference(settingskeys::LineWidth, defaults.lineWidth).toInt();
    return stored;
}

void UIConfig::setRenderingConfiguration(const RenderingConfiguration& configuration)
{
    m_renderingConfiguration = configuration;
    setPreference(settingskeys::MaxNumberPointsInput, m_renderingConfiguration.maxNumberPointsInput);
    setPreference(settingskeys::MinNumberPointsInput, m_renderingConfiguration.minNumberPointsInput);
    setPreference(settingskeys::TargetNumberPointsInput, m_renderingConfiguration.targetNumberPointsInput);
    setPreference(settingskeys::MarkerVisibilityThresholdEnable,
                  m_renderingConfiguration.markerVisibilityThresholdEnable);
    setPreference(settingskeys::MarkerVisibilityThresholdValue,
                  m_renderingConfiguration.markerVisibilityThresholdValue);
    setPreference(settingskeys::LineWidth, m_renderingConfiguration.lineWidth);
}

bool UIConfig::isRefreshDataConfirmDialogDisplay() const
{
    return preference(settingskeys::RefreshDataConfirmDisplay, true).toBool();
}

void UIConfig::setRefreshDataConfirmDialogDisplay(bool display)
{
    setPreference(settingskeys::RefreshDataConfirmDisplay, display);
}

bool UIConfig::isRemoveDataConfirmDialogDisplay() const
{
    return preference(settingskeys::RemoveDataConfirmDisplay, true).toBool();
}

void UIConfig::setRemoveDataConfirmDialogDisplay(bool display)
{
    setPreference(settingskeys::RemoveDataConfirmDisplay, display);
}

bool UIConfig::isDUTTypeEditionConfirmDialogDisplay() const
{
    return preference(settingskeys::DUTTypeEditionConfirmDisplay, true).toBool();
}

void UIConfig::setDUTTypeEditionConfirmDialogDisplay(bool display)
{
    setPreference(settingskeys::DUTTypeEditionConfirmDisplay, display);
}

bool UIConfig::showStickersFrequency() const
{
    return preference(settingskeys::ShowStickerFrequency, false).toBool();
}

void UIConfig::setShowStickersFrequency(bool show)
{
    setPreference(settingskeys::ShowStickerFrequency, show);
}
