#pragma once

#include "PlotAxes.h"
#include "PlottedCurves.h"

#include <QStringList>

#include <vector>

namespace cluiedit {

/// What there is to say about a plot.
struct PlotState
{
    const AxisNames& wanted;
    const AxisNames& shown; ///< What the document offers of that.
    bool hasMeasurements;
    const QStringList& missing; ///< What the measurements lack.
    const std::vector<PlottedCurves::One>& curves;
};

/// What cannot be seen in the plot, and why: a sentence each, the gravest first, and not too many.
QStringList plotNotices(const PlotState& state);

} // namespace cluiedit
