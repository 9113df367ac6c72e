#include "GeneratedTexts.h"

#include <search/private/PositionSet.h>
#include <search/private/Ranking.h>
#include <search/private/RareLetter.h>
#include <search/private/SubsequenceFilter.h>
#include <search/private/TextBlock.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <limits>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

using search::PositionSet;

template <class Set>
std::set<int> positionsIn(const Set& set)
{
    std::set<int> positions;
    for (int i = 0; i < Set::Capacity; ++i) {
        if (set.contains(i)) {
            positions.insert(i);
        }
    }
    return positions;
}

/// A PositionSet beside a std::set with the same members.
template <int Words>
struct SetPair
{
    PositionSet<Words> ours = PositionSet<Words>::none();
    std::set<int> theirs;

    SetPair(GeneratedTexts& random, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            add(static_cast<int>(random.below(static_cast<std::size_t>(PositionSet<Words>::Capacity))));
        }
    }
    void add(int position)
    {
        const std::uint64_t bit = std::uint64_t{1} << (position % 64);
        if constexpr (Words == 2) {
            ours = ours | (position < 64 ? PositionSet<2>(bit, 0) : PositionSet<2>(0, bit));
        } else {
            ours = ours | PositionSet<1>(bit);
        }
        theirs.insert(position);
    }
};

/// The positions below \p capacity for which \p holds says true.
template <class Predicate>
std::set<int> allThat(int capacity, Predicate holds)
{
    std::set<int> positions;
    for (int i = 0; i < capacity; ++i) {
        if (holds(i)) {
            positions.insert(i);
        }
    }
    return positions;
}

template <class Constant>
class PositionSetTest : public testing::Test
{
};
using BothSizes = testing::Types<std::integral_constant<int, 1>, std::integral_constant<int, 2>>;
TYPED_TEST_SUITE(PositionSetTest, BothSizes);

TYPED_TEST(PositionSetTest, BehavesLikeASetOfNumbers)
{
    constexpr int Words = TypeParam::value;
    constexpr int Capacity = PositionSet<Words>::Capacity;
    GeneratedTexts random(1);
    for (int round = 0; round < 3'000; ++round) {
        const SetPair<Words> set(random, random.below(round % 2 == 0 ? 20 : 4));
        const SetPair<Words> other(random, random.below(20));
        const auto isIn = [](const SetPair<Words>& pair, int position) { return pair.theirs.count(position) != 0; };
        ASSERT_EQ(positionsIn(set.ours), set.theirs);
        EXPECT_EQ(set.ours.empty(), set.theirs.empty());
        EXPECT_EQ(set.ours == other.ours, set.theirs == other.theirs);
        EXPECT_EQ(set.ours.count(), static_cast<int>(set.theirs.size()));
        EXPECT_EQ(PositionSet<Words>::weightedCount(set.ours, other.ours),
                  static_cast<int>(set.theirs.size() + 2 * other.theirs.size()));
        EXPECT_EQ(positionsIn(set.ours & other.ours),
                  allThat(Capacity, [&](int i) { return isIn(set, i) && isIn(other, i); }));
        EXPECT_EQ(positionsIn(set.ours | other.ours),
                  allThat(Capacity, [&](int i) { return isIn(set, i) || isIn(other, i); }));
        EXPECT_EQ(positionsIn(set.ours - other.ours),
                  allThat(Capacity, [&](int i) { return isIn(set, i) && !isIn(other, i); }));
        EXPECT_EQ(positionsIn(set.ours.next()), allThat(Capacity, [&](int i) { return isIn(set, i - 1); }));
        EXPECT_EQ(positionsIn(set.ours.previous()), allThat(Capacity, [&](int i) { return isIn(set, i + 1); }));

        const int lowest = set.theirs.empty() ? Capacity : *set.theirs.begin();
        const int highest = set.theirs.empty() ? 0 : *set.theirs.rbegin();
        EXPECT_EQ(positionsIn(set.ours.lowest()), allThat(Capacity, [&](int i) { return i == lowest; }));
        EXPECT_EQ(positionsIn(set.ours.allAboveLowest()), allThat(Capacity, [&](int i) { return i > lowest; }));
        EXPECT_EQ(positionsIn(set.ours.allBelowLowest()), allThat(Capacity, [&](int i) { return i < lowest; }));
        EXPECT_EQ(positionsIn(set.ours.allBelowHighest()), allThat(Capacity, [&](int i) { return i < highest; }));
        if (!set.theirs.empty()) {
            EXPECT_EQ(positionsIn(set.ours.highest()), std::set<int>{highest});
        }
        for (int limit = 0; limit <= PositionSet<Words>::FirstLimit; ++limit) {
            const auto end = std::next(set.theirs.begin(), std::min<std::ptrdiff_t>(limit, std::ssize(set.theirs)));
            EXPECT_EQ(positionsIn(set.ours.first(limit)), std::set<int>(set.theirs.begin(), end));
        }
    }
    EXPECT_EQ(positionsIn(PositionSet<Words>::none()), std::set<int>());
    EXPECT_EQ(PositionSet<Words>::all().count(), Capacity);
    EXPECT_EQ(PositionSet<1>::weightedCount(PositionSet<1>::all(), PositionSet<1>::all()), 3 * 64);
}

/// Every chunk class there is must answer like the standard library does for single bytes in the "C" locale.
template <class AChunk>
class ChunkTest : public testing::Test
{
};
#ifdef CLCONFIGUI_SEARCH_SSE2
using Chunks = testing::Types<search::PortableChunk, search::Sse2Chunk>;
#else
using Chunks = testing::Types<search::PortableChunk>;
#endif
TYPED_TEST_SUITE(ChunkTest, Chunks);

template <int Chunks, class AChunk>
void expectBlocksToAnswerLikeBytes(GeneratedTexts& random, std::size_t shortest)
{
    using Block = search::TextBlock<Chunks, AChunk>;
    for (int round = 0; round < 600; ++round) {
        std::string text = random.candidate(random.query(12)).substr(0, Block::Capacity);
        text.append(Block::Capacity, 'a');
        text.resize(shortest + random.below(Block::Capacity - shortest + 1));
        // In a buffer of its very size, so that reading outside of it is found.
        const std::vector<char> exact(text.begin(), text.end());
        const Block block(std::string_view(exact.data(), exact.size()));

        std::map<unsigned char, std::set<int>> places;
        std::set<int> wordStarts;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto here = static_cast<unsigned char>(text[i]);
            places[static_cast<unsigned char>(std::tolower(here))].insert(static_cast<int>(i));
            const auto before = static_cast<unsigned char>(i == 0 ? '\0' : text[i - 1]);
            if (before == '_' || before == ' ' || (std::islower(before) != 0 && std::isupper(here) != 0)) {
                wordStarts.insert(static_cast<int>(i));
            }
        }
        for (int letter = 1; letter < 256; ++letter) {
            const auto byte = static_cast<unsigned char>(letter);
            if (std::tolower(byte) == byte) {
                ASSERT_EQ(positionsIn(block.where(byte)), places[byte]) << text << ": " << letter;
            }
        }
        auto found = positionsIn(block.wordStarts());
        found.erase(found.lower_bound(static_cast<int>(text.size())), found.end()); // no letter is there
        ASSERT_EQ(found, wordStarts) << text;
    }
}

TYPED_TEST(ChunkTest, BlocksAnswerLikeSingleBytes)
{
    GeneratedTexts random(2);
    expectBlocksToAnswerLikeBytes<4, TypeParam>(random, 1);
    expectBlocksToAnswerLikeBytes<5, TypeParam>(random, 65);
    expectBlocksToAnswerLikeBytes<8, TypeParam>(random, 81);
}

bool containsInOrder(std::string_view query, std::string_view text)
{
    std::size_t found = 0;
    for (std::size_t i = 0; i < text.size() && found < query.size(); ++i) {
        found += search::toLower(text[i]) == search::toLower(query[found]) ? 1 : 0;
    }
    return found == query.size();
}

TEST(SubsequenceFilter, IsExactForQueriesUpTo31Letters)
{
    GeneratedTexts random(3);
    std::size_t contained = 0;
    for (int i = 0; i < 20'000; ++i) {
        const std::string query = random.query(31);
        const std::string text = random.candidate(query);
        const bool expected = containsInOrder(query, text);
        contained += expected ? 1 : 0;
        ASSERT_EQ(search::SubsequenceFilter(query).mayContain(text), expected) << query << " in " << text;
    }
    EXPECT_GT(contained, 2'000U);
    EXPECT_LT(contained, 18'000U);
}

TEST(SubsequenceFilter, NeverRejectsATextThatContainsALongQuery)
{
    GeneratedTexts random(4);
    std::size_t contained = 0;
    for (int i = 0; i < 5'000; ++i) {
        const std::string query = random.query(200);
        const std::string text = random.candidate(query);
        if (query.size() > 31 && containsInOrder(query, text)) {
            ++contained;
            ASSERT_TRUE(search::SubsequenceFilter(query).mayContain(text)) << query << " in " << text;
        }
    }
    EXPECT_GT(contained, 2'000U);
}

TEST(RareLetter, IsOneThatFewCandidatesHave)
{
    std::vector<std::string> candidates(2000, "Linear Sweep");
    for (std::size_t i = 0; i < candidates.size(); i += 100) {
        candidates[i] = "QUARTZ";
    }
    const search::RareLetter rare("sqr", candidates);
    EXPECT_TRUE(rare.isMissingIn("Linear Sweep"));
    EXPECT_FALSE(rare.isMissingIn("QUARTZ"));
    EXPECT_FALSE(rare.isMissingIn("quartz"));
    EXPECT_TRUE(rare.isMissingIn(""));
}

TEST(RareLetter, IsFoundWhereverItStands)
{
    const search::RareLetter rare("q", std::vector<std::string>(2000, "Linear Sweep"));
    for (std::size_t size = 0; size <= 70; ++size) {
        // In a buffer of its very size, so that reading outside of it is found.
        std::vector<char> text(size, 'o');
        const auto isMissing = [&] { return rare.isMissingIn({text.data(), text.size()}); };
        EXPECT_TRUE(isMissing()) << size;
        for (char& c : text) {
            for (const char letter : {'q', 'Q'}) {
                c = letter;
                EXPECT_FALSE(isMissing()) << size;
            }
            c = 'o';
        }
    }
}

TEST(RareLetter, IsNotSoughtAmongCommonOnesNorInShortLists)
{
    const std::vector<std::string> manyNames(2000, "Linear Sweep");
    EXPECT_FALSE(search::RareLetter("sweep", manyNames).isMissingIn("x"));
    EXPECT_FALSE(search::RareLetter("", manyNames).isMissingIn("x"));
    const std::vector<std::string> fewNames(1023, "Linear Sweep");
    EXPECT_FALSE(search::RareLetter("q", fewNames).isMissingIn("x"));
    const std::vector<std::string> enoughNames(1024, "Linear Sweep");
    EXPECT_TRUE(search::RareLetter("q", enoughNames).isMissingIn("x"));
}

void expectSorted(std::vector<int> scores)
{
    std::vector<FuzzyMatch> matches;
    std::multimap<int, std::size_t> expected;
    for (std::size_t i = 0; i < scores.size(); ++i) {
        matches.push_back({2 * i, scores[i]});
        expected.emplace(scores[i], 2 * i);
    }
    std::vector<std::size_t> indices;
    std::vector<int> sortedScores;
    const std::vector<std::pair<int, std::size_t>> ordered(expected.rbegin(), expected.rend());
    for (const auto& [score, index] : ordered) {
        sortedScores.push_back(score);
        indices.push_back(index);
    }
    EXPECT_EQ(search::indicesBestFirst(matches), indices);
    const auto best = search::bestFirst(matches);
    ASSERT_EQ(best.size(), matches.size());
    for (std::size_t i = 0; i < best.size(); ++i) {
        EXPECT_EQ(best[i].index, indices[i]);
        EXPECT_EQ(best[i].score, sortedScores[i]);
    }
}

TEST(Ranking, IsByScoreAndThenByIndexBothDescending)
{
    GeneratedTexts random(5);
    for (const std::size_t count : {0U, 1U, 2U, 511U, 512U, 513U, 5000U}) {
        for (const std::size_t span : {1U, 2U, 2047U, 2048U, 2049U, 1U << 22, (1U << 22) + 1, 0xFFFFFFFFU}) {
            std::vector<int> scores(count);
            std::generate(scores.begin(), scores.end(), [&] {
                return static_cast<int>(static_cast<std::uint32_t>(random.below(span)) + 0x80000000U);
            });
            expectSorted(scores);
        }
    }
}

TEST(Ranking, KnowsTheLargestAndTheSmallestScore)
{
    std::vector<int> scores(1000, 0);
    scores[10] = std::numeric_limits<int>::max();
    scores[20] = std::numeric_limits<int>::min();
    scores[30] = -1;
    expectSorted(scores);
}

} // namespace
