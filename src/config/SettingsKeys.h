#pragma once

#include <clconfigui_export.h>

#include <QString>

/// The keys under which user preferences stand in the platform's settings store. They exist as long as the library is
/// loaded.
namespace settingskeys {

/// \{
/// A switch of the application, which UIConfig reads and writes.
extern CLCONFIGUI_EXPORT const QString RefreshDataConfirmDisplay;
extern CLCONFIGUI_EXPORT const QString RemoveDataConfirmDisplay;
extern CLCONFIGUI_EXPORT const QString DUTTypeEditionConfirmDisplay;
extern CLCONFIGUI_EXPORT const QString ShowStickerFrequency;
/// \}

/// \{
/// How graphs are drawn: a member of UIConfig::RenderingConfiguration.
extern CLCONFIGUI_EXPORT const QString MaxNumberPointsInput;
extern CLCONFIGUI_EXPORT const QString MinNumberPointsInput;
extern CLCONFIGUI_EXPORT const QString TargetNumberPointsInput;
extern CLCONFIGUI_EXPORT const QString MarkerVisibilityThresholdEnable;
extern CLCONFIGUI_EXPORT const QString MarkerVisibilityThresholdValue;
extern CLCONFIGUI_EXPORT const QString LineWidth;
/// \}

/// \{
/// For the application alone: the library neither reads nor writes them.
extern CLCONFIGUI_EXPORT const QString WelcomePopUpDisplay;
extern CLCONFIGUI_EXPORT const QString CustomEquivalentCircuits;
/// \}

} // namespace settingskeys
