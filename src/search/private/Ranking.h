#pragma once

#include "DecisiveLetters.h"
#include "SubsequenceFilter.h"

#include <search/FuzzyMatch.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace search {

/// A few of \p candidates, spread over the list: so many that looking at them takes no part of the time of a search.
template <class Texts>
std::vector<std::string_view> sampleOf(const Texts& candidates)
{
    constexpr std::size_t MostTexts = 64;
    constexpr std::size_t OneIn = 32;
    std::vector<std::string_view> sample(std::min(MostTexts, candidates.size() / OneIn));
    for (std::size_t i = 0; i < sample.size(); ++i) {
        sample[i] = candidates[i * (candidates.size() / sample.size())];
    }
    return sample;
}

/// Calls \p match(index, text) for those of \p candidates, a range of texts, that may contain \p query, by ascending
/// index. It tells whether they do.
template <class Texts, class Match>
void forEachLikely(std::string_view query, const Texts& candidates, const Match& match)
{
    const SubsequenceFilter filter(query, decisiveLetters(query, sampleOf(candidates)));
    std::size_t matchCount = 0;
    std::size_t index = 0;
    for (std::string_view text : candidates) {
        // Where most candidates match the filter would be a second reading for nothing: the rule rejects as well.
        const bool filtering = 2 * matchCount <= index;
        if (!filtering || filter.mayContain(text)) {
            matchCount += match(index, text) ? 1 : 0;
        }
        ++index;
    }
}

/// The matches that \p scorer gives a score, by ascending index.
template <class Texts, class Scorer>
std::vector<FuzzyMatch> findMatches(std::string_view query, const Texts& candidates, const Scorer& scorer)
{
    std::vector<FuzzyMatch> matches;
    matches.reserve(candidates.size()); // memory that is not written to costs next to nothing
    forEachLikely(query, candidates, [&](std::size_t index, std::string_view text) {
        const std::optional<int> score = scorer.score(text);
        if (score) {
            matches.push_back({index, *score});
        }
        return score.has_value();
    });
    return matches;
}

/// The matches by descending score, and by descending index among equal scores.
/// REQUIRES: \p matches come by ascending index.
std::vector<FuzzyMatch> bestFirst(std::span<const FuzzyMatch> matches);

/// The indices of the matches in that order, or of the first \p maxResults unless that is negative.
std::vector<std::size_t> indicesBestFirst(std::span<const FuzzyMatch> matches, int maxResults = -1);

/// The first \p maxResults of \p indices; all for a negative number.
std::vector<std::size_t> firstOf(std::vector<std::size_t> indices, int maxResults);

} // namespace search
