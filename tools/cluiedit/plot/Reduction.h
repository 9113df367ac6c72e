#pragma once

#include "Extremes.h"
#include "Picks.h"
#include "Pyramid.h"

#include <QPointF>

#include <cstddef>
#include <vector>

namespace cluiedit {

/// Finds the points of a curve that matter in a picture of it, at a cost that depends on the picture and not on the
/// number of points. Made once over the points, of which there may be many millions; takes some percent of their
/// memory. A point can be drawn when both its coordinates are finite and above their floors; others are gaps.
///
/// A walk along the curve passes over every block of points that lies in one column of the picture. Where points are
/// not sorted by x and too many, parts of the curve and its extremes stand for it.
class Reduction
{
public:
    static constexpr double NoFloor = Pyramid::NoFloor;

    /// Nothing at or below a floor can be drawn: that is how an axis becomes logarithmic. Of vectors of different
    /// length the longer one's end is ignored.
    ///
    /// REQUIRES: neither is null; fewer than 2³² points.
    Reduction(Values x, Values y, double floorX = NoFloor, double floorY = NoFloor);

    /// The points to draw between \p edges, the ascending bounds of columns: column i reaches from edge i up to, but
    /// without, edge i + 1; the last one has its upper edge, too. In each column the lowest and the highest point are
    /// kept, of consecutive points in it the first and the last. Where four points a column are more than may be,
    /// neighbouring columns are taken together. Where points are sampled, the extremes are those of the column widened
    /// by binWidth() on either side.
    ///
    /// REQUIRES: two edges at least.
    Picks picks(std::vector<double> edges, const PickAmounts& amounts) const;

    /// The point that lies nearest to \p at in the picture; size() when no point can be drawn.
    std::size_t nearest(const QPointF& at, const Pyramid::Position& position) const
    {
        return m_points.nearest(at, position);
    }

    std::size_t size() const { return m_points.size(); }
    double x(std::size_t index) const { return m_points.x(index); }
    double y(std::size_t index) const { return m_points.y(index); }
    bool isDrawable(std::size_t index) const { return m_points.isDrawable(index); }
    bool hasFloors(double x, double y) const { return m_points.hasFloors(x, y); }

    /// Whether x never decreases from one point that can be drawn to the next.
    bool isSorted() const { return m_points.isSorted(); }
    /// Points with finite coordinates of which one is not above its floor.
    std::size_t belowFloor() const { return m_points.belowFloor(); }
    /// Points that can be drawn.
    std::size_t drawable() const { return m_points.bounds().drawable; }
    /// Where those lie; NaN when there is none.
    double lowestX() const { return m_points.bounds().lowestX; }
    double highestX() const { return m_points.bounds().highestX; }
    double lowestY() const { return m_points.bounds().lowestY; }
    double highestY() const { return m_points.bounds().highestY; }
    /// 0 where there are no bins.
    double binWidth() const { return m_bins.width(); }

    /// Bytes that are held beside the points.
    std::size_t overhead() const { return m_points.overhead() + m_bins.overhead(); }

private:
    Pyramid m_points;
    Bins m_bins;
};

} // namespace cluiedit
