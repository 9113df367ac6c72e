#pragma once

#include <cluiedit/data/Measurement.h>
#include <config/Configuration.h>

namespace cluiedit {

/// A cell to look at before there are measurements of one's own: 100 simulated cycles of a small cell that ages. The
/// same every time.
///
/// All arrays of \p catalogue that the shipped catalogue has, in all of its categories, and no others. Every value is
/// finite, but for the slopes of charge and voltage where the other one stands still: they are NaN. Arrays of texts are
/// numbers: "Step Type" 0 for a rest, 1 for charging, 2 for discharging; "Control Mode" 0 for an open circuit, 1 for
/// the current, 2 for the voltage; "Step ID" the number of the step in the schedule of a cycle, from 1 to 5.
Measurement demonstrationCell(const uiconfig::Catalogue& catalogue);

} // namespace cluiedit
