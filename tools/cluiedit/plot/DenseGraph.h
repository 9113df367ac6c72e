#pragma once

#include "Reduction.h"

#include <QBrush>
#include <QPen>
#include <QPolygonF>

#include <qcustomplot.h>

#include <memory>

namespace cluiedit {

/// How values in one unit read in another: value · factor + offset.
struct UnitScale
{
    double factor = 1;
    double offset = 0;

    double shown(double own) const { return own * factor + offset; }
    double own(double shown) const { return (shown - offset) / factor; }
    bool operator==(const UnitScale& other) const = default;
};

/// A curve of any number of points: a line, and markers where few points are in view. Draws what a Reduction picks.
class DenseGraph : public QCPAbstractPlottable
{
    Q_OBJECT

public:
    /// \p keyAxis is the horizontal one.
    DenseGraph(QCPAxis* keyAxis, QCPAxis* valueAxis);

    /// The points, never null from here on. The axes show their values by \p x and \p y, whose factors are positive.
    void setPoints(std::shared_ptr<const Reduction> points, const UnitScale& x, const UnitScale& y);
    const std::shared_ptr<const Reduction>& points() const { return m_points; }
    const UnitScale& scaleX() const { return m_scaleX; }
    const UnitScale& scaleY() const { return m_scaleY; }

    void setAmounts(const PickAmounts& amounts) { m_amounts = amounts; }
    /// A drawing that may be enlarged, which has no pixels, aims at so many points.
    void setTarget(std::size_t target) { m_target = target; }
    /// Markers are drawn up to this number of points in view.
    void setMostMarkers(std::size_t most) { m_mostMarkers = most; }
    void setMarker(QCPScatterStyle::ScatterShape shape) { m_marker = shape; }

    /// What would be drawn now, on the screen or in a drawing.
    Picks picks(bool isDrawing = false) const;
    /// Whether parts stand for the whole curve as it was drawn last.
    bool isSampled() const { return m_isSampled; }
    bool hasMarkers(const Picks& picks) const { return picks.inView <= m_mostMarkers; }
    /// Where point \p index is drawn.
    QPointF pixel(std::size_t index) const;
    /// The point drawn nearest to \p pixel: the nearest in x where the points are sorted in x. Points.size() for none.
    std::size_t nearest(const QPointF& pixel) const;

    double selectTest(const QPointF& pos, bool onlySelectable, QVariant* details = nullptr) const override;
    QCPRange getKeyRange(bool& foundRange, QCP::SignDomain inSignDomain = QCP::sdBoth) const override;
    QCPRange getValueRange(bool& foundRange, QCP::SignDomain inSignDomain = QCP::sdBoth,
                           const QCPRange& inKeyRange = QCPRange()) const override;

protected:
    void draw(QCPPainter* painter) override;
    void drawLegendIcon(QCPPainter* painter, const QRectF& rect) const override;

private:
    void drawLine(QCPPainter* painter, const QPolygonF& line, bool isDense) const;

    std::shared_ptr<const Reduction> m_points;
    UnitScale m_scaleX;
    UnitScale m_scaleY;
    PickAmounts m_amounts;
    std::size_t m_target = 0;
    std::size_t m_mostMarkers = 0;
    bool m_isSampled = false;
    QCPScatterStyle::ScatterShape m_marker = QCPScatterStyle::ssDisc;
};

} // namespace cluiedit
