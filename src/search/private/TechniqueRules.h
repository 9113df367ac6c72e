#pragma once

#include "Ascii.h"

#include <cstddef>
#include <string_view>

/// \file TechniqueRules.h
/// What the parts of a technique's score are worth; docs/search.md says what each is for.

namespace search::technique {

inline constexpr int GapPenalty = 2;
inline constexpr int BasePoints = 100;
inline constexpr int PrefixBonus = 50;
inline constexpr int RunWeight = 15;
inline constexpr int FirstPositionBonus = 15;
inline constexpr int WordStartBonus = 30;
inline constexpr int PieceBonuses = 100 + 75 + 50; // for the pieces between commas, which every text contains
inline constexpr std::size_t ShortText = 200;
inline constexpr int ShortTextPenalty = 15;

/// What a position that reads as zero brings: a run of one, the first position, and the gap behind it.
inline constexpr int ZeroPoints = RunWeight + FirstPositionBonus - GapPenalty;

/// What every path through \p text scores, wherever it leads.
inline int commonPoints(std::string_view text)
{
    return BasePoints + PieceBonuses - (text.size() < ShortText ? ShortTextPenalty : 0);
}

inline int wordStartPoints(std::string_view text, std::size_t position)
{
    if (position == 0) {
        return FirstPositionBonus;
    }
    return isWordGap(static_cast<unsigned char>(text[position - 1])) ? WordStartBonus : 0;
}

/// Says which paths have the prefix bonus: those whose first k positions are zero, for every k from first to last.
/// Their zeros stand on letters that equal the text's first one, and from place k on the text equals the query.
struct PrefixRange
{
    std::size_t first;
    std::size_t last;

    bool empty() const { return first > last; }
    bool contains(std::size_t zeros) const { return first <= zeros && zeros <= last; }
};

/// REQUIRES: the query is not empty and the text at least as long.
inline PrefixRange prefixRange(std::string_view query, std::string_view text)
{
    PrefixRange range{query.size(), 1};
    while (range.last < query.size() && toLower(text[range.last]) == toLower(text[0])) {
        ++range.last;
    }
    while (range.first > 0 && toLower(text[range.first - 1]) == toLower(query[range.first - 1])) {
        --range.first;
    }
    return range;
}

} // namespace search::technique
