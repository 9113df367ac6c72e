#pragma once

#include "Columns.h"
#include "Extremes.h"
#include "Picks.h"
#include "Pyramid.h"

namespace cluiedit {

/// What stands for a curve that has too many points, in no order, to be drawn as a whole: stretches of it, and between
/// them, unjoined, the extremes of the columns, or all points in view when they are few. Where \p bins are fine enough,
/// the extremes are theirs.
///
/// REQUIRES: \p bins are those of \p curve; of \p amounts, most is 16 at least.
Picks sampled(const Pyramid& curve, const Bins& bins, const Columns& columns, const PickAmounts& amounts);

} // namespace cluiedit
