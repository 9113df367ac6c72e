#pragma once

#include "Ascii.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace search {

/// The letter of a query that the fewest candidates have, if there is one that few have: std::memchr finds that it is
/// missing several times faster than anything else can tell that the query is.
class RareLetter
{
public:
    /// Looks at a few of \p candidates, spread over the list. In a short list no letter is worth the look.
    template <class Texts>
    RareLetter(std::string_view query, const Texts& candidates)
    {
        if (candidates.size() < shortList) {
            return;
        }
        std::array<std::size_t, 256> counts{};
        for (std::size_t i = 0; i < sampleSize; ++i) {
            for (const char c : candidates[i * (candidates.size() / sampleSize)]) {
                ++counts[toLower(c)];
            }
        }
        std::size_t lowest = sampleSize / 4; // a more common one would be looked up for nothing too often
        for (const char c : query) {
            if (counts[toLower(c)] < lowest) {
                lowest = counts[toLower(c)];
                m_isKnown = true;
                m_lower = toLower(c);
            }
        }
        m_upper = isLower(m_lower) ? static_cast<unsigned char>(m_lower - 'a' + 'A') : m_lower;
    }

    /// False if there is no such letter.
    bool isMissingIn(std::string_view text) const
    {
        return m_isKnown && !contains(text, m_lower) && (m_upper == m_lower || !contains(text, m_upper));
    }

private:
    static constexpr std::size_t shortList = 1024;
    static constexpr std::size_t sampleSize = 64;

    static bool contains(std::string_view text, unsigned char byte)
    {
        return !text.empty() && std::memchr(text.data(), byte, text.size()) != nullptr;
    }

    bool m_isKnown = false;
    unsigned char m_lower = 0;
    unsigned char m_upper = 0;
};

} // namespace search
