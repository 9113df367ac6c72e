#pragma once

#include "Chunk.h"
#include "DecisiveLetters.h"
#include "TextPieces.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace search {

/// Tells whether a text can contain the letters of a query in their order. This is what most candidates of a search see
/// and nothing more, so at first it does without branches on what it reads: one that goes another way in the next text
/// costs more than all the letters.
class SubsequenceFilter
{
public:
    static constexpr std::size_t MostDecisiveLetters = 6;
    static constexpr std::size_t MostLetters = 32; ///< Of a longer query, those behind them are not looked for.

    /// \p first are the letters of \p query to look for first. If they suffice, the others are looked for in long texts
    /// only. REQUIRES: they are at most MostDecisiveLetters.
    SubsequenceFilter(std::string_view query, const DecisiveLetters& first);

    /// False only if \p text does not contain the query.
    bool mayContain(std::string_view text) const
    {
        if (text.size() < ShortestInPieces) {
            return true; // the rule itself takes no longer
        }
        if (text.size() > LongestInPieces) {
            return mayBeInLongText(text);
        }
        return inPieces(text, [this](const auto& pieces) {
            return hasDecisiveLetters(pieces) && (m_decisiveSuffice || follow(pieces, 0) == m_count);
        });
    }

private:
    template <class Pieces>
    bool hasDecisiveLetters(const Pieces& pieces) const
    {
        auto rest = Pieces::Set::all();
        auto places = rest;
        for (std::size_t i = 0; i < m_decisiveCount; ++i) {
            places = pieces.where(m_decisive[i]) & rest;
            rest = places.allAboveLowest(); // nothing, and so nothing from there on, where there is no place
        }
        return !places.empty();
    }

    /// How many letters have been found when \p pieces have been looked through for those from \p found on.
    template <class Pieces>
    std::size_t follow(const Pieces& pieces, std::size_t found) const
    {
        for (auto rest = Pieces::Set::all(); found < m_count; ++found) {
            const auto places = pieces.where(m_letters[found]) & rest;
            if (places.empty()) {
                break;
            }
            rest = places.allAboveLowest();
        }
        return found;
    }

    bool mayBeInLongText(std::string_view text) const;

    bool m_decisiveSuffice;
    std::size_t m_decisiveCount;
    std::array<Chunk, MostDecisiveLetters> m_decisive{}; // sixteen of each
    std::size_t m_count;
    std::array<Chunk, MostLetters> m_letters{};
};

} // namespace search
