#pragma once

#include "DenseGraph.h"
#include "PlotAxes.h"

#include <qcustomplot.h>

#include <QList>

#include <optional>

namespace cluiedit {

/// Which part of its curves a plot shows.
class PlotRanges
{
public:
    /// REQUIRES: nobody changes ranges of \p plot when the ranges are gone.
    explicit PlotRanges(QCustomPlot& plot);

    /// For each Y axis: how much of its range is as long as one of the X axis's; nothing for any.
    using Aspects = PerAxis<std::optional<double>>;
    void setAspects(const Aspects& aspects) { m_aspects = aspects; }
    /// Axes with an aspect follow the X axis; when everything shall be seen, it first gives them what room they need.
    /// To be called when it is known how large the frame is.
    void keepAspects();

    /// Shows all points of \p graphs.
    void fit(const QList<DenseGraph*>& graphs);
    /// Whether the ranges are those that fit() gave them.
    bool isFitted() const;
    /// By \p factor, which is above 1 to see more.
    void zoom(double factor);
    /// By shares of the frame.
    void move(double right, double up);

private:
    QList<QCPRange> ranges() const;
    QList<QCPAxis*> shownAxes() const;
    void fitAxis(QCPAxis* axis, const QList<DenseGraph*>& graphs);

    QCustomPlot& m_plot;
    Aspects m_aspects;
    QList<QCPRange> m_fitted; // as fit() left them
    bool m_isFitting = false; // until the next layout
};

} // namespace cluiedit
