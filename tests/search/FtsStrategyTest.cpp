#include <search/FtsStrategy.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <string>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::optional<int> scoreOf(std::string_view query, std::string_view candidate)
{
    const std::vector<std::string_view> list = {candidate};
    const auto matches = FtsStrategy::rank(query, list);
    return matches.empty() ? std::nullopt : std::optional<int>(matches[0].score);
}

std::vector<std::size_t> find(const std::string& query, const std::vector<std::string>& candidates)
{
    return FtsStrategy().applyAlgorithm(query, candidates);
}

static_assert(std::is_default_constructible_v<
                  FtsStrategy> && std::is_copy_constructible_v<FtsStrategy> && std::is_copy_assignable_v<FtsStrategy>);
static_assert(sizeof(FtsStrategy) == sizeof(void*), "a strategy has no state");

TEST(FtsStrategy, EmptyQueryMatchesNothing)
{
    EXPECT_THAT(find("", {"a", "b", ""}), IsEmpty());
    EXPECT_EQ(scoreOf("", "a"), std::nullopt);
}

TEST(FtsStrategy, EmptyCandidateAndEmptyListMatchNothing)
{
    EXPECT_THAT(find("a", {"", "a", ""}), ElementsAre(1));
    EXPECT_THAT(find("a", {}), IsEmpty());
}

TEST(FtsStrategy, CandidateWithoutTheLettersInOrderIsLeftOut)
{
    EXPECT_THAT(find("ab", {"ba", "b", "a", "xaxbx", "AB"}), ElementsAre(4, 3));
}

TEST(FtsStrategy, UpperCaseAfterLowerCaseStartsAWord)
{
    // 100, -5 for one byte before the match, -1 for the byte left over, +30 for A after x, +15 for b next to it.
    EXPECT_EQ(scoreOf("ab", "xAb"), 139);
}

TEST(FtsStrategy, FirstPositionScoresInsteadOfAWordStart)
{
    EXPECT_EQ(scoreOf("a", "a"), 115);
    EXPECT_EQ(scoreOf("a", "A"), 115);
}

TEST(FtsStrategy, LetterAfterUnderscoreOrBlankStartsAWord)
{
    EXPECT_EQ(scoreOf("b", "a_b"), 100 - 10 - 2 + 30);
    EXPECT_EQ(scoreOf("b", "a b"), 100 - 10 - 2 + 30);
    EXPECT_EQ(scoreOf("b", "a-b"), 100 - 10 - 2);
    EXPECT_EQ(scoreOf("b", "a,b"), 100 - 10 - 2);
    EXPECT_EQ(scoreOf("B", "_B"), 100 - 5 - 1 + 30);
}

TEST(FtsStrategy, LateStartCostsAtMostFifteen)
{
    EXPECT_EQ(scoreOf("b", "xb"), 100 - 5 - 1);
    EXPECT_EQ(scoreOf("b", "xxb"), 100 - 10 - 2);
    EXPECT_EQ(scoreOf("b", "xxxb"), 100 - 15 - 3);
    EXPECT_EQ(scoreOf("b", "xxxxxb"), 100 - 15 - 5);
}

TEST(FtsStrategy, MatchWithoutPointsIsStillAMatch)
{
    std::string candidate(301, 'x');
    candidate.back() = 'b';
    EXPECT_EQ(scoreOf("b", candidate), 100 - 15 - 300);
    EXPECT_THAT(find("b", {candidate}), ElementsAre(0));
}

TEST(FtsStrategy, BetterPlaceBehindTheFirstOneCounts)
{
    // The c of "x_c" starts a word; the first c does not.
    EXPECT_EQ(scoreOf("c", "xxxcx_c"), 100 - 15 - 6 + 30);
}

TEST(FtsStrategy, OnlyEightPlacesBehindTheFirstAreTried)
{
    EXPECT_EQ(scoreOf("c", "xxxcccccccc_c"), 100 - 15 - 12 + 30); // the ninth c
    EXPECT_EQ(scoreOf("c", "xxxccccccccc_c"), 100 - 15 - 13); // the tenth one
}

TEST(FtsStrategy, PositionsFrom256OnAreCountedFromZero)
{
    // At 256 the letter counts as the first of the text: no penalty, and the bonus of the first position.
    EXPECT_EQ(scoreOf("b", std::string(256, 'x') + "b"), 100 - 256 + 15);
    // At 257 it counts as the second; before it stands what stands at the beginning of the text.
    EXPECT_EQ(scoreOf("b", std::string(257, 'x') + "b"), 100 - 5 - 257);
    EXPECT_EQ(scoreOf("b", "_" + std::string(256, 'x') + "b"), 100 - 5 - 257 + 30);
    // From 255 to 256 is no step to the next position.
    EXPECT_EQ(scoreOf("ab", std::string(255, 'x') + "ab"), 100 - 15 - 255 + 15);
}

TEST(FtsStrategy, QueryOf256LettersIsTheLongestThatMatches)
{
    const std::string longest(256, 'a');
    EXPECT_EQ(scoreOf(longest, longest), 100 + 15 + 255 * 15);
    EXPECT_EQ(scoreOf(longest + "a", longest + "a"), std::nullopt);
    EXPECT_THAT(find(longest + "a", {longest + "aa"}), IsEmpty());
}

TEST(FtsStrategy, NulEndsQueryAndCandidate)
{
    using namespace std::string_literals;
    EXPECT_EQ(scoreOf("a\0b"s, "a"), 115);
    EXPECT_EQ(scoreOf("b", "a\0b"s), std::nullopt);
    EXPECT_EQ(scoreOf("a", "a\0xxxx"s), 115);
    EXPECT_EQ(scoreOf("\0a"s, "a"), std::nullopt);
}

TEST(FtsStrategy, OnlyAsciiLettersHaveCase)
{
    EXPECT_EQ(scoreOf("\xE9", "\xC9"), std::nullopt); // e with accent in Latin-1
    EXPECT_EQ(scoreOf("\xE9", "\xE9"), 115);
    EXPECT_EQ(scoreOf("[", "{"), std::nullopt);
    EXPECT_EQ(scoreOf("@", "`"), std::nullopt);
}

TEST(FtsStrategy, CandidatesOfEveryLengthAroundTheBlockSizesAreRead)
{
    for (std::size_t length = 1; length <= 300; ++length) {
        std::string candidate(length, 'x');
        candidate.back() = 'Q';
        // 'x' before 'Q' makes a word start; at position 256 the letter counts as the first one.
        const auto left = static_cast<int>(length - 1);
        const int position = left % 256;
        const int expected = 100 - std::min(5 * position, 15) - left + (position == 0 ? 15 : length <= 256 ? 30 : 0);
        EXPECT_EQ(scoreOf("q", candidate), expected) << length;
    }
}

TEST(FtsStrategy, EqualScoresComeWithTheLaterOneFirst)
{
    EXPECT_THAT(find("a", {"ab", "a", "ac", "a", "ad"}), ElementsAre(3, 1, 4, 2, 0));
}

TEST(FtsStrategy, RankGivesTheScoresInTheSameOrder)
{
    EXPECT_THAT(find("ab", {"ab", "zzz", "xAb"}), ElementsAre(2, 0));
    const std::vector<std::string_view> list = {"ab", "zzz", "xAb"};
    const auto matches = FtsStrategy::rank("ab", list);
    ASSERT_EQ(matches.size(), 2U);
    EXPECT_EQ(matches[0].index, 2U);
    EXPECT_EQ(matches[0].score, 139);
    EXPECT_EQ(matches[1].index, 0U);
    EXPECT_EQ(matches[1].score, 130);
}

} // namespace
