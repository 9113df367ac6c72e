#include "Extremes.h"

#include <cmath>

namespace cluiedit {

Bins::Bins(const Pyramid& curve)
{
    constexpr std::size_t PointsForBins = std::size_t{1} << 16U;
    constexpr std::size_t PointsPerBin = 128;
    const Pyramid::Block& bounds = curve.bounds();
    if (curve.isSorted() || bounds.drawable < PointsForBins) {
        return;
    }
    const std::size_t count = bounds.drawable / PointsPerBin;
    const double width = (bounds.highestX - bounds.lowestX) / static_cast<double>(count);
    if (!std::isnormal(width)) {
        return;
    }
    m_lowestX = bounds.lowestX;
    m_width = width;
    m_bins.resize(count);
    for (std::size_t i = 0; i < curve.size(); ++i) {
        if (curve.isDrawable(i)) {
            const auto at = static_cast<quint32>(i);
            m_bins[binOf(curve.x(i))].include({curve.y(i), curve.y(i), at, at});
        }
    }
}

std::size_t Bins::binOf(double x) const
{
    return std::min(static_cast<std::size_t>((x - m_lowestX) / m_width), m_bins.size() - 1);
}

bool Bins::areFineEnough(const Columns& columns) const
{
    return !m_bins.empty() && columns.narrowest() >= m_width;
}

std::vector<Extremes> Bins::extremesIn(Columns& columns) const
{
    std::vector<Extremes> result(static_cast<std::size_t>(columns.count()));
    constexpr double Rounding = 1e-6; // of points at the bounds of bins
    for (std::size_t i = 0; i < m_bins.size(); ++i) {
        const double left = m_lowestX + (static_cast<double>(i) - Rounding) * m_width;
        const int last = columns.of(left + (1 + 2 * Rounding) * m_width);
        for (int column = columns.of(left); column <= last; ++column) {
            if (!columns.isOutside(column)) {
                result[static_cast<std::size_t>(column)].include(m_bins[i]);
            }
        }
    }
    return result;
}

std::vector<Extremes> extremesOfPoints(Columns& columns, const Pyramid& curve)
{
    std::vector<Extremes> result(static_cast<std::size_t>(columns.count()));
    forEachIn(columns, curve, [&](std::size_t index, int column) {
        const auto at = static_cast<quint32>(index);
        result[static_cast<std::size_t>(column)].include({curve.y(index), curve.y(index), at, at});
        return true;
    });
    return result;
}

} // namespace cluiedit
