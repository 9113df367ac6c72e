#pragma once

#include "Ascii.h"
#include "TechniqueRules.h"

#include <search/TechniqueSearchStrategy.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace search {

/// Scores many texts against one query, with the results of TechniqueSearchStrategy::fuzzyMatchIterativeTechnique.
///
/// That function weighs one path for every place of the query; this one only for every run of consecutive letters,
/// since a path that is cut inside a run is never the best one. Where that does not hold (the prefix bonus is within
/// reach, or the lengths are such that 32 bits might not do) it asks the other.
class TechniqueScorer
{
public:
    /// Longer queries and texts are left to the function that wraps where the rule does.
    static constexpr std::size_t LongestQuery = 10'000;
    static constexpr std::size_t LongestText = std::numeric_limits<std::int32_t>::max();

    /// How far the first letters of the query have been followed in a text: each at its first place behind the one
    /// before, and what that brings. A path for more letters goes on where one for fewer ended.
    struct Path
    {
        std::uint32_t end = 0; ///< The place behind the last letter.
        std::uint32_t runStart = 0; ///< The letter that the last run of consecutive places began with.
        int points = 0; ///< What the path scores but for the length of that run and the word starts inside.
        int gain = 0; ///< The most that zeroing the letters before a run up to the last one brings.
    };

    /// REQUIRES: the bytes behind \p query outlive the scorer.
    explicit TechniqueScorer(std::string_view query);

    /// The score of \p text, or nothing if it lacks the query.
    std::optional<int> score(std::string_view text) const;

    /// False for a query or a text of such a length that paths are not to be used. score() knows what to do.
    bool canFollow(std::string_view text) const
    {
        return m_letters.size() <= LongestQuery && text.size() <= LongestText;
    }

    /// Leads \p path, which has \p found letters of the query, to all of them. False if \p text lacks them.
    /// REQUIRES: canFollow(text).
    bool follow(Path& path, std::size_t found, std::string_view text) const;

    /// The score of \p text, of which \p path has all letters of the query.
    int scoreOf(Path path, std::string_view text) const;

private:
    /// What \p path, which has \p found letters of the query, scores with the run that it ends in.
    int pointsWithRun(Path path, std::size_t found) const;

    std::string_view m_query;
    std::string m_letters; // the query in lower case
    std::vector<int> m_gapsBefore; // for each place of the query, how many word gaps the query has before it
};

inline int TechniqueScorer::pointsWithRun(Path path, std::size_t found) const
{
    const int length = static_cast<int>(found - path.runStart);
    return path.points + technique::RunWeight * length * length
        + technique::WordStartBonus * (m_gapsBefore[found - 1] - m_gapsBefore[path.runStart]);
}

inline bool TechniqueScorer::follow(Path& path, std::size_t found, std::string_view text) const
{
    const std::size_t count = m_letters.size();
    std::size_t at = path.end;
    const auto isNext = [&] { return toLower(text[at]) == static_cast<unsigned char>(m_letters[found]); };
    const auto followRun = [&] {
        while (found < count && at < text.size() && isNext()) {
            ++at;
            ++found;
        }
    };
    if (found > 0) {
        followRun();
    }
    // One turn for each further run. Zeroing the path up to a run gives up the points of the runs before it and brings
    // a fixed sum for each of their letters; gain is the best such exchange.
    while (found < count) {
        while (at < text.size() && !isNext()) {
            ++at;
        }
        if (at == text.size()) {
            return false;
        }
        if (found > 0) {
            path.points = pointsWithRun(path, found) - technique::GapPenalty;
            path.gain = std::max(path.gain, technique::ZeroPoints * static_cast<int>(found) - path.points);
        }
        path.points += technique::wordStartPoints(text, at);
        path.runStart = static_cast<std::uint32_t>(found);
        ++at;
        ++found;
        followRun();
    }
    path.end = static_cast<std::uint32_t>(at);
    return true;
}

inline int TechniqueScorer::scoreOf(Path path, std::string_view text) const
{
    const std::size_t count = m_letters.size();
    if (count == 1) {
        return technique::commonPoints(text) + technique::RunWeight + technique::FirstPositionBonus
            + technique::PrefixBonus;
    }
    if (count == 0 || !technique::prefixRange(m_query, text).empty()) {
        return *TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(m_query, text);
    }
    const int allZero = technique::ZeroPoints * static_cast<int>(count) + technique::GapPenalty;
    return technique::commonPoints(text) + std::max(pointsWithRun(path, count) + path.gain, allZero);
}

} // namespace search
