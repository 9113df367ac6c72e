// Any query in any list, in lines of the input: both strategies give the scores and the order of their literal
// versions, and so does the query typed letter by letter.

#include "Fuzz.h"

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/LiteralSearch.h>
#include <search/NarrowingSearch.h>
#include <search/TechniqueSearchStrategy.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

using fuzz::require;

namespace {

constexpr std::size_t LongestQuery = 10; // the literal version takes 2 to the power of it
constexpr std::size_t LongestInput = 2048;

using Score = std::optional<int>;

template <typename Strategy>
void compare(const std::string& query, const std::vector<std::string>& candidates, int maxResults,
             NarrowingSearch::Strategy strategy,
             Score (*literalScore)(const std::string& query, const std::string& candidate))
{
    const std::vector<std::string_view> views(candidates.begin(), candidates.end());
    std::vector<Score> literalScores;
    literalScores.reserve(candidates.size());
    for (const std::string& candidate : candidates) {
        literalScores.push_back(literalScore(query, candidate));
    }
    std::vector<Score> scores(candidates.size());
    std::vector<std::size_t> order;
    for (const FuzzyMatch& match : Strategy::rank(query, views)) {
        scores.at(match.index) = match.score;
        order.push_back(match.index);
    }
    require(scores == literalScores, "every score is that of the literal version");
    require(order == literal::ranking(literalScores), "the order is that of the literal version");

    const auto found = FuzzyFinder::search(query, candidates, maxResults, std::make_unique<Strategy>());
    if (maxResults >= 0 && static_cast<std::size_t>(maxResults) < order.size()) {
        order.resize(static_cast<std::size_t>(maxResults));
    }
    require(found == order, "the finder gives the first of the order");

    NarrowingSearch narrowing(candidates, strategy);
    for (std::size_t length = 0; length < query.size(); length += 1 + query.size() / 4) {
        narrowing.search(query.substr(0, length), maxResults);
    }
    require(narrowing.search(query, maxResults) == order, "and so it does when the query is typed");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0 || size > LongestInput) {
        return 0;
    }
    const int maxResults = static_cast<int>(data[0] % 8) - 1;
    std::vector<std::string> lines(1);
    for (std::size_t i = 1; i < size; ++i) {
        if (data[i] == '\n') {
            lines.emplace_back();
        } else {
            lines.back().push_back(static_cast<char>(data[i]));
        }
    }
    const std::string query = lines.front().substr(0, LongestQuery);
    lines.erase(lines.begin());

    compare<FtsStrategy>(query, lines, maxResults, NarrowingSearch::Strategy::Text, literal::textScore);
    compare<TechniqueSearchStrategy>(query, lines, maxResults, NarrowingSearch::Strategy::Technique,
                                     [](const std::string& pattern, const std::string& candidate) {
                                         return literal::techniqueScore(pattern, candidate);
                                     });
    return 0;
}
