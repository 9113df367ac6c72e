#include <search/TechniqueSearchStrategy.h>

#include "private/Ranking.h"
#include "private/TechniqueRules.h"
#include "private/TechniqueScorer.h"

#include <algorithm>
#include <array>
#include <cstdint>

using namespace search::technique;

namespace {

/// A score that wraps where 32-bit signed arithmetic would overflow.
class WrappingScore
{
public:
    explicit WrappingScore(int value)
        : m_value(static_cast<std::uint32_t>(value))
    {
    }
    void add(int points) { m_value += static_cast<std::uint32_t>(points); }
    void addRun(std::size_t length) { m_value += runPoints(length); }
    void removeRun(std::size_t length) { m_value -= runPoints(length); }
    int value() const { return static_cast<int>(m_value); }

private:
    static std::uint32_t runPoints(std::size_t length)
    {
        const auto wrapped = static_cast<std::uint32_t>(length);
        return static_cast<std::uint32_t>(RunWeight) * wrapped * wrapped;
    }

    std::uint32_t m_value;
};

/// The previous position counts as a 32-bit signed number here, so that behind the first 2 GiB everything is a gap.
bool isGap(std::size_t previous, std::size_t position)
{
    const auto next = static_cast<std::int32_t>(static_cast<std::uint32_t>(previous) + 1);
    return position != static_cast<std::size_t>(next);
}

std::size_t runEnd(const std::size_t* matches, std::size_t count, std::size_t begin)
{
    std::size_t end = begin + 1;
    while (end < count && matches[end] == matches[end - 1] + 1) {
        ++end;
    }
    return end;
}

/// The first places in \p str where the bytes of \p pattern follow each other. False if there are none.
bool findGreedily(std::string_view pattern, std::string_view str, std::size_t* matches)
{
    std::size_t found = 0;
    for (std::size_t at = 0; found < pattern.size(); ++at) {
        if (at == str.size()) {
            return false;
        }
        if (search::toLower(str[at]) == search::toLower(pattern[found])) {
            matches[found++] = at;
        }
    }
    return true;
}

} // namespace

std::vector<std::size_t> TechniqueSearchStrategy::applyAlgorithm(const std::string& query,
                                                                 const std::vector<std::string>& candidates) const
{
    return search::indicesBestFirst(search::findMatches(query, candidates, search::TechniqueScorer(query)));
}

std::vector<FuzzyMatch> TechniqueSearchStrategy::rank(std::string_view query,
                                                      std::span<const std::string_view> candidates)
{
    return search::bestFirst(search::findMatches(query, candidates, search::TechniqueScorer(query)));
}

/// The best of n + 1 paths through \p str: the greedy one, and for each k from 1 to n the one that has zero instead of
/// its first k positions. docs/search.md proves that no others come up. Zeroing one position after the other, the score
/// of each path follows from the one before.
std::optional<int> TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(std::string_view pattern, std::string_view str)
{
    if (pattern.empty()) {
        return calculateScore(str, nullptr, 0, pattern);
    }
    const std::size_t count = pattern.size();
    std::array<std::size_t, 64> shortMatches; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    std::vector<std::size_t> longMatches;
    std::size_t* matches = shortMatches.data();
    if (count > shortMatches.size()) {
        longMatches.resize(count);
        matches = longMatches.data();
    }
    if (!findGreedily(pattern, str, matches)) {
        return std::nullopt;
    }
    int best = calculateScore(str, matches, static_cast<int>(count), pattern);
    const PrefixRange prefix = prefixRange(pattern, str);
    WrappingScore score(best); // from here on without the prefix bonus
    score.add(prefix.contains(0) ? -PrefixBonus : 0);
    std::size_t end = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (i == end) {
            end = runEnd(matches, count, i);
        }
        score.removeRun(end - i);
        score.addRun(end - i - 1);
        score.addRun(1);
        score.add(FirstPositionBonus - wordStartPoints(str, matches[i]));
        if (i + 1 < count && !isGap(matches[i], matches[i + 1])) {
            score.add(-GapPenalty);
        }
        if (i == 0 && matches[0] == 0) {
            continue; // the greedy path again, in which the zero belongs to its run
        }
        WrappingScore total = score;
        total.add(prefix.contains(i + 1) ? PrefixBonus : 0);
        best = std::max(best, total.value());
    }
    return best;
}

int TechniqueSearchStrategy::calculateScore(std::string_view str, const std::size_t* matches, int matchCount,
                                            std::string_view pattern)
{
    const auto count = static_cast<std::size_t>(matchCount);
    WrappingScore score(commonPoints(str));
    bool isPrefix = count == pattern.size();
    for (std::size_t i = 0; i < count; ++i) {
        isPrefix = isPrefix && search::toLower(str[i]) == search::toLower(str[matches[i]]);
        score.add(wordStartPoints(str, matches[i]));
        score.add(i > 0 && isGap(matches[i - 1], matches[i]) ? -GapPenalty : 0);
    }
    score.add(isPrefix ? PrefixBonus : 0);
    if (count == 0) {
        score.addRun(1);
    }
    for (std::size_t begin = 0; begin < count;) {
        const std::size_t end = runEnd(matches, count, begin);
        score.addRun(end - begin);
        begin = end;
    }
    return score.value();
}
