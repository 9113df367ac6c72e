#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace cluiedit {

/// A point to draw, and whether a line leads to it from the one before.
struct Pick
{
    quint32 index = 0;
    bool isJoined = false;
};

/// The points of a curve that are drawn.
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
struct PickAmounts
{
    std::size_t whole = 4000; ///< Up to so many in the range, all of them.
    std::size_t most = 32000; ///< Never more. At least 16 are taken for granted.
};

} // namespace cluiedit
