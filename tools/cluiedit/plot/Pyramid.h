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

/// The points of a curve in index order, in blocks of blocks, each with its bounding box. A point can be drawn when
/// both its coordinates are finite and above their floors; others are gaps.
class Pyramid
{
public:
    static constexpr double NoFloor = -std::numeric_limits<double>::infinity();
    /// Points of a leaf, which is a block of the lowest level.
    static constexpr std::size_t LeafSize = 256;
    /// Blocks of which one of the level above consists.
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

    /// Of vectors of different length the longer one's end is ignored.
    ///
    /// REQUIRES: neither is null; fewer than 2³² points.
    Pyramid(Values x, Values y, double floorX, double floorY);

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
    /// Of all points. Its box is NaN when none can be drawn.
    const Block& bounds() const { return m_bounds; }

    /// The leaves.
    const std::vector<Block>& leaves() const { return m_levels.front(); }
    /// 0 is that of the leaves.
    const std::vector<Block>& level(std::size_t level) const { return m_levels[level]; }
    std::size_t topLevel() const { return m_levels.size() - 1; }
    /// Points of a block that is full.
    static std::size_t blockSize(std::size_t level);
    /// Bytes of all blocks.
    std::size_t overhead() const;

    /// The first of the points [begin, end) that can be drawn. REQUIRES: those are one point or one block, and one can
    /// be drawn.
    std::size_t firstDrawable(std::size_t begin, std::size_t end) const;
    /// The last of them, likewise.
    std::size_t lastDrawable(std::size_t begin, std::size_t end) const;

    /// Where a point lies in a picture: monotonic in each coordinate by itself.
    using Position = std::function<QPointF(double x, double y)>;

    /// The point that lies nearest to \p at in the picture; size() when no point can be drawn.
    std::size_t nearest(const QPointF& at, const Position& position) const;

private:
    void makeLeaves();
    void makeLevels();

    Values m_x;
    Values m_y;
    const double* m_xs;
    const double* m_ys;
    std::size_t m_size;
    double m_floorX;
    double m_floorY;
    bool m_isSorted = true;
    std::size_t m_belowFloor = 0;
    Block m_bounds;
    std::vector<std::vector<Block>> m_levels; // the leaves first
};

} // namespace cluiedit
