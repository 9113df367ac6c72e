#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

namespace search {

/// Tells in one pass, without a branch on what it reads, whether a text can contain the letters of a query in their
/// order. This is what most candidates of a search see and nothing more, so it costs as little as reading them: the
/// time depends on the length of the text alone.
///
/// The pass runs from both ends at once. From the front it finds the longest beginning of the query that the first half
/// of the text contains, from the back the longest ending that the second half contains; the text contains the query if
/// and only if the two cover it. How far each side has come is one bit, counted up by h += h & rows[byte], where the
/// row of a byte has a bit for every place of the query at which it stands: the bit moves on if the byte is the next
/// one. The front has the lower 32 bits of the word, the back the upper ones.
///
/// Of a query of more than 31 letters only the first 31 are looked for; a text without them lacks the query.
class SubsequenceFilter
{
public:
    explicit SubsequenceFilter(std::string_view query);

    /// False only if \p text does not contain the query. For a query of at most 31 letters, true only if it does.
    bool mayContain(std::string_view text) const
    {
        const auto* begin = reinterpret_cast<const unsigned char*>(text.data());
        const unsigned char* end = begin + text.size();
        std::uint64_t found = 1 | std::uint64_t{1} << BackShift;
        while (end - begin >= 8) {
            found += found & (m_frontRows[begin[0]] | m_backRows[end[-1]]);
            found += found & (m_frontRows[begin[1]] | m_backRows[end[-2]]);
            found += found & (m_frontRows[begin[2]] | m_backRows[end[-3]]);
            found += found & (m_frontRows[begin[3]] | m_backRows[end[-4]]);
            begin += 4;
            end -= 4;
        }
        while (begin != end) {
            found += found & m_frontRows[*begin++];
        }
        const int atFront = std::countr_zero(static_cast<std::uint32_t>(found));
        const int atBack = std::countr_zero(static_cast<std::uint32_t>(found >> BackShift));
        return atFront + atBack >= m_length;
    }

private:
    static constexpr int BackShift = 32;

    int m_length;
    std::array<std::uint64_t, 256> m_frontRows{};
    std::array<std::uint64_t, 256> m_backRows{};
};

} // namespace search
