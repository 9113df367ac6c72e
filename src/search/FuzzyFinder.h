#pragma once

#include <clconfigui_export.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class AFuzzyFinderStrategy;

/// Ranks a list of texts against a typed query: what a search box calls.
class CLCONFIGUI_EXPORT FuzzyFinder
{
public:
    /// Returns the indices into \p candidates of the best \p maxResults matches, best first, as \p strategy orders
    /// them. Fewer when fewer match; none for 0; all for a negative \p maxResults.
    /// The strategy is destroyed before search() returns. May run on several threads at once.
    /// REQUIRES: strategy is not null.
    static std::vector<std::size_t> search(const std::string& query, const std::vector<std::string>& candidates,
                                           int maxResults, std::unique_ptr<AFuzzyFinderStrategy> strategy);
};
