#pragma once

#include <QPointF>
#include <QtGlobal>

#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace cluiedit {

/// The values of one coordinate of a curve, shared with whoever owns them.
using Values = std::shared_ptr<const std::vector<double>>;

/// Finds the points of a curve that matter in a picture of it, at a cost that depends on the picture and not on the
/// number of points. Made once over the points, of which there may be many millions; takes some percent of their
/// memory. A point can be drawn when both its coordinates are finite and above their floors; others are gaps.
///
/// Points in index order are held in a pyramid of blocks, each with its bounding box. A block that lies in one column
/// of the picture is not looked into. Where points are not sorted by x and too many, their extremes come from bins of
/// equal width in x.
class Reduction
{
public:
    static constexpr double NoFloor = -std::numeric_limits<double>::infinity();

    /// Nothing at or below a floor can be drawn: that is how an axis becomes logarithmic. Of vectors of different
    /// length the longer one's end is ignored.
    ///
    /// REQUIRES: neither is null; fewer than 2³² points.
    Reduction(Values x, Values y, double floorX = NoFloor, double floorY = NoFloor);

    /// A point to draw, and whether a line leads to it from the one before.
    struct Pick
    {
        quint32 index = 0;
        bool isJoined = false;
    };

    struct Picks
    {
        std::vector<Pick> points{}; ///< In index order, with the neighbours beyond the range to which lines lead.
        /// How many points that can be drawn have their x in the range; of sampled ones at least so many.
        std::size_t inView = 0;
        bool isWhole = false; ///< Every one of them is among the points.
        /// There were too many: the points are stretches of the curve, and between them, unjoined, the extremes, or
        /// all of those in the range when they are few.
        bool isSampled = false;
    };

    /// How many points there shall be.
    struct Amounts
    {
        std::size_t whole = 4000; ///< Up to so many in the range, all of them.
        std::size_t most = 32000; ///< Never more. At least 16 are taken for granted.
    };

    /// The points to draw between \p edges, the ascending bounds of columns: column i reaches from edge i up to, but
    /// without, edge i + 1; the last one has its upper edge, too. In each column the lowest and the highest point are
    /// kept, of consecutive points in it the first and the last. Where four points a column are more than may be,
    /// neighbouring columns are taken together. Where points are sampled, the extremes are those of the column widened
    /// by binWidth() on either side.
    ///
    /// REQUIRES: two edges at least.
    Picks picks(std::vector<double> edges, const Amounts& amounts) const;

    /// Where a point lies in a picture: monotonic in each coordinate by itself.
    using Position = std::function<QPointF(double x, double y)>;

    /// The point that lies nearest to \p at in the picture; size() when no point can be drawn.
    std::size_t nearest(const QPointF& at, const Position& position) const;

    std::size_t size() const { return m_size; }
    double x(std::size_t index) const { return m_xs[index]; }
    double y(std::size_t index) const { return m_ys[index]; }
    bool isDrawable(std::size_t index) const
    {
        const double x = m_xs[index];
        const double y = m_ys[index];
        return std::isfinite(x) && std::isfinite(y) && x > m_floorX && y > m_floorY;
    }

    bool hasFloors(double x, double y) const { return m_floorX == x && m_floorY == y; }

    /// Whether x never decreases from one point that can be drawn to the next.
    bool isSorted() const { return m_isSorted; }
    /// Points with finite coordinates of which one is not above its floor.
    std::size_t belowFloor() const { return m_belowFloor; }
    /// Points that can be drawn.
    std::size_t drawable() const { return m_drawable; }
    /// Where those lie; NaN when there is none.
    double lowestX() const { return m_bounds.lowestX; }
    double highestX() const { return m_bounds.highestX; }
    double lowestY() const { return m_bounds.lowestY; }
    double highestY() const { return m_bounds.highestY; }
    /// 0 where there are no bins.
    double binWidth() const { return m_binWidth; }

    /// Bytes that are held beside the points.
    std::size_t overhead() const;

private:
    static constexpr std::size_t LeafSize = 256;
    static constexpr std::size_t Fanout = 16;

    struct Block
    {
        double lowestX = 0;
        double highestX = 0;
        double lowestY = 0;
        double highestY = 0;
        quint32 lowest = 0; ///< Index of a point with lowestY.
        quint32 highest = 0;
        quint32 drawable = 0; ///< Without one, the other members mean nothing.
    };

    struct Bin
    {
        double lowestY = std::numeric_limits<double>::infinity();
        double highestY = -std::numeric_limits<double>::infinity();
        quint32 lowest = 0;
        quint32 highest = 0;

        void include(const Bin& other)
        {
            if (other.lowestY < lowestY) {
                lowestY = other.lowestY;
                lowest = other.lowest;
            }
            if (other.highestY > highestY) {
                highestY = other.highestY;
                highest = other.highest;
            }
        }
    };

    class Columns;
    class Walk;

    void makeLeaves();
    void makeLevels();
    void makeBins();
    std::size_t binOf(double x) const;
    static void include(Block& block, const Block& other);
    std::size_t firstDrawable(std::size_t begin, std::size_t end) const;
    std::size_t lastDrawable(std::size_t begin, std::size_t end) const;
    std::size_t blockSize(std::size_t level) const;
    template <typename Visit>
    void forEachInView(Columns& columns, const Visit& visit) const;
    std::vector<Bin> extremesOfBins(Columns& columns) const;
    std::vector<Bin> extremesOfPoints(Columns& columns) const;
    std::vector<quint32> lonely(Columns& columns, const Amounts& amounts, std::size_t& inView) const;
    std::vector<Pick> parts(const Columns& columns, std::size_t most) const;
    Picks sampled(Columns& columns, const Amounts& amounts) const;
    bool areBinsFineEnough(const Columns& columns) const;

    Values m_x;
    Values m_y;
    const double* m_xs;
    const double* m_ys;
    std::size_t m_size;
    double m_floorX;
    double m_floorY;
    bool m_isSorted = true;
    std::size_t m_belowFloor = 0;
    std::size_t m_drawable = 0;
    Block m_bounds;
    std::vector<std::vector<Block>> m_levels; ///< The leaves first.
    std::vector<Bin> m_bins;
    double m_binWidth = 0;
};

} // namespace cluiedit
