#pragma once

#include "Curves.h"
#include "PlotView.h"

#include <config/Configuration.h>

#include <QCoreApplication>

#include <vector>

namespace cluiedit {

/// The curves in a plot: their graphs, how those look, and what they say at a place.
class PlottedCurves
{
    Q_DECLARE_TR_FUNCTIONS(cluiedit::PlottedCurves)

public:
    struct One
    {
        Curve curve;
        DenseGraph* graph = nullptr; ///< The view's.

        const Reduction& points() const { return *graph->points(); }
    };

    /// REQUIRES: \p view outlives the curves.
    explicit PlottedCurves(PlotView& view)
        : m_view(view)
    {
    }

    /// Plots \p curves instead of those before. A curve that was there keeps its graph: its points are looked through
    /// only once.
    void set(const std::vector<Curve>& curves, const PerAxis<bool>& isLogarithmic);
    const std::vector<One>& all() const { return m_all; }

    /// Gives them the document's \p colors, pens as preferred, and the legend; there with the name of the array where
    /// it \p namesArrays.
    void paint(const uiconfig::Colors& colors, bool namesArrays);

    /// The points nearest to \p pixel in \p units, with the names of measurements if it \p namesMeasurements.
    QString readout(const QPointF& pixel, const PerAxis<cl::datastorage::UsualUnit>& units,
                    bool namesMeasurements) const;
    /// Which curves are not drawn as a whole; empty for none.
    QString sampledText() const;

private:
    One plotted(const Curve& curve, const PerAxis<bool>& isLogarithmic, const std::vector<One>& before);

    PlotView& m_view;
    std::vector<One> m_all;
};

} // namespace cluiedit
