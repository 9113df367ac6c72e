#include "TechniqueScorer.h"

#include "Ascii.h"
#include "TechniqueRules.h"

#include <algorithm>
#include <cstdint>
#include <limits>

using namespace search::technique;

namespace search {

namespace {

/// The most that a query of \p length letters can score without the prefix bonus: in one run, all letters word starts.
constexpr std::int64_t mostPoints(std::int64_t length)
{
    return BasePoints + PieceBonuses + RunWeight * length * length
        + std::max(WordStartBonus, FirstPositionBonus) * length;
}

// What score() needs of the constants to give the same as the function it stands in for. The steps are those of
// "Why a long list needs to look at runs only" in docs/search.md, which says why each is needed.
static_assert(GapPenalty >= 0 && WordStartBonus >= 0 && ZeroPoints >= 0, "step 1: only gaps cost");
static_assert(FirstPositionBonus + PrefixBonus >= WordStartBonus, "one letter scores most where it reads as zero");
static_assert(ZeroPoints <= 3 * RunWeight, "step 2: a zero never pays while two letters of its run are left");
static_assert(mostPoints(TechniqueScorer::LongestQuery) <= std::numeric_limits<int>::max(),
              "step 5: no sum leaves the range of int");
static_assert(TechniqueScorer::LongestText - 1 <= std::numeric_limits<std::int32_t>::max(),
              "step 6: no position comes after 2 GiB");

} // namespace

TechniqueScorer::TechniqueScorer(std::string_view query)
    : m_query(query)
    , m_letters(toLower(query))
{
    int gaps = 0;
    m_gapsBefore.reserve(query.size());
    for (const char letter : query) {
        m_gapsBefore.push_back(gaps);
        gaps += isWordGap(static_cast<unsigned char>(letter)) ? 1 : 0;
    }
}

std::optional<int> TechniqueScorer::score(std::string_view text) const
{
    if (!canFollow(text)) {
        return TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(m_query, text);
    }
    Path path;
    return follow(path, 0, text) ? std::optional<int>(scoreOf(path, text)) : std::nullopt;
}

} // namespace search
