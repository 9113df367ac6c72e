#include <search/TechniqueSearchStrategy.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int Common = 100 + 225 - 15; // what every placement in a candidate of less than 200 bytes scores

std::optional<int> scoreOf(std::string_view query, std::string_view candidate)
{
    return TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(query, candidate);
}

std::vector<std::size_t> find(const std::string& query, const std::vector<std::string>& candidates)
{
    return TechniqueSearchStrategy().applyAlgorithm(query, candidates);
}

static_assert(
    std::is_default_constructible_v<
        TechniqueSearchStrategy> && std::is_copy_constructible_v<TechniqueSearchStrategy> && std::is_copy_assignable_v<TechniqueSearchStrategy>);
static_assert(sizeof(TechniqueSearchStrategy) == sizeof(void*), "a strategy has no state");

TEST(TechniqueSearchStrategy, EmptyQueryMatchesEveryCandidateFromTheLastOn)
{
    EXPECT_THAT(find("", {"a", "", "b,c"}), ElementsAre(2, 1, 0));
    EXPECT_EQ(scoreOf("", "a"), 375);
    EXPECT_EQ(scoreOf("", ""), 375);
}

TEST(TechniqueSearchStrategy, TextOf200BytesIsNotShort)
{
    EXPECT_EQ(scoreOf("", std::string(199, 'x')), 375);
    EXPECT_EQ(scoreOf("", std::string(200, 'x')), 390);
}

TEST(TechniqueSearchStrategy, LongCandidateComesFirstForAnEmptyQuery)
{
    EXPECT_THAT(find("", {"a", std::string(200, 'x'), "b"}), ElementsAre(1, 2, 0));
}

TEST(TechniqueSearchStrategy, EmptyCandidateMatchesTheEmptyQueryOnly)
{
    EXPECT_EQ(scoreOf("a", ""), std::nullopt);
    EXPECT_THAT(find("a", {"", "a"}), ElementsAre(1));
    EXPECT_THAT(find("", {""}), ElementsAre(0));
    EXPECT_THAT(find("a", {}), IsEmpty());
}

TEST(TechniqueSearchStrategy, WholeNameIsOneRunWithPrefixBonus)
{
    // +50 prefix, +15 * 9 for the run of three, +15 for position 0.
    EXPECT_EQ(scoreOf("ocv", "OCV"), Common + 50 + 135 + 15);
    EXPECT_EQ(scoreOf("ocv", "OCV"), 510);
    EXPECT_EQ(scoreOf("OCV", "OCV"), 510);
    EXPECT_EQ(scoreOf("OCV", "ocv"), 510);
}

TEST(TechniqueSearchStrategy, PrefixBonusComparesTheCandidateWithItself)
{
    EXPECT_EQ(scoreOf("cv", "OCV"), Common + 60); // "OC" is not "CV"
    EXPECT_EQ(scoreOf("cv", "OCV"), 370);
    // The first two letters are alike, so the path with both positions zero has the bonus that the greedy one lacks.
    EXPECT_EQ(scoreOf("ab", "bbab"), Common + 50 + 2 * 15 + 2 * 15 - 2);
}

TEST(TechniqueSearchStrategy, SingleLetterScoresAsAPrefixWhereverItIs)
{
    // Resumed behind its only letter the path is (0), where every candidate equals itself.
    EXPECT_EQ(scoreOf("a", "a"), Common + 15 + 15 + 50);
    EXPECT_EQ(scoreOf("a", "xxxa"), Common + 15 + 15 + 50);
    EXPECT_EQ(scoreOf("a", "x_a"), Common + 15 + 15 + 50);
}

TEST(TechniqueSearchStrategy, ZeroPositionsCanBeatScatteredLetters)
{
    // Greedy: three runs of one, two gaps, no bonus: 41. All positions zero: three at position 0, two gaps: 86.
    EXPECT_EQ(scoreOf("ace", "xaxcxe"), Common + 3 * 15 + 3 * 15 - 2 * 2);
}

TEST(TechniqueSearchStrategy, LetterAfterUnderscoreOrBlankStartsAWord)
{
    EXPECT_EQ(scoreOf("ab", "x_ab"), Common + 60 + 30);
    EXPECT_EQ(scoreOf("ab", "x ab"), Common + 60 + 30);
    EXPECT_EQ(scoreOf("ab", "x-ab"), Common + 60);
    EXPECT_EQ(scoreOf("ab", "xyab"), Common + 60);
    EXPECT_EQ(scoreOf("ab", "x,ab"), Common + 60);
    EXPECT_EQ(scoreOf("a b", "xa b"), Common + 135 + 30); // b, inside the run
}

TEST(TechniqueSearchStrategy, CandidateWithoutTheLettersInOrderIsLeftOut)
{
    EXPECT_THAT(find("ocv", {"OCV", "ocean view", "CV", "VCO", "o,c,v"}), ElementsAre(0, 1, 4));
    EXPECT_EQ(scoreOf("cv", "vc"), std::nullopt);
}

TEST(TechniqueSearchStrategy, CommasChangeNothing)
{
    for (const char* candidate : {"xab", ",ab", "xab,,", "xab,b,c,d", ",ab,"}) {
        EXPECT_EQ(scoreOf("ab", candidate), Common + 60) << candidate;
    }
}

TEST(TechniqueSearchStrategy, NulIsALetterLikeAnyOther)
{
    using namespace std::string_literals;
    EXPECT_EQ(scoreOf("a\0"s, "xa\0y"s), Common + 60);
    EXPECT_EQ(scoreOf("a\0"s, "xa"), std::nullopt);
    EXPECT_THAT(find("\0b"s, {"a\0b"s, "ab"}), ElementsAre(0));
}

TEST(TechniqueSearchStrategy, OnlyAsciiLettersHaveCase)
{
    EXPECT_EQ(scoreOf("\xE9", "\xC9"), std::nullopt); // e with accent in Latin-1
    EXPECT_EQ(scoreOf("[", "{"), std::nullopt);
    EXPECT_EQ(scoreOf("@", "`"), std::nullopt);
}

TEST(TechniqueSearchStrategy, EqualScoresComeWithTheLaterOneFirst)
{
    EXPECT_THAT(find("cv", {"CV", "OCV", "CV", "LSV, CV"}), ElementsAre(2, 0, 3, 1));
}

TEST(TechniqueSearchStrategy, RankGivesTheScoresInTheSameOrder)
{
    EXPECT_THAT(find("cv", {"CV", "zzz", "OCV"}), ElementsAre(0, 2));
    const std::vector<std::string_view> list = {"CV", "zzz", "OCV"};
    const auto matches = TechniqueSearchStrategy::rank("cv", list);
    ASSERT_EQ(matches.size(), 2U);
    EXPECT_EQ(matches[0].index, 0U);
    EXPECT_EQ(matches[0].score, Common + 50 + 60 + 15);
    EXPECT_EQ(matches[1].index, 2U);
    EXPECT_EQ(matches[1].score, 370);
}

TEST(TechniqueSearchStrategy, RunThatOverflows32BitsWraps)
{
    // One run from position 0. The greedy path scores 15 * L * L, wrapped; a path with its first k positions zero has a
    // run of L - k letters and k single ones. All of them are tried, so the best is the largest after wrapping.
    const std::string longText(100'000, 'a');
    const auto count = static_cast<std::uint32_t>(longText.size());
    const auto pathScore = [&](std::uint32_t zeros) {
        const std::uint32_t run = count - zeros;
        std::uint32_t score = 100 + 225 + 50 + 15 * run * run; // all letters are alike: always a prefix
        score += zeros == 0 ? 15 : zeros * (15 + 15) - 2 * (zeros - (run == 0 ? 1 : 0));
        return static_cast<int>(score);
    };
    int best = pathScore(0);
    for (std::uint32_t zeros = 2; zeros <= count; ++zeros) { // one zero is the greedy path again
        best = std::max(best, pathScore(zeros));
    }
    EXPECT_EQ(scoreOf(longText, longText), best);
    const std::vector<std::string_view> list = {longText, "a"};
    const auto matches = TechniqueSearchStrategy::rank(longText, list);
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_EQ(matches[0].score, best);
}

} // namespace
