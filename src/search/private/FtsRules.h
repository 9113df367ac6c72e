#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// \file FtsRules.h
/// The constants of the text strategy; docs/search.md says what each is for.

namespace search::fts {

inline constexpr int basePoints = 100;
inline constexpr int latePenalty = 5; // for each byte before the first letter found
inline constexpr int latePenaltyLimit = 15;
inline constexpr int adjacentBonus = 15;
inline constexpr int wordStartBonus = 30;
inline constexpr int firstPositionBonus = 15;
inline constexpr std::size_t longestQuery = 256;

/// How many branches an exploration follows besides the first path.
inline constexpr int branchLimit = 8;

constexpr int latePoints(int position)
{
    return -std::min(latePenalty * position, latePenaltyLimit);
}

/// What remains of the base when each byte of the text that is not matched costs a point. Wraps for texts of 2 GiB.
inline std::uint32_t commonPoints(std::size_t textLength, std::size_t queryLength)
{
    return static_cast<std::uint32_t>(basePoints) - static_cast<std::uint32_t>(textLength - queryLength);
}

} // namespace search::fts
