#include "GeneratedTexts.h"

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/TechniqueSearchStrategy.h>

#include <gtest/gtest.h>

#include <iterator>
#include <latch>
#include <memory>
#include <string>
#include <thread>
#include <vector>

// Search boxes search from worker threads. Built with the thread sanitizer (preset tsan) these tests also fail when two
// threads write to the same memory, whether or not that changes a result.

namespace {

using Ranking = std::vector<std::size_t>;

class ThreadedSearch : public testing::Test
{
protected:
    ThreadedSearch()
    {
        GeneratedTexts texts(1);
        const std::string common = texts.query(8);
        for (int i = 0; i < 3000; ++i) {
            candidates.push_back(texts.candidate(common));
        }
        for (std::size_t length = 0; length <= common.size(); ++length) {
            queries.push_back(common.substr(0, length));
        }
    }

    /// Ranks for every query in each of several threads at once, and checks that all find what one alone finds.
    template <class Rank>
    void expectSameInEveryThread(Rank rank)
    {
        std::vector<Ranking> alone;
        for (const std::string& query : queries) {
            alone.push_back(rank(query));
            EXPECT_TRUE(query.empty() || !alone.back().empty()) << query;
        }
        std::vector<std::vector<Ranking>> found(8);
        std::latch allStarted(std::ssize(found));
        std::vector<std::thread> threads;
        threads.reserve(found.size());
        for (std::vector<Ranking>& mine : found) {
            threads.emplace_back([&] {
                allStarted.arrive_and_wait(); // or the first would be done before the last begins
                for (const std::string& query : queries) {
                    mine.push_back(rank(query));
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        for (const std::vector<Ranking>& rankings : found) {
            EXPECT_EQ(rankings, alone);
        }
    }

    std::vector<std::string> candidates;
    std::vector<std::string> queries;
};

TEST_F(ThreadedSearch, FinderGivesEveryThreadTheSameResults)
{
    expectSameInEveryThread([this](const std::string& query) {
        return FuzzyFinder::search(query, candidates, 100, std::make_unique<FtsStrategy>());
    });
    expectSameInEveryThread([this](const std::string& query) {
        return FuzzyFinder::search(query, candidates, 100, std::make_unique<TechniqueSearchStrategy>());
    });
}

TEST_F(ThreadedSearch, OneStrategyServesAllThreads)
{
    const FtsStrategy text;
    expectSameInEveryThread([&](const std::string& query) { return text.applyAlgorithm(query, candidates); });
    const TechniqueSearchStrategy technique;
    expectSameInEveryThread([&](const std::string& query) { return technique.applyAlgorithm(query, candidates); });
}

} // namespace
