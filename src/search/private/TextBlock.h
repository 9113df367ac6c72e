#pragma once

#include "Chunk.h"
#include "PositionSet.h"

#include <array>
#include <cstring>
#include <string_view>

namespace search {

/// A text of at most 64 * Words bytes, asked where its letters are.
template <int Words, class AChunk = Chunk>
class TextBlock
{
public:
    using Set = PositionSet<Words>;

    /// REQUIRES: text has at most Set::capacity bytes.
    explicit TextBlock(std::string_view text)
    {
        // Behind the text and before it stand NULs, which are no letters.
        std::array<char, 1 + Set::capacity> padded{};
        std::memcpy(padded.data() + 1, text.data(), text.size());
        m_wordStarts = Set::none();
        for (std::size_t i = 0; i < m_chunks.size(); ++i) {
            const char* before = padded.data() + i * chunkSize;
            const AChunk chunk(before + 1);
            m_wordStarts.add(chunk.wordStarts(AChunk(before)), i * chunkSize);
            m_chunks[i] = chunk.inLowerCase();
        }
    }

    /// Where \p letter is, in either case. REQUIRES: letter is in lower case and not NUL.
    Set where(unsigned char letter) const
    {
        Set set = Set::none();
        for (std::size_t i = 0; i < m_chunks.size(); ++i) {
            set.add(m_chunks[i].equalTo(letter), i * chunkSize);
        }
        return set;
    }

    /// Where a word starts: after a word gap, and with an upper-case letter after a lower-case one.
    const Set& wordStarts() const { return m_wordStarts; }

private:
    std::array<AChunk, std::size_t{4} * Words> m_chunks;
    Set m_wordStarts;
};

} // namespace search
