#pragma once

#include "Chunk.h"
#include "PositionSet.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace search {

/// A text of Unit to Count * Unit bytes, asked in which order its letters are: what TextBlock is for texts that most
/// likely match, this is for those that most likely do not.
///
/// Whatever its length, the text is read as Count pieces of Unit bytes, without a branch: a piece that would go beyond
/// the end ends with the text. So a byte may be read more than once; only its first position counts. Positions have the
/// order of the bytes, and are no more than that.
template <std::size_t Unit, std::size_t Count, class AChunk = Chunk>
class TextPieces
{
public:
    static constexpr std::size_t Shortest = Unit;
    static constexpr std::size_t Longest = Count * Unit;
    using Set = PositionSet<(Longest > 64 ? 2 : 1)>;

    /// REQUIRES: text has Shortest to Longest bytes.
    explicit TextPieces(std::string_view text)
        : m_all(FirstReadings[text.size()])
    {
        const auto piece = [text](std::size_t i) { return text.data() + std::min(i * Unit, text.size() - Unit); };
        if constexpr (Unit == 4) {
            static_assert(Count == 2);
            m_chunks[0] = AChunk(eightBytes(piece(0), piece(1)), 0);
        } else if constexpr (Unit == 8) {
            static_assert(Count == 4);
            m_chunks[0] = AChunk(eightBytes(piece(0)), eightBytes(piece(1)));
            m_chunks[1] = AChunk(eightBytes(piece(2)), eightBytes(piece(3)));
        } else {
            for (std::size_t i = 0; i < m_chunks.size(); ++i) {
                constexpr std::size_t ChunksInPiece = Unit / ChunkSize;
                m_chunks[i] = AChunk(piece(i / ChunksInPiece) + i % ChunksInPiece * ChunkSize);
            }
        }
        for (AChunk& chunk : m_chunks) {
            chunk = chunk.folded();
        }
    }

    /// Where the letter stands of which \p letters has sixteen, folded.
    Set where(const AChunk& letters) const
    {
        std::array<std::uint64_t, 2> bits{};
        for (std::size_t i = 0; i < m_chunks.size(); ++i) {
            bits[i / 4] |= std::uint64_t{m_chunks[i].equalTo(letters)} << (i % 4 * ChunkSize);
        }
        return setOf(bits) & m_all;
    }

private:
    static constexpr Set setOf(const std::array<std::uint64_t, 2>& bits)
    {
        if constexpr (Longest > 64) {
            return Set(bits[0], bits[1]);
        } else {
            return Set(bits[0]);
        }
    }

    /// For each length, the positions of bytes that no position before has.
    static constexpr std::array<Set, Longest + 1> firstReadings()
    {
        std::array<Set, Longest + 1> result{};
        for (std::size_t size = Unit; size <= Longest; ++size) {
            std::array<std::uint64_t, 2> bits{};
            for (std::size_t i = 0; i < Longest; ++i) {
                const std::size_t start = i / Unit * Unit;
                if (std::min(start, size - Unit) + i % Unit >= start) {
                    bits[i / 64] |= std::uint64_t{1} << (i % 64);
                }
            }
            result[size] = setOf(bits);
        }
        return result;
    }
    static constexpr std::array<Set, Longest + 1> FirstReadings = firstReadings();

    Set m_all;
    std::array<AChunk, (Longest + ChunkSize - 1) / ChunkSize> m_chunks;
};

/// What \p use makes of \p text in pieces. REQUIRES: the text has ShortestInPieces to LongestInPieces bytes.
///
/// The sizes are such that in a list of names, paths or identifiers most texts are of one kind: another kind in the
/// next text costs as much as several letters.
template <class Use>
auto inPieces(std::string_view text, Use use)
{
    if (text.size() <= TextPieces<8, 4>::Longest) {
        return text.size() < TextPieces<8, 4>::Shortest ? use(TextPieces<4, 2>(text)) : use(TextPieces<8, 4>(text));
    }
    return text.size() <= TextPieces<16, 5>::Longest ? use(TextPieces<16, 5>(text)) : use(TextPieces<32, 4>(text));
}
inline constexpr std::size_t ShortestInPieces = TextPieces<4, 2>::Shortest;
inline constexpr std::size_t LongestInPieces = TextPieces<32, 4>::Longest;

} // namespace search
