#include "PlotRanges.h"

#include <algorithm>
#include <cmath>

namespace cluiedit {

namespace {

/// Numbers that differ by less than a double can say would be all the same place.
void keepRange(QCPAxis* axis, const QCPRange& range, const QCPRange& before)
{
    constexpr double Finest = 1e-12;
    const bool isTooFine = range.size() < Finest * std::max(std::abs(range.lower), std::abs(range.upper));
    if (isTooFine && before.size() > range.size()) {
        const QSignalBlocker blocker(axis);
        axis->setRange(before);
    }
}

} // namespace

PlotRanges::PlotRanges(QCustomPlot& plot)
    : m_plot(plot)
{
    for (QCPAxis* axis : {plot.xAxis, plot.yAxis, plot.yAxis2}) {
        QObject::connect(axis, qOverload<const QCPRange&, const QCPRange&>(&QCPAxis::rangeChanged), axis,
                         [axis](const QCPRange& range, const QCPRange& before) { keepRange(axis, range, before); });
    }
}

QList<QCPRange> PlotRanges::ranges() const
{
    return {m_plot.xAxis->range(), m_plot.yAxis->range(), m_plot.yAxis2->range()};
}

QList<QCPAxis*> PlotRanges::shownAxes() const
{
    QList<QCPAxis*> axes{m_plot.xAxis};
    for (QCPAxis* axis : {m_plot.yAxis, m_plot.yAxis2}) {
        if (axis->visible()) {
            axes.append(axis);
        }
    }
    return axes;
}

void PlotRanges::fitAxis(QCPAxis* axis, const QList<DenseGraph*>& graphs)
{
    const bool isLogarithmic = axis->scaleType() == QCPAxis::stLogarithmic;
    bool hasRange = false;
    QCPRange range;
    for (const DenseGraph* graph : graphs) {
        bool isFound = false;
        const QCPRange part = axis == m_plot.xAxis ? graph->getKeyRange(isFound)
            : graph->valueAxis() == axis           ? graph->getValueRange(isFound)
                                                   : QCPRange();
        if (isFound) {
            range = hasRange ? range.expanded(part) : part;
            hasRange = true;
        }
    }
    axis->setTickLabels(hasRange);
    if (!hasRange) {
        axis->setRange(isLogarithmic ? QCPRange(0.1, 10) : QCPRange(0, 1));
        return;
    }
    constexpr double Margin = 0.04; // of the frame, on either side
    if (isLogarithmic) {
        const double factor = range.upper > range.lower ? std::pow(range.upper / range.lower, Margin) : 2;
        range = {range.lower / factor, range.upper * factor};
    } else {
        constexpr double Largest = 1e200; // QCustomPlot takes nothing much larger
        range = {std::clamp(range.lower, -Largest, Largest), std::clamp(range.upper, -Largest, Largest)};
        const double least = std::max(std::abs(range.lower), 1e-200) * 1e-9;
        const double room = range.size() > least ? range.size() * Margin
            : range.lower != 0                   ? std::abs(range.lower) * Margin
                                                 : 1;
        range = {range.lower - room, range.upper + room};
    }
    axis->setRange(range);
}

void PlotRanges::fit(const QList<DenseGraph*>& graphs)
{
    for (QCPAxis* axis : {m_plot.xAxis, m_plot.yAxis, m_plot.yAxis2}) {
        fitAxis(axis, graphs);
    }
    m_isFitting = true;
    m_fitted = ranges();
}

bool PlotRanges::isFitted() const
{
    return m_fitted == ranges();
}

void PlotRanges::keepAspects()
{
    const bool wasFitted = isFitted();
    QCPAxis* x = m_plot.xAxis;
    const QRect frame = m_plot.axisRect()->rect();
    for (const PlotAxis place : YAxes) {
        QCPAxis* axis = place == PlotAxis::Y1 ? m_plot.yAxis : m_plot.yAxis2;
        const std::optional<double>& aspect = m_aspects.at(place);
        if (!aspect || !axis->visible() || axis->scaleType() != QCPAxis::stLinear || x->scaleType() != QCPAxis::stLinear
            || frame.height() <= 0 || frame.width() <= 0) {
            continue;
        }
        if (m_isFitting) {
            const double needed = axis->range().size() / *aspect * frame.width() / frame.height();
            if (needed > x->range().size()) {
                x->setRange(x->range().center(), needed, Qt::AlignCenter);
            }
        }
        axis->setScaleRatio(x, *aspect);
    }
    if (m_isFitting || wasFitted) {
        m_fitted = ranges();
    }
    m_isFitting = false;
}

void PlotRanges::zoom(double factor)
{
    for (QCPAxis* axis : shownAxes()) {
        const bool isLogarithmic = axis->scaleType() == QCPAxis::stLogarithmic;
        axis->scaleRange(factor,
                         isLogarithmic ? std::sqrt(axis->range().lower) * std::sqrt(axis->range().upper)
                                       : axis->range().center());
    }
}

void PlotRanges::move(double right, double up)
{
    for (QCPAxis* axis : shownAxes()) {
        const double share = axis == m_plot.xAxis ? right : up;
        if (axis->scaleType() == QCPAxis::stLogarithmic) {
            axis->moveRange(std::pow(axis->range().upper / axis->range().lower, share));
        } else {
            axis->moveRange(axis->range().size() * share);
        }
    }
}

} // namespace cluiedit
