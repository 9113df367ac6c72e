#pragma once

#include "PlotAxes.h"
#include "Pyramid.h"
#include "Quantity.h"

#include <axes/AxesCombinationManager.h>
#include <cluiedit/data/Measurement.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace cluiedit {

using Measurements = QList<std::shared_ptr<const Measurement>>;

/// What a measurement has for the X axis and one Y axis.
struct Curve
{
    QString name; ///< Of the measurement.
    PlotAxis axis = PlotAxis::Y1;
    Quantity x;
    Quantity y;
    UnitScale scaleX; ///< To the units of the axes.
    UnitScale scaleY;
    Values xs;
    Values ys;
};

struct Curves
{
    std::vector<Curve> curves{};
    QStringList missing{}; ///< What measurements do not have, a sentence without a stop each.
};

/// The pair of axes that shows the arrays of these names: the first of which a measurement has both arrays, or the
/// first at all. Invalid for none.
///
/// REQUIRES: no measurement is null.
AxesCombination pairFor(const AxesCombinationManager& axes, const Measurements& measurements, const QString& x,
                        const QString& y);

/// The curves of all \p measurements, on axes that show the arrays \p names in \p units.
///
/// REQUIRES: no measurement is null.
Curves curvesOf(const AxesCombinationManager& axes, const Measurements& measurements, const AxisNames& names,
                const PerAxis<cl::datastorage::UsualUnit>& units);

} // namespace cluiedit
