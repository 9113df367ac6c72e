#pragma once

#include <search/FuzzyMatch.h>

#include <cstddef>
#include <deque>
#include <functional>
#include <memory_resource>
#include <span>
#include <string_view>
#include <vector>

namespace cluiconfig {

/// Puts at most so many bytes to a place and returns how many; none at the end. Throws when it cannot.
using ByteSource = std::function<std::size_t(char*, std::size_t)>;

/// rank() of a strategy, for some query.
using LineRanking = std::function<std::vector<FuzzyMatch>(std::span<const std::string_view>)>;

/// The lines of an input that match a query, best first; among equal scores the later line first.
///
/// A line ends with a line feed, which a carriage return may precede; the last one may lack it.
class LineSearch
{
public:
    /// Lines of one score that follow each other in the ranking.
    struct Lines
    {
        std::string_view text; ///< The lines, each with a line feed behind it.
        int score;
        int block; ///< Where in the input they stand: before those with a higher number.
    };

    /// Finds the best \p most lines in all that \p read gives. With much to read every processor takes part: \p rank is
    /// called in several threads at once, \p read in any of them, one after the other. Throws what these throw.
    LineSearch(const ByteSource& read, const LineRanking& rank, std::size_t most);

    const std::vector<Lines>& bestFirst() const { return m_found; }

private:
    std::deque<std::pmr::monotonic_buffer_resource> m_texts; ///< Those of each thread.
    std::vector<Lines> m_found;
};

} // namespace cluiconfig
