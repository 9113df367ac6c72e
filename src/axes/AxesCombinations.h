#pragma once

#include <axes/AxesCombination.h>
#include <base/DocumentKeys.h>
#include <base/Section.h>
#include <clconfigui_export.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>

namespace cl::batterydata {
class ClConfigDataArrayManager;
}

/// \file AxesCombinations.h
/// The section "Axes combinations" of the configuration document: which data arrays may be plotted against which.

namespace uiconfig {

/// How the section stands in the document.
inline constexpr Section AxesCombinationsSection{keys::AxesCombinations, Section::Type::Array,
                                                 QLatin1StringView("Axes combinations array missing")};

/// Appends what the entries of the section yield to \p combinations, in the order of the entries. False when the
/// reading was stopped by a refusal; what was appended before stays.
CLCONFIGUI_EXPORT bool readAxesCombinations(const QJsonArray& entries,
                                            const cl::batterydata::ClConfigDataArrayManager& catalogue,
                                            QList<AxesCombination>& combinations, Refusals& refusals);

/// The same for one entry, number \p index of the section: resolves its X and Y references against the catalogue and
/// appends one combination for every pair of the same category, X by X.
///
/// A reader that goes on after refusals takes an array that the catalogue lacks for one that only waits to be
/// corrected: it appends no pair with it, but looks at all that the loader would look at if the array were there.
CLCONFIGUI_EXPORT bool readAxesCombination(const QJsonObject& entry, qsizetype index,
                                           const cl::batterydata::ClConfigDataArrayManager& catalogue,
                                           QList<AxesCombination>& combinations, Refusals& refusals);

/// Reads the entries for what is refused in them, and appends nothing: a few lines can give millions of combinations.
/// True when nothing stopped the reading.
CLCONFIGUI_EXPORT bool lookThroughAxesCombinations(const QJsonArray& entries,
                                                   const cl::batterydata::ClConfigDataArrayManager& catalogue,
                                                   Refusals& refusals);

} // namespace uiconfig
