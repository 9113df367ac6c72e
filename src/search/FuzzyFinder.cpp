#include <search/FuzzyFinder.h>

#include <search/AFuzzyFinderStrategy.h>

std::vector<std::size_t> FuzzyFinder::search(const std::string& query, const std::vector<std::string>& candidates,
                                             int maxResults, std::unique_ptr<AFuzzyFinderStrategy> strategy)
{
    std::vector<std::size_t> indices = strategy->applyAlgorithm(query, candidates);
    const auto bound = static_cast<std::size_t>(maxResults); // a negative number becomes one that no list reaches
    if (bound < indices.size()) {
        indices.resize(bound);
    }
    return indices;
}
