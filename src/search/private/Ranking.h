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

/// Adds those of \p candidates, a range of texts, that match \p query to \p matches, by ascending index.
/// \p scorer.score(text) gives the score of a text or nothing; it is asked about few texts that lack the query.
/// REQUIRES: \p matches is empty.
template <class Texts, class Scorer>
void addMatches(std::string_view query, const Texts& candidates, const Scorer& scorer, std::vector<FuzzyMatch>& matches)
{
    const SubsequenceFilter filter(query, decisiveLetters(query, sampleOf(candidates)));
    std::size_t index = 0;
    for (std::string_view text : candidates) {
        // Where most candidates match the filter would be a second reading for nothing: the scorer rejects as well.
        const bool filtering = 2 * matches.size() <= index;
        if (!filtering || filter.mayContain(text)) {
            if (const std::optional<int> score = scorer.score(text)) {
                matches.push_back({index, *score});
            }
        }
        ++index;
    }
}

/// Those matches in a list of their own.
template <class Texts, class Scorer>
std::vector<FuzzyMatch> findMatches(std::string_view query, const Texts& candidates, const Scorer& scorer)
{
    std::vector<FuzzyMatch> matches;
    matches.reserve(candidates.size()); // memory that is not written to costs next to nothing
    addMatches(query, candidates, scorer, matches);
    return matches;
}

/// The matches by descending score, and by descending index among equal scores.
/// REQUIRES: \p matches come by ascending index.
std::vector<FuzzyMatch> bestFirst(std::span<const FuzzyMatch> matches);

/// The indices of the matches in that order.
std::vector<std::size_t> indicesBestFirst(std::span<const FuzzyMatch> matches);

/// The first \p maxResults of \p indices; all for a negative number.
std::vector<std::size_t> firstOf(std::vector<std::size_t> indices, int maxResults);

} // namespace search
