#pragma once

#include <cstddef>

/// A candidate that matched a query: where it stands in the list of candidates, and its score. The more the better;
/// scores of different strategies do not compare.
struct FuzzyMatch
{
    std::size_t index;
    int score;
};
