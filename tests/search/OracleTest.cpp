#include "GeneratedTexts.h"
#include "LiteralSearch.h"

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/NarrowingSearch.h>
#include <search/TechniqueSearchStrategy.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

// The library against the literal version of both procedures, on generated texts. One case is one query with one
// candidate, scored by both strategies unless the test says otherwise; every list of candidates is also ranked and cut.
// CLCONFIGUI_SEARCH_CASES says how many cases to run, from the same seed every time.

namespace {

constexpr std::size_t CasesInEveryRun = 20'000;
constexpr std::size_t LongestTechniqueQuery = 12; // the literal version takes 2 to the power of it
constexpr std::uint64_t Seed = 20240607;

/// Fails the test that asks if CLCONFIGUI_SEARCH_CASES is not a number of cases.
std::size_t casesToRun()
{
    const char* wanted = std::getenv("CLCONFIGUI_SEARCH_CASES"); // NOLINT(concurrency-mt-unsafe): nobody sets it
    if (wanted == nullptr) {
        return CasesInEveryRun;
    }
    const std::string_view text = wanted;
    std::size_t cases = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), cases);
    if (error != std::errc() || end != text.data() + text.size() || cases == 0) {
        ADD_FAILURE() << "CLCONFIGUI_SEARCH_CASES is '" << text << "', not a number of cases from 1 on";
        return CasesInEveryRun;
    }
    return cases;
}

std::string readable(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        std::array<char, 5> escaped{};
        std::snprintf(escaped.data(), escaped.size(), "\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
        result += c >= ' ' && c <= '~' ? std::string(1, c) : std::string(escaped.data());
    }
    return result;
}

/// Counts cases, matches and differences, and shows the first few differences. It fails if there are no cases, or next
/// to no matches, as well: then it has shown nothing.
class Comparison
{
public:
    explicit Comparison(const char* name)
        : m_name(name)
    {
    }
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;
    ~Comparison()
    {
        std::printf("%s: %zu cases, %zu matches, %zu differences\n", m_name, m_cases, m_matches, m_differences);
        EXPECT_GT(m_cases, 0U) << m_name;
        EXPECT_GT(m_matches, m_cases / 100) << m_name;
        EXPECT_EQ(m_differences, 0U) << m_name;
    }

    void addCases(std::size_t count) { m_cases += count; }
    std::size_t cases() const { return m_cases; }

    /// To be told of every score that the literal version gives.
    void addMatches(std::size_t count) { m_matches += count; }
    std::size_t matches() const { return m_matches; }

    template <class Value>
    void expectEqual(const Value& literal, const Value& ours, const char* what, const std::string& query,
                     const std::string& candidate)
    {
        if (literal == ours) {
            return;
        }
        if (++m_differences <= 5) {
            ADD_FAILURE() << what << " of query '" << readable(query) << "' in '" << readable(candidate)
                          << "': " << testing::PrintToString(ours) << ", should be " << testing::PrintToString(literal);
        }
    }

private:
    const char* m_name;
    std::size_t m_cases = 0;
    std::size_t m_matches = 0;
    std::size_t m_differences = 0;
};

std::vector<std::size_t> indices(const std::vector<FuzzyMatch>& matches)
{
    std::vector<std::size_t> result;
    result.reserve(matches.size());
    for (const FuzzyMatch& match : matches) {
        result.push_back(match.index);
    }
    return result;
}

/// The score of each candidate, nothing for those that do not match.
std::vector<std::optional<int>> scores(const std::vector<FuzzyMatch>& matches, std::size_t count)
{
    std::vector<std::optional<int>> result(count);
    for (const FuzzyMatch& match : matches) {
        result[match.index] = match.score;
    }
    return result;
}

std::vector<std::size_t> cut(std::vector<std::size_t> indices, int maxResults)
{
    if (maxResults >= 0 && static_cast<std::size_t>(maxResults) < indices.size()) {
        indices.resize(static_cast<std::size_t>(maxResults));
    }
    return indices;
}

void compareText(Comparison& comparison, const std::string& query, const std::vector<std::string>& candidates,
                 int maxResults)
{
    const std::vector<std::string_view> views(candidates.begin(), candidates.end());
    const auto ranked = FtsStrategy::rank(query, views);
    const auto ours = scores(ranked, candidates.size());
    std::vector<std::optional<int>> theirs;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        theirs.push_back(literal::textScore(query, candidates[i]));
        comparison.expectEqual(theirs[i], ours[i], "text score", query, candidates[i]);
    }
    const auto order = literal::ranking(theirs);
    comparison.addMatches(order.size());
    comparison.expectEqual(order, indices(ranked), "text order with scores", query, "(list)");
    comparison.expectEqual(cut(order, maxResults),
                           FuzzyFinder::search(query, candidates, maxResults, std::make_unique<FtsStrategy>()),
                           "text order", query, "(list)");
}

void compareTechniques(Comparison& comparison, const std::string& query, const std::vector<std::string>& candidates,
                       int maxResults)
{
    const std::vector<std::string_view> views(candidates.begin(), candidates.end());
    const auto ranked = TechniqueSearchStrategy::rank(query, views);
    const auto ours = scores(ranked, candidates.size());
    std::vector<std::optional<int>> theirs;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        theirs.push_back(literal::techniqueScore(query, candidates[i]));
        comparison.expectEqual(theirs[i], ours[i], "technique score in a list", query, candidates[i]);
        comparison.expectEqual(theirs[i], TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(query, candidates[i]),
                               "technique score", query, candidates[i]);
    }
    const auto order = literal::ranking(theirs);
    comparison.addMatches(order.size());
    comparison.expectEqual(order, indices(ranked), "technique order with scores", query, "(list)");
    comparison.expectEqual(
        cut(order, maxResults),
        FuzzyFinder::search(query, candidates, maxResults, std::make_unique<TechniqueSearchStrategy>()),
        "technique order", query, "(list)");
}

std::vector<std::string> candidatesFor(GeneratedTexts& texts, const std::string& query, std::size_t count)
{
    std::vector<std::string> candidates;
    while (candidates.size() < count) {
        candidates.push_back(texts.candidate(query));
    }
    return candidates;
}

/// Compares lists of \p shortest to \p longest candidates, cut to nothing, in the middle and not at all.
void compareLists(const char* name, std::uint64_t firstSeed, std::size_t longestQuery, std::size_t shortest,
                  std::size_t longest)
{
    Comparison comparison(name);
    GeneratedTexts texts(firstSeed);
    const std::size_t wanted = casesToRun();
    while (comparison.cases() < wanted) {
        const std::string query = texts.query(longestQuery);
        const auto candidates = candidatesFor(texts, query, shortest + texts.below(longest - shortest + 1));
        const int maxResults = static_cast<int>(texts.below(longest + longest / 4)) - static_cast<int>(longest / 8);
        compareText(comparison, query, candidates, maxResults);
        compareTechniques(comparison, query, candidates, maxResults);
        comparison.addCases(candidates.size());
    }
}

TEST(SearchOracle, GeneratedListsHaveTheLiteralScoresOrderAndCut)
{
    compareLists("literal comparison", Seed, LongestTechniqueQuery, 0, 30);
}

TEST(SearchOracle, LongListsHaveTheLiteralScoresOrderAndCut)
{
    // Long enough for every way of sorting and of rejecting; short queries, for the literal version's sake.
    compareLists("literal comparison of long lists", Seed + 1, 5, 1000, 2000);
}

TEST(SearchOracle, LongListsWithFewMatchesHaveTheLiteralScoresOrderAndCut)
{
    // What people search most of the time: a letter of the query is in few candidates, and is looked for first.
    Comparison comparison("literal comparison of long lists with few matches");
    GeneratedTexts texts(Seed + 5);
    const std::size_t wanted = casesToRun();
    while (comparison.cases() < wanted) {
        const std::string common = texts.query(5);
        std::string query = common;
        query.insert(texts.below(query.size() + 1), 1, "qQ"[texts.below(2)]); // in no alphabet but that of all bytes
        std::vector<std::string> candidates;
        for (std::size_t count = 1024 + texts.below(500); count > 0; --count) {
            candidates.push_back(texts.candidate(texts.below(30) == 0 ? query : common));
        }
        const int maxResults = static_cast<int>(texts.below(100)) - 30;
        compareText(comparison, query, candidates, maxResults);
        compareTechniques(comparison, query, candidates, maxResults);
        comparison.addCases(candidates.size());
    }
    EXPECT_LT(comparison.matches(), comparison.cases() / 4);
}

/// What somebody might type next: mostly a letter more or a letter less.
std::string typedOn(GeneratedTexts& texts, std::string query, const std::string& whole)
{
    switch (texts.below(8)) {
    case 0:
        return query.substr(0, texts.below(query.size() + 1));
    case 1:
        return query + texts.text(texts.below(4));
    case 2:
        return texts.text(texts.below(4));
    case 3:
        return query.substr(0, query.empty() ? 0 : query.size() - 1);
    case 4:
        std::transform(query.begin(), query.end(), query.begin(), [](char c) { return c == 'a' ? 'A' : c; });
        return query;
    default:
        return query + whole.substr(std::min(query.size(), whole.size()), 1);
    }
}

TEST(SearchOracle, NarrowingHasTheRankingFromScratchHoweverIsTyped)
{
    // Every ranking of either strategy; lists short and long enough for every way of sorting and of rejecting.
    Comparison comparison("narrowing against searches from scratch");
    GeneratedTexts texts(Seed + 8);
    const std::size_t wanted = casesToRun();
    while (comparison.cases() < wanted) {
        const std::string whole = texts.query(40);
        const auto candidates =
            candidatesFor(texts, whole, texts.below(4) == 0 ? 600 + texts.below(1500) : texts.below(40));
        NarrowingSearch technique(candidates, NarrowingSearch::Strategy::Technique);
        NarrowingSearch text(candidates, NarrowingSearch::Strategy::Text);
        std::string query;
        for (std::size_t key = texts.below(50); key > 0; --key) {
            query = typedOn(texts, std::move(query), whole);
            const int maxResults = texts.below(2) == 0 ? -1 : static_cast<int>(texts.below(60));
            const auto techniques =
                FuzzyFinder::search(query, candidates, maxResults, std::make_unique<TechniqueSearchStrategy>());
            comparison.expectEqual(techniques, technique.search(query, maxResults), "narrowed technique order", query,
                                   "(list)");
            comparison.expectEqual(FuzzyFinder::search(query, candidates, maxResults, std::make_unique<FtsStrategy>()),
                                   text.search(query, maxResults), "narrowed text order", query, "(list)");
            comparison.addCases(candidates.size());
            comparison.addMatches(techniques.size());
        }
    }
}

TEST(SearchOracle, EveryLengthAroundTheLimitsWithANulAnywhereHasTheLiteralScores)
{
    Comparison comparison("literal comparison around the limits");
    GeneratedTexts texts(Seed + 6);
    for (const std::size_t limit : std::initializer_list<std::size_t>{16, 32, 48, 64, 80, 96, 112, 128, 256}) {
        for (const std::size_t length : {limit - 1, limit, limit + 1}) {
            for (std::size_t nul = 0; nul <= length; ++nul) {
                std::string query;
                while (query.size() < 2) {
                    query = texts.query(6);
                }
                std::string candidate = texts.text(length);
                if (nul < length) {
                    candidate[nul] = '\0';
                }
                const std::vector<std::string> list = {candidate, candidate + query, query + candidate};
                compareText(comparison, query, list, -1);
                compareTechniques(comparison, query, list, -1);
                comparison.addCases(list.size());
            }
        }
    }
}

TEST(SearchOracle, LongTextQueriesHaveTheLiteralScores)
{
    // Queries of more letters than the literal version of the technique search can take, up to more than it may match.
    Comparison comparison("literal comparison of long text queries");
    GeneratedTexts texts(Seed + 2);
    const std::size_t wanted = casesToRun();
    while (10 * comparison.cases() < wanted) {
        std::string query = texts.query(60);
        if (texts.below(4) == 0) {
            query = texts.text(255 + texts.below(3)); // 256 letters may match, 257 may not
        }
        const auto candidates = candidatesFor(texts, query, 10);
        compareText(comparison, query, candidates, -1);
        comparison.addCases(candidates.size());
    }
}

TEST(SearchOracle, TechniqueExplorationKnowsOnePathForEveryPlaceOfTheQuery)
{
    // What the library's version rests on: the greedy path, and for each k that path with its first k positions zero.
    GeneratedTexts texts(Seed + 3);
    std::size_t matching = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string query = texts.query(8);
        const std::string candidate = texts.candidate(query);
        auto paths = literal::techniquePaths(query, candidate);
        if (paths.empty()) {
            continue;
        }
        ++matching;
        std::vector<std::vector<std::size_t>> expected = {paths.front()};
        for (std::size_t k = 0; k < query.size(); ++k) {
            expected.push_back(expected.back());
            expected.back()[k] = 0;
        }
        for (auto* list : {&paths, &expected}) {
            std::sort(list->begin(), list->end());
            list->erase(std::unique(list->begin(), list->end()), list->end());
        }
        ASSERT_EQ(paths, expected) << readable(query) << " in " << readable(candidate);
    }
    EXPECT_GT(matching, 500U);
}

/// The score by the rule for one path, of the best of the paths that the test above finds: linear in the number of
/// paths, where the literal version is exponential.
std::optional<int> bestOfThePaths(const std::string& query, const std::string& candidate)
{
    std::vector<std::size_t> path;
    for (std::size_t at = 0; at < candidate.size() && path.size() < query.size(); ++at) {
        if (literal::techniqueScore(query.substr(path.size(), 1), candidate.substr(at, 1))) {
            path.push_back(at);
        }
    }
    if (path.size() < query.size()) {
        return std::nullopt;
    }
    int best = literal::techniquePathScore(candidate, path, query);
    for (std::size_t& position : path) {
        position = 0;
        best = std::max(best, literal::techniquePathScore(candidate, path, query));
    }
    return best;
}

TEST(SearchOracle, LongTechniqueQueriesHaveTheBestOfThosePaths)
{
    GeneratedTexts texts(Seed + 4);
    std::size_t matching = 0;
    for (int i = 0; i < 500; ++i) {
        const std::string query = texts.query(i % 50 == 0 ? 400 : 80);
        const auto candidates = candidatesFor(texts, query, 5);
        const std::vector<std::string_view> views(candidates.begin(), candidates.end());
        const auto ranked = scores(TechniqueSearchStrategy::rank(query, views), candidates.size());
        for (std::size_t k = 0; k < candidates.size(); ++k) {
            const auto best = bestOfThePaths(query, candidates[k]);
            ASSERT_EQ(TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(query, candidates[k]), best)
                << readable(query) << " in " << readable(candidates[k]);
            ASSERT_EQ(ranked[k], best) << readable(query) << " in " << readable(candidates[k]);
            matching += best.has_value() ? 1 : 0;
        }
    }
    EXPECT_GT(matching, 500U);
}

TEST(SearchOracle, TechniqueQueriesOfThousandsOfLettersHaveTheBestOfThosePaths)
{
    // The longest query that a list is scored for in its own way, and one with which sums wrap. The letters change,
    // since a text that goes on like the query is scored in the other way at any length.
    GeneratedTexts texts(Seed + 7);
    for (const std::size_t length : std::initializer_list<std::size_t>{10'000, 12'000}) {
        std::string query;
        while (query.size() < length) {
            query += "ab_ "[texts.below(4)];
        }
        const std::vector<std::string> candidates = {"x" + query, query.substr(0, length / 2) + " " + query};
        const std::vector<std::string_view> views(candidates.begin(), candidates.end());
        const auto ranked = scores(TechniqueSearchStrategy::rank(query, views), candidates.size());
        for (std::size_t k = 0; k < candidates.size(); ++k) {
            ASSERT_EQ(ranked[k], bestOfThePaths(query, candidates[k])) << length << " letters, candidate " << k;
        }
    }
}

} // namespace
