#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// \file FtsRules.h
/// The constants of the text strategy; docs/search.md says what each is for.

namespace search::fts {

inline constexpr int BasePoints = 100;
inline constexpr int LatePenalty = 5; // for each byte before the first letter found
inline constexpr int LatePenaltyLimit = 15;
inline constexpr int AdjacentBonus = 15;
inline constexpr int WordStartBonus = 30;
inline constexpr int FirstPositionBonus = 15;
inline constexpr std::size_t LongestQuery = 256;

/// How many branches an exploration follows besides the first path.
inline constexpr int BranchLimit = 8;

constexpr int latePoints(int position)
{
    return -std::min(LatePenalty * position, LatePenaltyLimit);
}

/// What remains of the base when each byte of the text that is not matched costs a point. Wraps for texts of 2 GiB.
inline std::uint32_t commonPoints(std::size_t textLength, std::size_t queryLength)
{
    return static_cast<std::uint32_t>(BasePoints) - static_cast<std::uint32_t>(textLength - queryLength);
}

} // namespace search::fts
