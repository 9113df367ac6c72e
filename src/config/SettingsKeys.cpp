#include <config/SettingsKeys.h>

using namespace Qt::StringLiterals;

namespace settingskeys {

const QString RefreshDataConfirmDisplay = u"RefreshDataConfirmDisplay"_s;
const QString RemoveDataConfirmDisplay = u"RemoveDataConfirmDisplay"_s;
const QString DUTTypeEditionConfirmDisplay = u"DUTTypeEditionConfirmDisplay"_s;
const QString ShowStickerFrequency = u"ShowStickerFrequency"_s;

const QString MaxNumberPointsInput = u"Graph.MaxNumberPointsInput"_s;
const QString MinNumberPointsInput = u"Graph.MinNumberPointsInput"_s;
const QString TargetNumberPointsInput = u"Graph.TargetNumberPointsInput"_s;
const QString MarkerVisibilityThresholdEnable = u"Graph.Marker.VisibilityThresholdEnable"_s;
const QString MarkerVisibilityThresholdValue = u"Graph.Marker.VisibilityThresholdValue"_s;
const QString LineWidth = u"Graph.Line.Width"_s;

const QString WelcomePopUpDisplay = u"WelcomePopUpDisplay"_s;
const QString CustomEquivalentCircuits = u"CustomEquivalentCircuits"_s;

} // namespace settingskeys
