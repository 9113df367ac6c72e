#include "DecisiveLetters.h"

#include "Chunk.h"
#include "SubsequenceFilter.h"
#include "TextPieces.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace search {

namespace {

/// Letters of the query that the filter looks for, one bit for each.
using Letters = std::uint32_t;
static_assert(SubsequenceFilter::MostLetters <= 32);

/// A letter that rejects no more than one in so many texts costs more than it saves.
constexpr std::size_t WorthIt = 16;

/// What it costs that a text is not rejected, and what the part of it that is left may cost besides. The latter leads
/// to letters that are of use together only, as in a query whose letters every text has, but in another order.
constexpr std::size_t TextCost = 64;

/// Where the letters of the query are in one text.
struct Places
{
    std::array<PositionSet<2>, SubsequenceFilter::MostLetters> of{};
    std::size_t length = 0; // how many positions there may be

    /// What \p letters cost in this text; nothing if they are not in it in their order.
    std::size_t cost(Letters letters) const
    {
        if (letters == 0) {
            return 2 * TextCost;
        }
        PositionSet<2> last = PositionSet<2>::none();
        PositionSet<2> rest = PositionSet<2>::all();
        for (; letters != 0; letters &= letters - 1) {
            last = of[static_cast<std::size_t>(std::countr_zero(letters))] & rest;
            rest = last.allAboveLowest();
        }
        if (last.empty()) {
            return 0;
        }
        const auto end = static_cast<std::size_t>(last.word(0) != 0 ? std::countr_zero(last.word(0))
                                                                    : 64 + std::countr_zero(last.word(1)));
        return TextCost + TextCost * (length - end) / length;
    }
};

PositionSet<2> widened(const PositionSet<1>& set)
{
    return PositionSet<2>(set.word(0));
}
PositionSet<2> widened(const PositionSet<2>& set)
{
    return set;
}

Places placesIn(std::string_view text, std::string_view query)
{
    return inPieces(text, [query]<class Pieces>(const Pieces& pieces) {
        Places places;
        places.length = Pieces::Longest;
        for (std::size_t i = 0; i < query.size(); ++i) {
            places.of[i] = widened(pieces.where(Chunk::filledWith(query[i]).folded()));
        }
        return places;
    });
}

std::size_t cost(const std::vector<Places>& texts, Letters letters)
{
    std::size_t sum = 0;
    for (const Places& places : texts) {
        sum += places.cost(letters);
    }
    return sum;
}

std::size_t survivors(const std::vector<Places>& texts, Letters letters)
{
    return static_cast<std::size_t>(std::count_if(
        texts.begin(), texts.end(), [letters](const Places& places) { return places.cost(letters) != 0; }));
}

/// One letter of \p count after the other, each the one that brings most beside those before.
Letters chosenLetters(std::vector<Places> texts, std::size_t count)
{
    Letters chosen = 0;
    for (std::size_t i = 0; i < std::min(count, SubsequenceFilter::MostDecisiveLetters) && !texts.empty(); ++i) {
        Letters best = 0;
        std::size_t leastCost = 0;
        for (std::size_t letter = 0; letter < count; ++letter) {
            const Letters candidate = chosen | Letters{1} << letter;
            const std::size_t candidateCost = candidate == chosen ? 0 : cost(texts, candidate);
            if (candidate != chosen && (best == 0 || candidateCost < leastCost)) {
                best = candidate;
                leastCost = candidateCost;
            }
        }
        chosen = best;
        std::erase_if(texts, [chosen](const Places& places) { return places.cost(chosen) == 0; });
    }
    return chosen;
}

/// \p chosen without those letters that turn out to bring little beside the others.
Letters usefulLetters(const std::vector<Places>& texts, Letters chosen)
{
    std::size_t surviving = survivors(texts, chosen);
    for (Letters rest = chosen; rest != 0; rest &= rest - 1) {
        const Letters without = chosen & ~(rest & (0 - rest));
        const std::size_t survivingWithout = survivors(texts, without);
        if (WorthIt * (survivingWithout - surviving) <= texts.size()) {
            chosen = without;
            surviving = survivingWithout;
        }
    }
    return chosen;
}

} // namespace

DecisiveLetters decisiveLetters(std::string_view query, std::span<const std::string_view> sample)
{
    query = query.substr(0, SubsequenceFilter::MostLetters);
    std::vector<Places> texts;
    for (const std::string_view text : sample) {
        if (text.size() >= ShortestInPieces && text.size() <= LongestInPieces) {
            texts.push_back(placesIn(text, query));
        }
    }
    if (texts.empty()) {
        return {std::string(query.substr(0, SubsequenceFilter::MostDecisiveLetters))};
    }

    const auto all = static_cast<Letters>((std::uint64_t{1} << query.size()) - 1);
    const std::size_t matching = survivors(texts, all);
    if (2 * matching > texts.size()) {
        return {}; // no letter is worth looking for where most texts match
    }

    const Letters decisive = usefulLetters(texts, chosenLetters(texts, query.size()));
    DecisiveLetters result;
    for (Letters rest = decisive; rest != 0; rest &= rest - 1) {
        result.letters += query[static_cast<std::size_t>(std::countr_zero(rest))];
    }
    result.suffice = survivors(texts, decisive) - matching <= 1;
    return result;
}

} // namespace search
