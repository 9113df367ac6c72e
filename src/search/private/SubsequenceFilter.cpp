#include "SubsequenceFilter.h"

#include "Ascii.h"

#include <algorithm>

namespace search {

namespace {

constexpr std::size_t Longest = 31; // one bit more stands for "all found"

} // namespace

SubsequenceFilter::SubsequenceFilter(std::string_view query)
    : m_length(static_cast<int>(std::min(query.size(), Longest)))
{
    static_assert(Longest < BackShift, "the front needs a bit for all found");
    std::array<std::uint32_t, 256> front{};
    std::array<std::uint32_t, 256> back{};
    for (int i = 0; i < m_length; ++i) {
        const unsigned char letter = toLower(query[static_cast<std::size_t>(i)]);
        front[letter] |= std::uint32_t{1} << i;
        back[letter] |= std::uint32_t{1} << (m_length - 1 - i);
    }
    for (std::size_t byte = 0; byte < LowerCase.size(); ++byte) {
        m_frontRows[byte] = front[LowerCase[byte]];
        m_backRows[byte] = std::uint64_t{back[LowerCase[byte]]} << BackShift;
    }
}

} // namespace search
