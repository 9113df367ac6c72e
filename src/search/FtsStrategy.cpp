#include <search/FtsStrategy.h>

#include "private/FtsScorer.h"
#include "private/Ranking.h"

namespace {

template <class Texts>
std::vector<FuzzyMatch> findTexts(std::string_view query, const Texts& candidates)
{
    query = search::ftsQuery(query);
    if (query.empty()) {
        return {};
    }
    return search::findMatches(query, candidates, search::FtsScorer(query));
}

} // namespace

std::vector<std::size_t> FtsStrategy::applyAlgorithm(const std::string& query,
                                                     const std::vector<std::string>& candidates) const
{
    return search::indicesBestFirst(findTexts(query, candidates));
}

std::vector<FuzzyMatch> FtsStrategy::rank(std::string_view query, std::span<const std::string_view> candidates)
{
    return search::bestFirst(findTexts(query, candidates));
}
