#include "Reduction.h"

#include "Columns.h"
#include "Sampling.h"
#include "Walk.h"

#include <algorithm>
#include <utility>

namespace cluiedit {

Reduction::Reduction(Values x, Values y, double floorX, double floorY)
    : m_points(std::move(x), std::move(y), floorX, floorY)
    , m_bins(m_points)
{
}

Picks Reduction::picks(std::vector<double> edges, const PickAmounts& amounts) const
{
    constexpr std::size_t PicksPerColumn = 4;
    constexpr std::size_t Fewest = 16;
    PickAmounts possible = amounts;
    possible.most = std::max(amounts.most, Fewest);
    possible.whole = std::min(amounts.whole, possible.most);

    Columns columns(std::move(edges));
    Walk walk(m_points, columns, possible.most);
    walk.visitAll();
    const std::size_t inView = walk.inView();
    if (!walk.hasTooMany() && inView <= possible.whole) {
        Walk whole(m_points, columns, possible.most, true);
        whole.visitAll();
        if (!whole.hasTooMany()) {
            return {.points = whole.takePicks(), .inView = inView, .isWhole = true};
        }
    }
    if (!walk.hasTooMany()) {
        const bool isWhole = walk.hasAllInView();
        return {.points = walk.takePicks(), .inView = inView, .isWhole = isWhole};
    }
    // A column more on either side is for the neighbours.
    const auto mostColumns = static_cast<int>(possible.most / PicksPerColumn) - 2;
    if (m_points.isSorted() && columns.count() > mostColumns) {
        Columns joined = columns.joined(mostColumns);
        Walk wider(m_points, joined, possible.most);
        wider.visitAll();
        const std::size_t inJoined = wider.inView();
        return {.points = wider.takePicks(), .inView = inJoined};
    }
    return sampled(m_points, m_bins, columns, possible);
}

} // namespace cluiedit
