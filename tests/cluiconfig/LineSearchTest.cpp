#include <cluiconfig/LineSearch.h>
#include <search/FtsStrategy.h>
#include <search/TechniqueSearchStrategy.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// What search_test.py cannot show: that no thread meets another, to whoever watches them, and what a failure leads to.

namespace {

using cluiconfig::LineSearch;

constexpr std::size_t All = static_cast<std::size_t>(-1);

/// Lines of several blocks, with few scores.
std::string manyLines()
{
    std::string lines;
    for (int i = 0; lines.size() < 3'000'000; ++i) {
        lines += (i % 7 == 0 ? "Cyclic voltammetry " : "rest potential, CV ") + std::to_string(i) + '\n';
    }
    return lines;
}

cluiconfig::ByteSource bytesOf(std::string_view text)
{
    return [text](char* bytes, std::size_t size) mutable {
        const std::size_t count = std::min({size, text.size(), std::size_t{10'000}});
        std::copy_n(text.begin(), count, bytes);
        text.remove_prefix(count);
        return count;
    };
}

std::string ranked(const LineSearch& search)
{
    std::string text;
    for (const LineSearch::Lines& lines : search.bestFirst()) {
        text += lines.text;
    }
    return text;
}

/// The same, by a single call of \p rank for all lines.
std::string rankedAtOnce(std::string_view text, const cluiconfig::LineRanking& rank, std::size_t most)
{
    std::vector<std::string_view> lines;
    for (; !text.empty(); text.remove_prefix(text.find('\n') + 1)) {
        lines.push_back(text.substr(0, text.find('\n') + 1));
    }
    std::vector<std::string_view> withoutEnds;
    std::transform(lines.begin(), lines.end(), std::back_inserter(withoutEnds),
                   [](std::string_view line) { return line.substr(0, line.size() - 1); });
    std::string result;
    for (const FuzzyMatch& match : rank(withoutEnds)) {
        if (most-- == 0) {
            break;
        }
        result += lines[match.index];
    }
    return result;
}

TEST(ThreadedLineSearch, RanksLinesOfManyBlocksAsIfTheyWereOne)
{
    const std::string lines = manyLines();
    for (const std::string query : {"cv", "rest 1", "z"}) {
        for (const bool isText : {false, true}) {
            const auto rank = [&](std::span<const std::string_view> candidates) {
                return isText ? FtsStrategy::rank(query, candidates) : TechniqueSearchStrategy::rank(query, candidates);
            };
            for (const std::size_t most : {All, std::size_t{1'000}, std::size_t{0}}) {
                EXPECT_TRUE(ranked(LineSearch(bytesOf(lines), rank, most)) == rankedAtOnce(lines, rank, most))
                    << query << ' ' << isText << ' ' << most;
            }
        }
    }
}

TEST(ThreadedLineSearch, StopsAllThreadsAndThrowsWhatOneHasThrown)
{
    const auto endless = [](char* bytes, std::size_t size) {
        std::fill_n(bytes, size, '\n');
        return size;
    };
    std::atomic<int> calls = 0;
    const auto rank = [&calls](std::span<const std::string_view>) -> std::vector<FuzzyMatch> {
        if (++calls == 5) {
            throw std::runtime_error("ranked enough");
        }
        return {};
    };
    EXPECT_THROW(LineSearch(endless, rank, All), std::runtime_error);
}

TEST(ThreadedLineSearch, ThrowsWhatReadingHasThrown)
{
    const auto read = [left = 2'000'000](char* bytes, std::size_t size) mutable -> std::size_t {
        const int count = static_cast<int>(std::min(size, std::size_t{10'000}));
        left -= count;
        if (left < 0) {
            throw std::runtime_error("no more");
        }
        std::fill_n(bytes, count, '\n');
        return static_cast<std::size_t>(count);
    };
    const auto rank = [](std::span<const std::string_view> lines) { return TechniqueSearchStrategy::rank("", lines); };
    EXPECT_THROW(LineSearch(read, rank, All), std::runtime_error);
}

} // namespace
