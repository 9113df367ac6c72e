#include <search/FuzzyFinder.h>

#include "private/Ranking.h"

#include <search/AFuzzyFinderStrategy.h>

#include <utility>

std::vector<std::size_t> FuzzyFinder::search(const std::string& query, const std::vector<std::string>& candidates,
                                             int maxResults, std::unique_ptr<AFuzzyFinderStrategy> strategy)
{
    const auto owned = std::move(strategy); // a parameter may outlive the call
    return search::firstOf(owned->applyAlgorithm(query, candidates), maxResults);
}
