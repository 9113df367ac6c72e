#include "GeneratedTexts.h"

#include <search/private/DecisiveLetters.h>
#include <search/private/PositionSet.h>
#include <search/private/Ranking.h>
#include <search/private/SubsequenceFilter.h>
#include <search/private/TextBlock.h>
#include <search/private/TextPieces.h>

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

std::string folded(std::string text)
{
    for (char& c : text) {
        c = static_cast<char>(static_cast<unsigned char>(c) | search::CaseBit);
    }
    return text;
}

template <std::size_t Unit, std::size_t Count, class AChunk>
void expectPiecesToHaveTheOrderOfTheBytes(GeneratedTexts& random)
{
    using Pieces = search::TextPieces<Unit, Count, AChunk>;
    for (std::size_t size = Pieces::Shortest; size <= Pieces::Longest; ++size) {
        random.query(1); // chooses the letters
        const std::string text = random.text(size);
        // In a buffer of its very size, so that reading outside of it is found.
        const std::vector<char> exact(text.begin(), text.end());
        const Pieces pieces(std::string_view(exact.data(), exact.size()));

        std::map<int, char> found;
        for (int letter = 0; letter < 256; ++letter) {
            const auto byte = static_cast<char>(letter);
            if (folded({byte}) == std::string{byte}) {
                for (const int position : positionsIn(pieces.where(AChunk::filledWith(byte)))) {
                    ASSERT_TRUE(found.emplace(position, byte).second);
                }
            }
        }
        std::string inOrder;
        for (const auto& [position, byte] : found) {
            inOrder += byte;
        }
        ASSERT_EQ(inOrder, folded(text));
    }
}

TYPED_TEST(ChunkTest, PiecesHaveTheOrderOfSingleBytes)
{
    GeneratedTexts random(8);
    for (int round = 0; round < 20; ++round) {
        expectPiecesToHaveTheOrderOfTheBytes<4, 2, TypeParam>(random);
        expectPiecesToHaveTheOrderOfTheBytes<8, 4, TypeParam>(random);
        expectPiecesToHaveTheOrderOfTheBytes<16, 5, TypeParam>(random);
        expectPiecesToHaveTheOrderOfTheBytes<32, 4, TypeParam>(random);
    }
}

bool containsInOrder(std::string_view query, std::string_view text)
{
    std::size_t found = 0;
    for (std::size_t i = 0; i < text.size() && found < query.size(); ++i) {
        found += search::toLower(text[i]) == search::toLower(query[found]) ? 1 : 0;
    }
    return found == query.size();
}

/// Up to as many letters of \p query as can be decisive, in their order.
std::string someLetters(GeneratedTexts& random, std::string query)
{
    const std::size_t count = random.below(search::SubsequenceFilter::MostDecisiveLetters + 1);
    while (query.size() > count) {
        query.erase(random.below(query.size()), 1);
    }
    return query;
}

TEST(SubsequenceFilter, IsExactButForWhatIsFoldedWhateverLettersAreDecisive)
{
    GeneratedTexts random(3);
    std::size_t contained = 0;
    for (int i = 0; i < 40'000; ++i) {
        const std::string query = random.query(search::SubsequenceFilter::MostLetters);
        const std::string text = random.candidate(query);
        const search::SubsequenceFilter filter(query, {someLetters(random, query), false});
        const bool expected = containsInOrder(folded(query), folded(text));
        contained += expected ? 1 : 0;
        // Of the last few bytes behind the pieces of a long text, and of as short a text, it says nothing.
        if (text.size() % search::LongestInPieces >= search::ShortestInPieces) {
            ASSERT_EQ(filter.mayContain(text), expected) << query << " in " << text;
        } else if (expected) {
            ASSERT_TRUE(filter.mayContain(text)) << query << " in " << text;
        }
    }
    EXPECT_GT(contained, 4'000U);
    EXPECT_LT(contained, 36'000U);
}

TEST(SubsequenceFilter, NeverRejectsATextThatContainsALongQuery)
{
    GeneratedTexts random(4);
    std::size_t contained = 0;
    for (int i = 0; i < 5'000; ++i) {
        const std::string query = random.query(200);
        const std::string text = random.candidate(query);
        if (query.size() > search::SubsequenceFilter::MostLetters && containsInOrder(query, text)) {
            ++contained;
            ASSERT_TRUE(
                search::SubsequenceFilter(query, {someLetters(random, query), random.below(2) == 0}).mayContain(text))
                << query << " in " << text;
        }
    }
    EXPECT_GT(contained, 2'000U);
}

TEST(DecisiveLetters, AreAFewOfTheQueryInTheirOrder)
{
    GeneratedTexts random(9);
    for (int i = 0; i < 1'000; ++i) {
        const std::string query = random.query(50);
        std::vector<std::string> texts;
        for (std::size_t count = random.below(65); count > 0; --count) {
            texts.push_back(random.candidate(query));
        }
        const std::vector<std::string_view> sample(texts.begin(), texts.end());
        const std::string letters = search::decisiveLetters(query, sample).letters;
        ASSERT_LE(letters.size(), search::SubsequenceFilter::MostDecisiveLetters);
        ASSERT_TRUE(containsInOrder(letters, query)) << letters << " of " << query;
    }
}

TEST(DecisiveLetters, AreThoseThatFewTextsHave)
{
    const std::vector<std::string_view> sample(40, "Linear Sweep");
    EXPECT_EQ(search::decisiveLetters("sqr", sample).letters, "q");
    EXPECT_EQ(search::decisiveLetters("SQR", sample).letters, "Q");
}

TEST(DecisiveLetters, DoNotSufficeWhereManyTextsHaveThemAndLackTheQuery)
{
    // Of 64 texts 20 have no q, and for each of the other letters there are three that lack it.
    const std::string query = "abcdefghq";
    std::vector<std::string> texts(20, query);
    texts.resize(40, "abcdefgh");
    for (std::size_t i = 0; i < 24; ++i) {
        texts.push_back(std::string(query).erase(i / 3, 1));
    }
    const search::DecisiveLetters decisive =
        search::decisiveLetters(query, std::vector<std::string_view>(texts.begin(), texts.end()));
    EXPECT_EQ(decisive.letters, "q");
    EXPECT_FALSE(decisive.suffice);
    EXPECT_FALSE(search::SubsequenceFilter(query, decisive).mayContain(texts.back()));
}

TEST(DecisiveLetters, AreThoseThatStandInAnotherOrderIfAllTextsHaveAll)
{
    const std::vector<std::string_view> sample(40, "step 12 of characterisation protocol");
    const search::DecisiveLetters decisive = search::decisiveLetters("torp noita", sample);
    EXPECT_FALSE(containsInOrder(decisive.letters, sample[0])) << decisive.letters;
    EXPECT_TRUE(decisive.suffice);
    EXPECT_FALSE(search::SubsequenceFilter("torp noita", decisive).mayContain(sample[0]));
}

TEST(DecisiveLetters, AreNoneWhereNearlyAllTextsHaveTheQuery)
{
    const std::vector<std::string_view> sample(40, "Linear Sweep");
    EXPECT_EQ(search::decisiveLetters("lsw", sample).letters, "");
}

TEST(DecisiveLetters, AreTheFirstOnesWhereThereIsNothingToLookAt)
{
    const std::vector<std::string_view> tooShort(40, "CV");
    const std::string tooLong(200, 'x');
    EXPECT_EQ(search::decisiveLetters("voltammetry", {}).letters, "voltam");
    EXPECT_EQ(search::decisiveLetters("voltammetry", tooShort).letters, "voltam");
    EXPECT_EQ(search::decisiveLetters("voltammetry", std::vector<std::string_view>(40, tooLong)).letters, "voltam");
    EXPECT_EQ(search::decisiveLetters("", tooShort).letters, "");
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
        for (const std::size_t span : {1U, 2U, 4095U, 4096U, 4097U, 1U << 24, (1U << 24) + 1, 0xFFFFFFFFU}) {
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
