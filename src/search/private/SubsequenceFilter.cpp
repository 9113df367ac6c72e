#include "SubsequenceFilter.h"

#include <algorithm>

namespace search {

namespace {

Chunk letters(char letter)
{
    return Chunk::filledWith(letter).folded();
}

} // namespace

SubsequenceFilter::SubsequenceFilter(std::string_view query, const DecisiveLetters& first)
    : m_decisiveSuffice(first.suffice)
    , m_decisiveCount(first.letters.size())
    , m_count(std::min(query.size(), MostLetters))
{
    std::transform(first.letters.begin(), first.letters.end(), m_decisive.begin(), letters);
    std::transform(query.begin(), query.begin() + static_cast<std::ptrdiff_t>(m_count), m_letters.begin(), letters);
}

bool SubsequenceFilter::mayBeInLongText(std::string_view text) const
{
    std::size_t found = 0;
    while (found < m_count && text.size() >= ShortestInPieces) {
        const std::string_view part = text.substr(0, LongestInPieces);
        found = inPieces(part, [this, found](const auto& pieces) { return follow(pieces, found); });
        text.remove_prefix(part.size());
    }
    return found + text.size() >= m_count; // a rest that is too short for pieces may have as many letters
}

} // namespace search
