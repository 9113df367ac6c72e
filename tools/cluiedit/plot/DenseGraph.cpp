#include "DenseGraph.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace cluiedit {

namespace {

constexpr double MarkerSize = 5;

/// The part of the line from \p from to \p to that lies in \p frame; false for none. What is far out of it would be too
/// large for a painter.
bool clip(QPointF& from, QPointF& to, const QRectF& frame)
{
    const QPointF start = from;
    const QPointF way = to - from;
    double enter = 0;
    double leave = 1;
    const auto cut = [&](double step, double room) { // stays where step · t <= room
        if (step == 0) {
            return room >= 0;
        }
        const double at = room / step;
        if (step < 0) {
            enter = std::max(enter, at);
        } else {
            leave = std::min(leave, at);
        }
        return enter <= leave;
    };
    if (!cut(-way.x(), start.x() - frame.left()) || !cut(way.x(), frame.right() - start.x())
        || !cut(-way.y(), start.y() - frame.top()) || !cut(way.y(), frame.bottom() - start.y())) {
        return false;
    }
    if (enter > 0) {
        from = start + enter * way;
    }
    if (leave < 1) {
        to = start + leave * way;
    }
    return true;
}

} // namespace

DenseGraph::DenseGraph(QCPAxis* keyAxis, QCPAxis* valueAxis)
    : QCPAbstractPlottable(keyAxis, valueAxis)
    , m_points(
          std::make_shared<Reduction>(std::make_shared<std::vector<double>>(), std::make_shared<std::vector<double>>()))
{
    setSelectable(QCP::stNone);
}

void DenseGraph::setPoints(std::shared_ptr<const Reduction> points, const UnitScale& x, const UnitScale& y)
{
    m_points = std::move(points);
    m_scaleX = x;
    m_scaleY = y;
}

Picks DenseGraph::picks(bool isDrawing) const
{
    const QCPAxis* axis = keyAxis();
    const QRect frame = axis->axisRect()->rect();
    constexpr std::size_t PointsPerColumn = 4;
    const std::size_t aim = isDrawing ? std::min(m_target, m_amounts.most) / PointsPerColumn : 1;
    const int pixels = std::max(1, qRound(frame.width() * parentPlot()->bufferDevicePixelRatio()));
    const int columns = std::max(pixels, static_cast<int>(aim));
    const double width = static_cast<double>(frame.width()) / columns;
    std::vector<double> edges{m_scaleX.own(axis->range().lower)};
    edges.reserve(static_cast<std::size_t>(columns) + 1);
    for (int column = 1; column < columns; ++column) {
        edges.push_back(std::max(edges.back(), m_scaleX.own(axis->pixelToCoord(frame.left() + column * width))));
    }
    edges.push_back(std::max(edges.back(), m_scaleX.own(axis->range().upper)));
    return m_points->picks(std::move(edges), m_amounts);
}

QPointF DenseGraph::pixel(std::size_t index) const
{
    return {keyAxis()->coordToPixel(m_scaleX.shown(m_points->x(index))),
            valueAxis()->coordToPixel(m_scaleY.shown(m_points->y(index)))};
}

std::size_t DenseGraph::nearest(const QPointF& pixel) const
{
    const auto left = [this](double x) { return keyAxis()->coordToPixel(m_scaleX.shown(x)); };
    if (m_points->isSorted()) {
        return m_points->nearest({pixel.x(), 0}, [&](double x, double /*y*/) { return QPointF(left(x), 0); });
    }
    return m_points->nearest(
        pixel, [&](double x, double y) { return QPointF(left(x), valueAxis()->coordToPixel(m_scaleY.shown(y))); });
}

void DenseGraph::draw(QCPPainter* painter)
{
    const Picks picked = picks(painter->modes().testFlag(QCPPainter::pmVectorized));
    m_isSampled = picked.isSampled;
    const double margin = 2 + 2 * mPen.widthF();
    const QRectF frame = QRectF(clipRect()).adjusted(-margin, -margin, margin, margin);
    constexpr std::size_t Dense = 3000; // from here on, smooth lines cost much and show nothing
    const bool isDense = picked.points.size() > Dense;

    QPolygonF line;
    QPolygonF lonely; // Points to and from which no line leads.
    QPointF before;
    for (std::size_t i = 0; i < picked.points.size(); ++i) {
        const QPointF here = pixel(picked.points[i].index);
        if (picked.points[i].isJoined) {
            QPointF from = before;
            QPointF to = here;
            if (clip(from, to, frame)) {
                if (line.isEmpty() || line.last() != from) {
                    drawLine(painter, line, isDense);
                    line = QPolygonF{{from}};
                }
                line.append(to);
            }
        } else if ((i + 1 == picked.points.size() || !picked.points[i + 1].isJoined) && frame.contains(here)) {
            lonely.append(here);
        }
        before = here;
    }
    drawLine(painter, line, isDense);

    const bool isMarked = hasMarkers(picked);
    if (!lonely.isEmpty() && !isMarked) {
        QPen pen = mPen;
        pen.setStyle(Qt::SolidLine);
        pen.setWidthF(std::max(mPen.widthF(), isDense ? 1.0 : 2.0));
        painter->setPen(pen);
        painter->drawPoints(lonely);
    }
    if (isMarked) {
        applyScattersAntialiasingHint(painter);
        QPen pen(mPen.color(), 1);
        const QCPScatterStyle style(m_marker, pen, QBrush(mPen.color()), MarkerSize);
        style.applyTo(painter, pen);
        for (const Pick& pick : picked.points) {
            const QPointF at = pixel(pick.index);
            if (frame.contains(at)) {
                style.drawShape(painter, at);
            }
        }
    }
}

void DenseGraph::drawLine(QCPPainter* painter, const QPolygonF& line, bool isDense) const
{
    if (line.size() < 2) {
        return;
    }
    QPen pen = mPen;
    if (isDense) {
        pen.setStyle(Qt::SolidLine); // dashes are longer than the way from point to point
    }
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->setAntialiasing(!isDense);
    if (isDense && pen.widthF() > 1) {
        for (qsizetype i = 1; i < line.size(); ++i) {
            painter->drawLine(QLineF(line[i - 1], line[i]));
        }
        return;
    }
    painter->drawPolyline(line);
}

void DenseGraph::drawLegendIcon(QCPPainter* painter, const QRectF& rect) const
{
    applyDefaultAntialiasingHint(painter);
    painter->setPen(mPen);
    painter->drawLine(QLineF(rect.left(), rect.center().y(), rect.right(), rect.center().y()));
    const QCPScatterStyle style(m_marker, QPen(mPen.color(), 1), QBrush(mPen.color()), MarkerSize);
    style.applyTo(painter, mPen);
    style.drawShape(painter, rect.center());
}

double DenseGraph::selectTest(const QPointF& /*pos*/, bool /*onlySelectable*/, QVariant* /*details*/) const
{
    return -1;
}

QCPRange DenseGraph::getKeyRange(bool& foundRange, QCP::SignDomain /*inSignDomain*/) const
{
    foundRange = m_points->drawable() > 0;
    return foundRange ? QCPRange(m_scaleX.shown(m_points->lowestX()), m_scaleX.shown(m_points->highestX()))
                      : QCPRange();
}

QCPRange DenseGraph::getValueRange(bool& foundRange, QCP::SignDomain /*inSignDomain*/,
                                   const QCPRange& /*inKeyRange*/) const
{
    foundRange = m_points->drawable() > 0;
    return foundRange ? QCPRange(m_scaleY.shown(m_points->lowestY()), m_scaleY.shown(m_points->highestY()))
                      : QCPRange();
}

} // namespace cluiedit
