#include "PlottedCurves.h"

#include "CurveColors.h"

#include <config/UIConfig.h>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace cluiedit {

using enum PlotAxis;

void PlottedCurves::set(const std::vector<Curve>& curves, const PerAxis<bool>& isLogarithmic)
{
    const std::vector<One> before = std::exchange(m_all, {});
    QList<DenseGraph*> graphs;
    for (const Curve& curve : curves) {
        m_all.push_back(plotted(curve, isLogarithmic, before));
        graphs.append(m_all.back().graph);
    }
    m_view.setGraphs(graphs);
}

PlottedCurves::One PlottedCurves::plotted(const Curve& curve, const PerAxis<bool>& isLogarithmic,
                                          const std::vector<One>& before)
{
    const double floorX = isLogarithmic.at(X) ? curve.scaleX.own(0) : Reduction::NoFloor;
    const double floorY = isLogarithmic.at(curve.axis) ? curve.scaleY.own(0) : Reduction::NoFloor;
    const auto same = std::find_if(before.begin(), before.end(), [&](const One& old) {
        return old.curve.xs == curve.xs && old.curve.ys == curve.ys && old.curve.axis == curve.axis;
    });
    const bool isThere = same != before.end();
    DenseGraph* graph = isThere ? same->graph : new DenseGraph(m_view.xAxis, m_view.axisOf(curve.axis)); // the view's
    auto points = isThere && graph->points()->hasFloors(floorX, floorY)
        ? graph->points()
        : std::make_shared<Reduction>(curve.xs, curve.ys, floorX, floorY);
    graph->setPoints(std::move(points), curve.scaleX, curve.scaleY);
    return {curve, graph};
}

void PlottedCurves::paint(const uiconfig::Colors& colors, bool namesArrays)
{
    const QPalette& palette = m_view.palette();
    const QList<QColor> curveColor = curveColors(colors, static_cast<qsizetype>(m_all.size()),
                                                 palette.color(QPalette::Base), palette.color(QPalette::Text));
    const auto& look = lumo::tools::Singleton<UIConfig>::instance().getRenderingConfiguration();
    constexpr std::size_t Legible = 12; // curves in a legend
    constexpr int WidestLine = 20;
    m_view.legend->clearItems();
    const int room = m_view.roomInLegend();
    for (std::size_t i = 0; i < m_all.size(); ++i) {
        const Curve& curve = m_all[i].curve;
        DenseGraph* graph = m_all[i].graph;
        QPen pen(curveColor.at(static_cast<qsizetype>(i)), std::clamp(look.lineWidth, 1, WidestLine));
        pen.setStyle(curve.axis == Y1 ? Qt::SolidLine : Qt::DashLine);
        graph->setPen(pen);
        graph->setMarker(curve.axis == Y1 ? QCPScatterStyle::ssDisc : QCPScatterStyle::ssTriangle);
        graph->setAmounts({.whole = look.minNumberPointsInput, .most = look.maxNumberPointsInput});
        graph->setTarget(look.targetNumberPointsInput);
        graph->setMostMarkers(look.markerVisibilityThresholdEnable
                                  ? static_cast<std::size_t>(std::max(look.markerVisibilityThresholdValue, 0))
                                  : std::numeric_limits<std::size_t>::max());
        const QString name = namesArrays ? tr("%1: %2").arg(curve.name, nameWithoutUnit(curve.y)) : curve.name;
        graph->setName(m_view.fontMetrics().elidedText(name, Qt::ElideMiddle, room));
        if (i < Legible && m_all.size() > 1) {
            graph->addToLegend();
        }
    }
    m_view.setLegendShown(m_all.size() > 1);
    m_view.setGridColor(defaultColor(colors, u"Grid"_s));
}

QString PlottedCurves::readout(const QPointF& pixel, const PerAxis<cl::datastorage::UsualUnit>& units,
                               bool namesMeasurements) const
{
    QStringList parts;
    for (const One& each : m_all) {
        const Curve& curve = each.curve;
        const std::size_t point = each.graph->nearest(pixel);
        if (point == each.points().size()) {
            continue;
        }
        const QString x = valueText(each.points().x(point), curve.x.unit, units.at(X));
        const QString y = valueText(each.points().y(point), curve.y.unit, units.at(curve.axis));
        const QString name = nameWithoutUnit(curve.y);
        parts.append(namesMeasurements ? tr("%1: %2 %3 at %4").arg(curve.name, name, y, x)
                                       : tr("%1 %2 at %3").arg(name, y, x));
    }
    return parts.join(u"; "_s);
}

QString PlottedCurves::sampledText() const
{
    QStringList sampled;
    for (const One& each : m_all) {
        if (each.graph->isSampled()) {
            sampled.append(each.curve.name);
        }
    }
    sampled.removeDuplicates();
    return sampled.isEmpty()
        ? QString()
        : tr("Too many points: only parts and the extremes are drawn of %1.").arg(sampled.join(u", "_s));
}

} // namespace cluiedit
