#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/NarrowingSearch.h>
#include <search/TechniqueSearchStrategy.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// That every ranking is the one from scratch is compared in OracleTest.cpp; here is what only some queries show.

namespace {

using Strategy = NarrowingSearch::Strategy;
using Indices = std::vector<std::size_t>;

const std::vector<std::string> Names = {"OCV", "Open circuit voltage, OCV", "CV", "ocean view",
                                        "Cyclic voltammetry, CV"};

Indices fromScratch(const std::string& query, const std::vector<std::string>& candidates, Strategy strategy)
{
    if (strategy == Strategy::Technique) {
        return FuzzyFinder::search(query, candidates, -1, std::make_unique<TechniqueSearchStrategy>());
    }
    return FuzzyFinder::search(query, candidates, -1, std::make_unique<FtsStrategy>());
}

void expectTyped(const std::vector<std::string>& candidates, std::initializer_list<std::string> queries)
{
    for (const Strategy strategy : {Strategy::Technique, Strategy::Text}) {
        NarrowingSearch search(candidates, strategy);
        for (const std::string& query : queries) {
            EXPECT_EQ(search.search(query), fromScratch(query, candidates, strategy)) << query.substr(0, 40);
        }
    }
}

TEST(NarrowingSearch, RanksWhatIsTypedLetterByLetter)
{
    expectTyped(Names, {"", "o", "oc", "ocv", "ocvx", "ocv", "oc", "o", ""});
}

TEST(NarrowingSearch, GoesOnFromTheEmptyQueryThatFindsAllTechniquesAndNoText)
{
    NarrowingSearch techniques(Names, Strategy::Technique);
    EXPECT_EQ(techniques.search(""), (Indices{4, 3, 2, 1, 0}));
    EXPECT_EQ(techniques.search("cyc"), Indices{4});
    NarrowingSearch texts(Names, Strategy::Text);
    EXPECT_EQ(texts.search(""), Indices());
    EXPECT_EQ(texts.search("cyc"), Indices{4});
}

TEST(NarrowingSearch, TakesUpAnotherLetterWhereALongerQueryHadBeen)
{
    expectTyped(Names, {"o", "oc", "ocv", "oce", "ocea", "o", "op", "ope", "c", "cv"});
}

TEST(NarrowingSearch, KnowsNoCase)
{
    expectTyped(Names, {"O", "oC", "OCv", "oc", "OCV"});
}

TEST(NarrowingSearch, EndsATextQueryAtItsNul)
{
    using namespace std::string_literals;
    expectTyped({"ab", "a\0b"s, "b"}, {"a", "a\0"s, "a\0b"s, "\0"s, "\0a"s, "ab"});
}

TEST(NarrowingSearch, TakesQueriesThatAreTooLongForText)
{
    const std::string longest(256, 'a');
    expectTyped({longest, longest + "a", longest + "aa"}, {longest, longest + "a", longest + "aa", longest, "a"});
}

TEST(NarrowingSearch, TakesTechniqueQueriesWhoseScoresWrap)
{
    const std::string many(10'000, 'a');
    expectTyped({many + "aab", many + "b" + many}, {many, many + "a", many + "aa", many + "aab", many + "a", "a"});
}

TEST(NarrowingSearch, GivesAsManyAsAreWanted)
{
    NarrowingSearch search(Names, Strategy::Technique);
    const Indices all = search.search("cv");
    ASSERT_EQ(all.size(), Names.size());
    EXPECT_EQ(search.search("cv", 0), Indices());
    EXPECT_EQ(search.search("cv", 2), Indices(all.begin(), all.begin() + 2));
    EXPECT_EQ(search.search("cv", 100), all);
    EXPECT_EQ(search.search("cv", -7), all);
}

TEST(NarrowingSearch, FindsNothingInAnEmptyList)
{
    expectTyped({}, {"", "a", "ab", "a"});
}

TEST(NarrowingSearch, CanBeMoved)
{
    NarrowingSearch first(Names, Strategy::Technique);
    EXPECT_EQ(first.search("cyc"), Indices{4});
    NarrowingSearch second(std::move(first));
    EXPECT_EQ(second.search("cycl"), Indices{4});
    NarrowingSearch third({}, Strategy::Text);
    third = std::move(second);
    EXPECT_EQ(third.search("cyclic"), Indices{4});
    // NOLINTNEXTLINE(bugprone-use-after-move): it finds nothing, as is promised
    EXPECT_EQ(second.search("c"), Indices());
}

} // namespace
