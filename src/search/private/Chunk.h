#pragma once

#include "Ascii.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define CLCONFIGUI_SEARCH_SSE2
#endif

/// \file Chunk.h
/// Sixteen bytes of a text, looked at together. Each question is answered by 16 bits, the lowest for the first byte.
/// The two classes are one and the same to their users; SSE2 belongs to every x86-64 processor.

namespace search {

inline constexpr std::size_t ChunkSize = 16;

/// What letters differ in by their case. With it set in every byte both cases are alike, as are a few other bytes that
/// are hardly ever in a text together.
inline constexpr unsigned char CaseBit = 'a' - 'A';

/// Eight bytes as they lie in memory.
using EightBytes = std::uint64_t;

template <class Number>
Number bytesAt(const char* bytes)
{
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

/// The eight bytes at \p bytes.
inline EightBytes eightBytes(const char* bytes)
{
    return bytesAt<EightBytes>(bytes);
}

/// The four bytes at \p first and those at \p second.
inline EightBytes eightBytes(const char* first, const char* second)
{
    return std::bit_cast<EightBytes>(std::array{bytesAt<std::uint32_t>(first), bytesAt<std::uint32_t>(second)});
}

// NOLINTBEGIN(cppcoreguidelines-pro-type-member-init): filling what is overwritten at once would take as long as the
// work

class PortableChunk
{
public:
    PortableChunk() = default;
    /// REQUIRES: 16 bytes can be read at \p bytes.
    explicit PortableChunk(const char* bytes) { std::memcpy(m_bytes.data(), bytes, ChunkSize); }

    PortableChunk(EightBytes first, EightBytes second)
        : PortableChunk(std::bit_cast<std::array<char, ChunkSize>>(std::array{first, second}).data())
    {
    }
    static PortableChunk filledWith(char byte)
    {
        PortableChunk chunk;
        chunk.m_bytes.fill(static_cast<unsigned char>(byte));
        return chunk;
    }

    PortableChunk inLowerCase() const
    {
        PortableChunk lower;
        for (std::size_t i = 0; i < ChunkSize; ++i) {
            lower.m_bytes[i] = LowerCase[m_bytes[i]];
        }
        return lower;
    }
    PortableChunk folded() const
    {
        PortableChunk folded;
        for (std::size_t i = 0; i < ChunkSize; ++i) {
            folded.m_bytes[i] = m_bytes[i] | CaseBit;
        }
        return folded;
    }
    unsigned equalTo(unsigned char byte) const { return equalTo(filledWith(static_cast<char>(byte))); }
    unsigned equalTo(const PortableChunk& other) const
    {
        unsigned bits = 0;
        for (std::size_t i = 0; i < ChunkSize; ++i) {
            bits |= (m_bytes[i] == other.m_bytes[i] ? 1U : 0U) << i;
        }
        return bits;
    }
    /// Where a word starts, if \p previous holds for every byte the one before it: after a word gap, and with an
    /// upper-case letter after a lower-case one.
    unsigned wordStarts(const PortableChunk& previous) const
    {
        unsigned bits = 0;
        for (std::size_t i = 0; i < ChunkSize; ++i) {
            const unsigned char before = previous.m_bytes[i];
            const bool isStart = isWordGap(before) || (isLower(before) && isUpper(m_bytes[i]));
            bits |= (isStart ? 1U : 0U) << i;
        }
        return bits;
    }
    /// Every byte moved on by one, and a NUL first.
    PortableChunk movedOn() const
    {
        PortableChunk moved;
        moved.m_bytes[0] = 0;
        std::memcpy(moved.m_bytes.data() + 1, m_bytes.data(), ChunkSize - 1);
        return moved;
    }

private:
    std::array<unsigned char, ChunkSize> m_bytes;
};

#ifdef CLCONFIGUI_SEARCH_SSE2

class Sse2Chunk
{
public:
    Sse2Chunk() = default;
    /// REQUIRES: 16 bytes can be read at \p bytes.
    explicit Sse2Chunk(const char* bytes)
        : m_bytes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)))
    {
    }

    Sse2Chunk(EightBytes first, EightBytes second)
        : m_bytes(_mm_set_epi64x(static_cast<std::int64_t>(second), static_cast<std::int64_t>(first)))
    {
    }
    static Sse2Chunk filledWith(char byte)
    {
        Sse2Chunk chunk;
        chunk.m_bytes = _mm_set1_epi8(byte);
        return chunk;
    }

    Sse2Chunk inLowerCase() const
    {
        Sse2Chunk lower;
        lower.m_bytes = _mm_or_si128(m_bytes, _mm_and_si128(from<'A'>(), _mm_set1_epi8(CaseBit)));
        return lower;
    }
    Sse2Chunk folded() const
    {
        Sse2Chunk folded;
        folded.m_bytes = _mm_or_si128(m_bytes, _mm_set1_epi8(CaseBit));
        return folded;
    }
    unsigned equalTo(unsigned char byte) const { return equalTo(filledWith(static_cast<char>(byte))); }
    unsigned equalTo(const Sse2Chunk& other) const { return bits(_mm_cmpeq_epi8(m_bytes, other.m_bytes)); }
    unsigned wordStarts(const Sse2Chunk& previous) const
    {
        const __m128i afterGap = _mm_or_si128(previous.equal('_'), previous.equal(' '));
        return bits(_mm_or_si128(afterGap, _mm_and_si128(previous.from<'a'>(), from<'A'>())));
    }
    Sse2Chunk movedOn() const
    {
        Sse2Chunk moved;
        moved.m_bytes = _mm_slli_si128(m_bytes, 1);
        return moved;
    }

private:
    static unsigned bits(__m128i flags) { return static_cast<unsigned>(_mm_movemask_epi8(flags)); }
    __m128i equal(char byte) const { return _mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(byte)); }
    /// Where one of the 26 letters from First on is. The comparison is signed, so First becomes the lowest number.
    template <char First>
    __m128i from() const
    {
        const __m128i moved = _mm_add_epi8(m_bytes, _mm_set1_epi8(static_cast<char>(-128 - First)));
        return _mm_cmplt_epi8(moved, _mm_set1_epi8(-128 + 26));
    }

    __m128i m_bytes;
};

using Chunk = Sse2Chunk;

#else

using Chunk = PortableChunk;

#endif

// NOLINTEND(cppcoreguidelines-pro-type-member-init)

} // namespace search
