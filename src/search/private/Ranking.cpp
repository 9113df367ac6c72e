#include "Ranking.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <utility>

namespace search {

namespace {

constexpr unsigned DigitBits = 12;
constexpr std::size_t DigitCount = std::size_t{1} << DigitBits;

/// Below this a sort by comparisons is done before the digits are counted.
constexpr std::size_t FewMatches = 512;

/// A digit of the distance to the best score, so that the best comes first.
class Digit
{
public:
    Digit(int best, unsigned shift)
        : m_best(static_cast<std::uint32_t>(best))
        , m_shift(shift)
    {
    }
    std::size_t operator()(const FuzzyMatch& match) const
    {
        return ((m_best - static_cast<std::uint32_t>(match.score)) >> m_shift) % DigitCount;
    }

private:
    std::uint32_t m_best;
    unsigned m_shift;
};

struct AsMatch
{
    using Type = FuzzyMatch;
    static Type of(const FuzzyMatch& match) { return match; }
};

struct AsIndex
{
    using Type = std::size_t;
    static Type of(const FuzzyMatch& match) { return match.index; }
};

/// The matches ordered by one digit, those with equal digits as they come from \p begin to \p end.
template <class As, class Iterator>
std::vector<typename As::Type> distribute(Iterator begin, Iterator end, Digit digit)
{
    std::array<std::size_t, DigitCount> next{};
    for (Iterator match = begin; match != end; ++match) {
        ++next[digit(*match)];
    }
    std::size_t start = 0;
    for (std::size_t& place : next) {
        start += std::exchange(place, start);
    }
    std::vector<typename As::Type> ordered(start);
    for (Iterator match = begin; match != end; ++match) {
        ordered[next[digit(*match)]++] = As::of(*match);
    }
    return ordered;
}

template <class As>
std::vector<typename As::Type> ordered(std::span<const FuzzyMatch> matches)
{
    if (matches.size() < FewMatches) {
        std::vector<FuzzyMatch> sorted(matches.begin(), matches.end());
        std::sort(sorted.begin(), sorted.end(), [](const FuzzyMatch& left, const FuzzyMatch& right) {
            return left.score != right.score ? left.score > right.score : left.index > right.index;
        });
        std::vector<typename As::Type> result;
        result.reserve(sorted.size());
        std::transform(sorted.begin(), sorted.end(), std::back_inserter(result), As::of);
        return result;
    }

    int best = matches.front().score;
    int worst = best;
    for (const FuzzyMatch& match : matches) {
        best = std::max(best, match.score);
        worst = std::min(worst, match.score);
    }

    // Backwards the matches have the order that equal scores shall have, and every digit keeps it. Scores lie close
    // together, so that there is hardly ever more than one digit.
    std::uint32_t distance = static_cast<std::uint32_t>(best) - static_cast<std::uint32_t>(worst);
    if (distance < DigitCount) {
        return distribute<As>(matches.rbegin(), matches.rend(), Digit(best, 0));
    }
    std::vector<FuzzyMatch> sorted = distribute<AsMatch>(matches.rbegin(), matches.rend(), Digit(best, 0));
    distance >>= DigitBits;
    unsigned shift = DigitBits;
    for (; distance >= DigitCount; distance >>= DigitBits, shift += DigitBits) {
        sorted = distribute<AsMatch>(sorted.begin(), sorted.end(), Digit(best, shift));
    }
    return distribute<As>(sorted.begin(), sorted.end(), Digit(best, shift));
}

} // namespace

std::vector<FuzzyMatch> bestFirst(std::span<const FuzzyMatch> matches)
{
    return ordered<AsMatch>(matches);
}

std::vector<std::size_t> indicesBestFirst(std::span<const FuzzyMatch> matches)
{
    return ordered<AsIndex>(matches);
}

std::vector<std::size_t> firstOf(std::vector<std::size_t> indices, int maxResults)
{
    const auto bound = static_cast<std::size_t>(maxResults); // a negative number becomes one that no list reaches
    if (bound < indices.size()) {
        indices.resize(bound);
    }
    return indices;
}

} // namespace search
