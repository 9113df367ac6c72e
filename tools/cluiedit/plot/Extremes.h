#pragma once

#include "Columns.h"
#include "Pyramid.h"

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace cluiedit {

/// The lowest and the highest of some points, by their indices. Without points, lowestY is above highestY.
struct Extremes
{
    double lowestY = std::numeric_limits<double>::infinity();
    double highestY = -std::numeric_limits<double>::infinity();
    quint32 lowest = 0;
    quint32 highest = 0;

    void include(const Extremes& other)
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

/// The extremes of a curve in bins of equal width in x, for curves whose points are in no order.
class Bins
{
public:
    /// No bins where \p curve is sorted, or where a look at every point takes no time.
    explicit Bins(const Pyramid& curve);

    /// 0 without bins.
    double width() const { return m_width; }
    /// Whether extremesIn() can tell the \p columns apart.
    bool areFineEnough(const Columns& columns) const;
    /// Those of each of the \p columns, widened by width() on either side. REQUIRES: the bins are fine enough.
    std::vector<Extremes> extremesIn(Columns& columns) const;
    /// Bytes of all bins.
    std::size_t overhead() const { return m_bins.size() * sizeof(Extremes); }

private:
    std::size_t binOf(double x) const;

    std::vector<Extremes> m_bins;
    double m_lowestX = 0;
    double m_width = 0;
};

/// Calls \p visit with every point of \p curve in the \p columns and its column, in index order, until it returns
/// false.
template <typename Visit>
void forEachIn(Columns& columns, const Pyramid& curve, const Visit& visit)
{
    for (std::size_t leaf = 0; leaf < curve.leaves().size(); ++leaf) {
        const Pyramid::Block& block = curve.leaves()[leaf];
        if (block.drawable == 0 || block.highestX < columns.front() || block.lowestX > columns.back()) {
            continue;
        }
        const std::size_t end = std::min((leaf + 1) * Pyramid::LeafSize, curve.size());
        for (std::size_t i = leaf * Pyramid::LeafSize; i < end; ++i) {
            const int column = curve.isDrawable(i) ? columns.of(curve.x(i)) : -1;
            if (!columns.isOutside(column) && !visit(i, column)) {
                return;
            }
        }
    }
}

/// Those of each of the \p columns, by a look at every point of the blocks in view.
std::vector<Extremes> extremesOfPoints(Columns& columns, const Pyramid& curve);

} // namespace cluiedit
