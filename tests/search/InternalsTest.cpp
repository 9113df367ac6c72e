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

namespace {

using search::PositionSet;

template <class Set>
std::set<int> positionsIn(const Set& set)
{
    std::set<int> positions;
    for (int i = 0; i < Set::capacity; ++i) {
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
            const std::size_t position = random.below(static_cast<std::size_t>(PositionSet<Words>::capacity));
            ours.add(1, position);
            theirs.insert(static_cast<int>(position));
        }
    }
};

template <class Constant>
class PositionSetTest : public testing::Test
{
};
using BothSizes = testing::Types<std::integral_constant<int, 1>, std::integral_constant<int, 2>>;
TYPED_TEST_SUITE(PositionSetTest, BothSizes);

TYPED_TEST(PositionSetTest, BehavesLikeASetOfNumbers)
{
    constexpr int capacity = PositionSet<TypeParam::value>::capacity;
    GeneratedTexts random(1);
    for (int round = 0; round < 300; ++round) {
        const SetPair<TypeParam::value> set(random, random.below(20));
        const SetPair<TypeParam::value> other(random, random.below(20));
        ASSERT_EQ(positionsIn(set.ours), set.theirs);
        EXPECT_EQ(set.ours.empty(), set.theirs.empty());
        EXPECT_EQ(set.ours.count(), static_cast<int>(set.theirs.size()));
        for (int i = 0; i < capacity; ++i) {
            EXPECT_EQ(positionsIn(set.ours.below(i)), std::set<int>(set.theirs.begin(), set.theirs.lower_bound(i)));
            EXPECT_EQ(positionsIn(set.ours.above(i)), std::set<int>(set.theirs.upper_bound(i), set.theirs.end()));
        }
        std::set<int> next;
        std::set<int> both;
        for (const int position : set.theirs) {
            if (position + 1 < capacity) {
                next.insert(position + 1);
            }
            if (other.theirs.count(position) != 0) {
                both.insert(position);
            }
        }
        EXPECT_EQ(positionsIn(set.ours.next()), next);
        EXPECT_EQ(positionsIn(set.ours & other.ours), both);
        if (set.theirs.empty()) {
            continue;
        }
        EXPECT_EQ(set.ours.lowest(), *set.theirs.begin());
        EXPECT_EQ(set.ours.highest(), *set.theirs.rbegin());
        for (std::size_t count = 0; count < set.theirs.size(); ++count) {
            const auto end = std::next(set.theirs.begin(), static_cast<std::ptrdiff_t>(count));
            EXPECT_EQ(positionsIn(set.ours.first(static_cast<int>(count))), std::set<int>(set.theirs.begin(), end));
        }
        auto less = set.ours;
        less.remove(set.ours.highest());
        EXPECT_EQ(positionsIn(less), std::set<int>(set.theirs.begin(), std::prev(set.theirs.end())));
    }
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

template <int Words, class AChunk>
void expectBlocksToAnswerLikeBytes(GeneratedTexts& random)
{
    for (int round = 0; round < 600; ++round) {
        const std::size_t capacity = static_cast<std::size_t>(PositionSet<Words>::capacity);
        std::string text = random.candidate(random.query(12)).substr(0, capacity);
        text.append(capacity, 'a');
        text.resize(1 + random.below(capacity));
        // In a buffer of its very size, so that reading outside of it is found.
        const std::vector<char> exact(text.begin(), text.end());
        const search::TextBlock<Words, AChunk> block(std::string_view(exact.data(), exact.size()));

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
        found.erase(static_cast<int>(text.size())); // a gap at the end starts a word that is not there
        ASSERT_EQ(found, wordStarts) << text;
    }
}

TYPED_TEST(ChunkTest, BlocksAnswerLikeSingleBytes)
{
    GeneratedTexts random(2);
    expectBlocksToAnswerLikeBytes<1, TypeParam>(random);
    expectBlocksToAnswerLikeBytes<2, TypeParam>(random);
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
    for (int i = 0; i < 5'000; ++i) {
        const std::string query = random.query(200);
        const std::string text = random.candidate(query);
        if (containsInOrder(query, text)) {
            ASSERT_TRUE(search::SubsequenceFilter(query).mayContain(text)) << query << " in " << text;
        }
    }
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

TEST(RareLetter, IsNotSoughtAmongCommonOnesNorInShortLists)
{
    const std::vector<std::string> manyNames(2000, "Linear Sweep");
    EXPECT_FALSE(search::RareLetter("sweep", manyNames).isMissingIn("x"));
    EXPECT_FALSE(search::RareLetter("", manyNames).isMissingIn("x"));
    const std::vector<std::string> fewNames(1000, "Linear Sweep");
    EXPECT_FALSE(search::RareLetter("q", fewNames).isMissingIn("x"));
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
    for (auto it = expected.rbegin(); it != expected.rend(); ++it) {
        sortedScores.push_back(it->first);
        indices.push_back(it->second);
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
