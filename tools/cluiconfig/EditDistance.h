#pragma once

#include <QString>

namespace cluiconfig {

/// How many letters are to be inserted, deleted, replaced or swapped with their neighbour to turn \p a into \p b. Takes
/// time in proportion to the product of the lengths.
qsizetype editDistance(const QString& a, const QString& b);

} // namespace cluiconfig
