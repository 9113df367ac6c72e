#include "TechniqueScorer.h"

#include "Ascii.h"
#include "TechniqueRules.h"

#include <search/TechniqueSearchStrategy.h>

#include <algorithm>
#include <cstdint>
#include <limits>

using namespace search::technique;

namespace search {

namespace {

/// Longer queries and texts are left to the function that wraps where the rule does.
constexpr std::size_t LongestQuery = 10'000;
constexpr std::size_t LongestText = std::numeric_limits<std::int32_t>::max();

/// What a position that reads as zero brings: a run of one, the first position, and the gap behind it.
constexpr int ZeroPoints = RunWeight + FirstPositionBonus - GapPenalty;

/// The most that a query of \p length letters can score without the prefix bonus: in one run, all letters word starts.
constexpr std::int64_t mostPoints(std::int64_t length)
{
    return BasePoints + PieceBonuses + RunWeight * length * length
        + std::max(WordStartBonus, FirstPositionBonus) * length;
}

// What score() needs of the constants to give the same as the function it stands in for. The steps are those of
// "Why a long list needs to look at runs only" in docs/search.md, which says why each is needed.
static_assert(GapPenalty >= 0 && WordStartBonus >= 0 && ZeroPoints >= 0, "step 1: only gaps cost");
static_assert(ZeroPoints <= 3 * RunWeight, "step 2: a zero never pays while two letters of its run are left");
static_assert(mostPoints(LongestQuery) <= std::numeric_limits<int>::max(), "step 5: no sum leaves the range of int");
static_assert(LongestText - 1 <= std::numeric_limits<std::int32_t>::max(), "step 6: no position comes after 2 GiB");

} // namespace

TechniqueScorer::TechniqueScorer(std::string_view query)
    : m_query(query)
    , m_letters(toLower(query))
{
    int gaps = 0;
    m_gapsBefore.reserve(query.size());
    for (const char letter : query) {
        m_gapsBefore.push_back(gaps);
        gaps += isWordGap(static_cast<unsigned char>(letter)) ? 1 : 0;
    }
}

std::optional<int> TechniqueScorer::score(std::string_view text) const
{
    const std::size_t count = m_letters.size();
    if (count < 2 || count > LongestQuery || text.size() > LongestText) {
        return TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(m_query, text);
    }

    // One turn for each run of the greedy path. Zeroing the path up to a run gives up the points of the runs before it
    // and brings a fixed sum for each of their letters; gain is the best such exchange.
    int points = 0;
    int gain = 0;
    std::size_t at = 0;
    std::size_t found = 0;
    while (found < count) {
        while (at < text.size() && toLower(text[at]) != static_cast<unsigned char>(m_letters[found])) {
            ++at;
        }
        if (at == text.size()) {
            return std::nullopt;
        }
        const std::size_t start = at;
        const std::size_t first = found;
        do {
            ++at;
            ++found;
        } while (found < count && at < text.size()
                 && toLower(text[at]) == static_cast<unsigned char>(m_letters[found]));

        if (first > 0) {
            points -= GapPenalty;
            gain = std::max(gain, ZeroPoints * static_cast<int>(first) - points);
        }
        const int length = static_cast<int>(found - first);
        points += RunWeight * length * length + wordStartPoints(text, start);
        points += WordStartBonus * (m_gapsBefore[found - 1] - m_gapsBefore[first]);
    }

    if (!prefixRange(m_query, text).empty()) {
        return TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(m_query, text);
    }
    const int allZero = ZeroPoints * static_cast<int>(count) + GapPenalty;
    return commonPoints(text) + std::max(points + gain, allZero);
}

} // namespace search
