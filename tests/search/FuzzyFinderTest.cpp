#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/TechniqueSearchStrategy.h>

#include <gmock/gmock.h>

#include <limits>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Finds every candidate, in the order of the list.
class EverythingStrategy : public AFuzzyFinderStrategy
{
public:
    explicit EverythingStrategy(bool* destroyed = nullptr)
        : m_destroyed(destroyed)
    {
    }
    EverythingStrategy(const EverythingStrategy&) = delete;
    EverythingStrategy& operator=(const EverythingStrategy&) = delete;
    ~EverythingStrategy() override
    {
        if (m_destroyed != nullptr) {
            *m_destroyed = true;
        }
    }
    std::vector<std::size_t> applyAlgorithm(const std::string& /*query*/,
                                            const std::vector<std::string>& candidates) const override
    {
        std::vector<std::size_t> indices;
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            indices.push_back(i);
        }
        return indices;
    }

private:
    bool* m_destroyed;
};

std::vector<std::size_t> firstOf(int maxResults)
{
    return FuzzyFinder::search("", {"a", "b", "c"}, maxResults, std::make_unique<EverythingStrategy>());
}

static_assert(std::is_copy_assignable_v<FuzzyFinder> && std::is_move_assignable_v<FuzzyFinder>);
static_assert(std::is_empty_v<FuzzyFinder>);
static_assert(std::is_abstract_v<AFuzzyFinderStrategy> && std::has_virtual_destructor_v<AFuzzyFinderStrategy>);

template <class Strategy>
std::vector<std::size_t> findWithACopy()
{
    const Strategy original;
    Strategy copy(original);
    copy = original;
    return copy.applyAlgorithm("cv", {"CV", "x", "ocv"});
}

TEST(FuzzyFinder, StrategiesCanBeCopiedAndAssigned)
{
    EXPECT_THAT(findWithACopy<FtsStrategy>(), ElementsAre(0, 2));
    EXPECT_THAT(findWithACopy<TechniqueSearchStrategy>(), ElementsAre(0, 2));
}

TEST(FuzzyFinder, KeepsTheFirstMaxResults)
{
    EXPECT_THAT(firstOf(1), ElementsAre(0));
    EXPECT_THAT(firstOf(2), ElementsAre(0, 1));
    EXPECT_THAT(firstOf(3), ElementsAre(0, 1, 2));
}

TEST(FuzzyFinder, ZeroKeepsNothing)
{
    EXPECT_THAT(firstOf(0), IsEmpty());
}

TEST(FuzzyFinder, MoreThanThereAreKeepsEverything)
{
    EXPECT_THAT(firstOf(4), ElementsAre(0, 1, 2));
    EXPECT_THAT(firstOf(std::numeric_limits<int>::max()), ElementsAre(0, 1, 2));
}

TEST(FuzzyFinder, NegativeMaxResultsKeepsEverything)
{
    EXPECT_THAT(firstOf(-1), ElementsAre(0, 1, 2));
    EXPECT_THAT(firstOf(std::numeric_limits<int>::min()), ElementsAre(0, 1, 2));
}

TEST(FuzzyFinder, DestroysTheStrategyBeforeItReturns)
{
    // Asked in the same expression, at whose end the arguments of the call go.
    bool destroyed = false;
    const bool destroyedAtReturn =
        (FuzzyFinder::search("", {}, 1, std::make_unique<EverythingStrategy>(&destroyed)), destroyed);
    EXPECT_TRUE(destroyedAtReturn);
}

TEST(FuzzyFinder, RanksWithTheStrategyItIsGiven)
{
    // The text strategy prefers the word starts, the technique strategy the run.
    const std::vector<std::string> candidates = {"wxy_a_b_c", "uvwxyzabc"};
    EXPECT_THAT(FuzzyFinder::search("abc", candidates, -1, std::make_unique<FtsStrategy>()), ElementsAre(0, 1));
    EXPECT_THAT(FuzzyFinder::search("abc", candidates, 1, std::make_unique<FtsStrategy>()), ElementsAre(0));
    EXPECT_THAT(FuzzyFinder::search("abc", candidates, -1, std::make_unique<TechniqueSearchStrategy>()),
                ElementsAre(1, 0));
    EXPECT_THAT(FuzzyFinder::search("abc", candidates, 1, std::make_unique<TechniqueSearchStrategy>()), ElementsAre(1));
}

TEST(FuzzyFinder, EmptyListGivesNothing)
{
    EXPECT_THAT(FuzzyFinder::search("a", {}, 10, std::make_unique<FtsStrategy>()), IsEmpty());
    EXPECT_THAT(FuzzyFinder::search("", {}, 10, std::make_unique<TechniqueSearchStrategy>()), IsEmpty());
}

} // namespace
