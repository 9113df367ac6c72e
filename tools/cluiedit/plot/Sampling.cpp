#include "Sampling.h"

#include "Walk.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <vector>

namespace cluiedit {

namespace {

/// The points between the stretches of a sampled curve: the extremes, or all in view when they are few.
std::vector<quint32> lonely(const Pyramid& curve, const Bins& bins, Columns& columns, std::size_t most,
                            std::size_t& inView)
{
    std::vector<quint32> points;
    inView = 0;
    forEachIn(columns, curve, [&](std::size_t index, int /*column*/) {
        points.push_back(static_cast<quint32>(index));
        return ++inView <= most / 2;
    });
    if (inView <= most / 2) {
        return points;
    }
    points.clear();
    for (const Extremes& column :
         bins.areFineEnough(columns) ? bins.extremesIn(columns) : extremesOfPoints(columns, curve)) {
        if (column.lowestY <= column.highestY) {
            points.push_back(column.lowest);
            points.push_back(column.highest);
        }
    }
    std::sort(points.begin(), points.end());
    points.erase(std::unique(points.begin(), points.end()), points.end());
    return points;
}

/// Parts of the curve, of at most \p most points: some long ones, at even distances, and short ones all over the curve,
/// so that a curve that repeats itself is not always met at the same place.
std::vector<Pick> partsOf(const Pyramid& curve, const Columns& columns, std::size_t most)
{
    constexpr std::size_t LongParts = 4;
    constexpr std::size_t Overrun = Pyramid::LeafSize + 8; // of a walk, which ends behind a block or a leaf
    constexpr double GoldenRatio = 0.618033988749895; // hits upon no period
    const std::size_t leaves = curve.leaves().size();
    std::size_t left = most;
    Columns wider = columns.joined(std::max(1, columns.count() / 2)); // see more of the curve for as many points
    std::map<std::size_t, std::vector<Pick>> parts; // by leaf
    std::vector<bool> isTaken(leaves);
    const auto take = [&](std::size_t begin, std::size_t end, std::size_t mostOfIt) {
        if (left <= Overrun || isTaken[begin]) {
            return;
        }
        Walk walk(curve, wider, std::min(mostOfIt, left - Overrun));
        const std::size_t next = walk.visitLeaves(begin, end);
        std::fill(isTaken.begin() + static_cast<std::ptrdiff_t>(begin),
                  isTaken.begin() + static_cast<std::ptrdiff_t>(next), true);
        auto& picks = parts[begin];
        picks = walk.takePicks();
        left -= picks.size();
    };
    for (std::size_t i = 0; i < LongParts; ++i) {
        take(leaves * i / LongParts, leaves * (i + 1) / LongParts, most / 2 / LongParts);
    }
    for (std::size_t i = 0; i < leaves && left > Overrun; ++i) {
        const auto at =
            static_cast<std::size_t>(std::fmod(static_cast<double>(i) * GoldenRatio, 1) * static_cast<double>(leaves));
        take(at, at + 1, Pyramid::LeafSize);
    }
    std::vector<Pick> result;
    for (const auto& [leaf, picks] : parts) {
        result.insert(result.end(), picks.begin(), picks.end());
    }
    return result;
}

} // namespace

Picks sampled(const Pyramid& curve, const Bins& bins, const Columns& columns, const PickAmounts& amounts)
{
    constexpr std::size_t ExtremesPerColumn = 2;
    Columns wider = columns.joined(
        static_cast<int>(std::min(amounts.most / 2 / ExtremesPerColumn, static_cast<std::size_t>(columns.count()))));
    std::size_t inView = 0;
    const std::vector<quint32> extremePoints = lonely(curve, bins, wider, amounts.most, inView);
    const std::vector<Pick> stretches = partsOf(curve, columns, amounts.most - extremePoints.size());

    Picks result{.points = {}, .inView = inView, .isSampled = true};
    auto extreme = extremePoints.cbegin();
    for (const Pick& pick : stretches) {
        for (; extreme != extremePoints.cend() && *extreme < pick.index; ++extreme) {
            result.points.push_back({*extreme, pick.isJoined});
        }
        if (extreme != extremePoints.cend() && *extreme == pick.index) {
            ++extreme;
        }
        result.points.push_back(pick);
    }
    for (; extreme != extremePoints.cend(); ++extreme) {
        result.points.push_back({*extreme, false});
    }
    return result;
}

} // namespace cluiedit
