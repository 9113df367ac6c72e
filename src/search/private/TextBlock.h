#pragma once

#include "Chunk.h"
#include "PositionSet.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace search {

/// A text of at most 16 * Chunks bytes, asked where its letters are.
template <int Chunks, class AChunk = Chunk>
class TextBlock
{
public:
    static constexpr int Words = Chunks > 4 ? 2 : 1;
    static constexpr std::size_t Capacity = Chunks * ChunkSize;
    using Set = PositionSet<Words>;

    /// REQUIRES: text has at most `Capacity` bytes; more than 64 if there are more than four chunks, and 80 or more if
    /// there are more than five.
    explicit TextBlock(std::string_view text)
    {
        // The last chunk ends with the text and overlaps the one before, so that all are read from the text itself.
        std::array<char, ChunkSize> padded{};
        const char* bytes = text.data();
        if (text.size() < ChunkSize) {
            std::memcpy(padded.data(), bytes, text.size());
            bytes = padded.data();
        } else {
            m_lastOffset = text.size() - ChunkSize;
        }
        m_wordStarts = collect([&](std::size_t i) {
            const std::size_t start = offset(i);
            const AChunk chunk(bytes + start);
            m_chunks[i] = chunk.inLowerCase();
            return chunk.wordStarts(start == 0 ? chunk.movedOn() : AChunk(bytes + start - 1));
        });
    }

    /// Where \p letter is, in either case. A text of less than 16 bytes has NULs behind its end.
    /// REQUIRES: letter is in lower case.
    Set where(unsigned char letter) const
    {
        return collect([&](std::size_t i) { return m_chunks[i].equalTo(letter); });
    }

    /// Where a word starts: after a word gap, and with an upper-case letter after a lower-case one.
    const Set& wordStarts() const { return m_wordStarts; }

private:
    static constexpr std::size_t ChunksInWord = 4;

    std::size_t offset(std::size_t chunk) const { return std::min(chunk * ChunkSize, m_lastOffset); }

    /// The positions that have a bit among the 16 that \p bitsOf gives for each chunk.
    template <class Bits>
    Set collect(Bits bitsOf) const
    {
        std::array<std::uint64_t, Words> bits{};
        for (std::size_t i = 0; i < m_chunks.size(); ++i) {
            const std::uint64_t found = bitsOf(i);
            if (i < ChunksInWord) {
                bits[0] |= found << offset(i);
            } else if (Chunks == 5) {
                bits[Words - 1] |= found >> (Capacity - ChunkSize - m_lastOffset);
            } else {
                bits[Words - 1] |= found << (offset(i) - 64);
            }
        }
        if constexpr (Words == 2) {
            return Set(bits[0], bits[1]);
        } else {
            return Set(bits[0]);
        }
    }

    std::array<AChunk, Chunks> m_chunks;
    std::size_t m_lastOffset = 0;
    Set m_wordStarts;
};

} // namespace search
