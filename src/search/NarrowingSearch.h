#pragma once

#include <clconfigui_export.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// The search of a box in which somebody types: the list stays, the query grows and shrinks. Ranks exactly as
/// FuzzyFinder::search() does with the same list, query and strategy. But what matches a query has matched every
/// beginning of it, so only those texts are looked at that matched what was typed before; and technique names are
/// followed from the letter on that had been reached.
///
///     NarrowingSearch search(names, NarrowingSearch::Strategy::Technique);
///     search.search("c", 50);   // looks at all names
///     search.search("ch", 50);  // looks at those that have a "c"
///     search.search("c", 50);   // knows them still
///
/// Keeps what it found for every query that the present one begins with, in 16 bytes for every match of each of them,
/// and the memory of longer ones for later. An object is for one thread at a time; what it has been moved from finds
/// nothing.
class CLCONFIGUI_EXPORT NarrowingSearch
{
public:
    /// How texts are matched and scored.
    enum class Strategy {
        Technique, ///< As TechniqueSearchStrategy does.
        Text ///< As FtsStrategy does.
    };

    /// Searches \p candidates, which stay as they are.
    explicit NarrowingSearch(std::vector<std::string> candidates, Strategy strategy);
    NarrowingSearch(NarrowingSearch&& other) noexcept;
    NarrowingSearch& operator=(NarrowingSearch&& other) noexcept;
    NarrowingSearch(const NarrowingSearch&) = delete;
    NarrowingSearch& operator=(const NarrowingSearch&) = delete;
    ~NarrowingSearch();

    /// Returns the indices into the list of the best \p maxResults matches of \p query, best first, as the strategy
    /// orders them. Fewer when fewer match; none for 0; all for a negative \p maxResults.
    /// Fastest for a query that goes on from the one before, or goes back to one before it.
    std::vector<std::size_t> search(const std::string& query, int maxResults = -1);

private:
    class Rule;
    class TechniqueRule;
    class TextRule;

    std::unique_ptr<Rule> m_rule;
};
