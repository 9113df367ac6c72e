#pragma once

#include <datastorage/Units.h>

#include <QString>
#include <QStringList>

namespace cluiconfig::check {

/// The units that somebody who wrote \p text may have meant, as the application spells them: "Ω" for "ohm", "mAh/cm²"
/// for "mAh/cm2", "µV" for "uV". If any of them measure \p parameter, only those. Empty when there is none.
QStringList meantUnits(const QString& text, cl::datastorage::PhysicalParameter parameter);

/// The quantity that the unit \p symbol measures; None for what is no unit.
cl::datastorage::PhysicalParameter measuredBy(const QString& symbol);

} // namespace cluiconfig::check
