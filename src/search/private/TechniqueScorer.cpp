#include "TechniqueScorer.h"

#include "Ascii.h"
#include "TechniqueRules.h"

#include <search/TechniqueSearchStrategy.h>

#include <algorithm>
#include <limits>

using namespace search::technique;

namespace search {

namespace {

/// Up to these lengths no sum comes near the limits of int.
constexpr std::size_t longestQuery = 10'000;
constexpr std::size_t longestText = std::numeric_limits<int>::max();

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
    if (count < 2 || count > longestQuery || text.size() > longestText) {
        return TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(m_query, text);
    }

    // One turn for each run of the greedy path. Zeroing the path up to a run gives up the points of the runs before it
    // and brings a fixed sum for each of their letters; gain is the best such exchange.
    constexpr int zeroPoints = runWeight + firstPositionBonus - gapPenalty;
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
            points -= gapPenalty;
            gain = std::max(gain, zeroPoints * static_cast<int>(first) - points);
        }
        const int length = static_cast<int>(found - first);
        points += runWeight * length * length + wordStartPoints(text, start);
        points += wordStartBonus * (m_gapsBefore[found - 1] - m_gapsBefore[first]);
    }

    if (!prefixRange(m_query, text).empty()) {
        return TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(m_query, text);
    }
    const int allZero = zeroPoints * static_cast<int>(count) + gapPenalty;
    return commonPoints(text) + std::max(points + gain, allZero);
}

} // namespace search
