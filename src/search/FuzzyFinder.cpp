#include <search/FuzzyFinder.h>

#include <search/AFuzzyFinderStrategy.h>

#include <utility>

std::vector<std::size_t> FuzzyFinder::search(const std::string& query, const std::vector<std::string>& candidates,
                                             int maxResults, std::unique_ptr<AFuzzyFinderStrategy> strategy)
{
    const auto owned = std::move(strategy); // a parameter may outlive the call
    std::vector<std::size_t> indices = owned->applyAlgorithm(query, candidates);
    const auto bound = static_cast<std::size_t>(maxResults); // a negative number becomes one that no list reaches
    if (bound < indices.size()) {
        indices.resize(bound);
    }
    return indices;
}
