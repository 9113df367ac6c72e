#pragma once

#include <axes/AxesCombination.h>

#include <QString>

/// The combination of the catalogue's arrays \p x and \p y of one category, linear on both axes and not orthonormal; a
/// default-constructed, invalid combination when the catalogue lacks either of them.
AxesCombination linearCombinationFromCatalogue(const QString& category, const QString& x, const QString& y);
