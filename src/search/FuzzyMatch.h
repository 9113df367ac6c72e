#pragma once

#include <cstddef>

/// A candidate that matched a query: where it stands in the list of candidates, and its score. The more the better;
/// scores of different strategies do not compare.
struct FuzzyMatch
{
    std::size_t index; ///< Its place in the list of candidates.
    int score; ///< How well it matches, by the strategy.
};
