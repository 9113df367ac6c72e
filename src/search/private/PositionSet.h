#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace search {

// NOLINTBEGIN(cppcoreguidelines-pro-type-member-init): filling what is overwritten at once would take as long as the
// work

/// A set of positions in a text of at most 64 * Words bytes, one bit for each. A single position is a set of one: what
/// follows from it, like "everything above", is then a few operations on all positions at once and no branch.
template <int Words>
class PositionSet
{
public:
    static constexpr int Capacity = 64 * Words;
    static constexpr int FirstLimit = 9;

    /// Holds anything: assign before use.
    PositionSet() = default;

    /// The positions below 64, of which \p bits has a bit each.
    explicit constexpr PositionSet(std::uint64_t bits)
    {
        m_words[0] = bits;
        if constexpr (Words == 2) {
            m_words[1] = 0;
        }
    }
    constexpr PositionSet(std::uint64_t bits, std::uint64_t bitsFrom64) requires(Words == 2)
        : m_words{bits, bitsFrom64}
    {
    }

    static PositionSet none() { return PositionSet(0); }
    static PositionSet all()
    {
        PositionSet set;
        set.m_words.fill(~std::uint64_t{0});
        return set;
    }

    bool empty() const
    {
        std::uint64_t any = 0;
        for (const std::uint64_t word : m_words) {
            any |= word;
        }
        return any == 0;
    }

    bool contains(int position) const
    {
        return ((m_words[Words == 1 || position < 64 ? 0 : 1] >> (position % 64)) & 1) != 0;
    }

    /// The positions from 64 * \p index on, as bits.
    std::uint64_t word(int index) const { return m_words[static_cast<std::size_t>(index)]; }

    int count() const
    {
        std::uint64_t nibbles = 0; // a nibble may be 8, and all together 128
        for (const std::uint64_t word : m_words) {
            nibbles += nibbleCounts(pairCounts(word));
        }
        return static_cast<int>(bytesSum(nibbles));
    }

    /// The number of positions in \p once and twice that of those in \p twice.
    static int weightedCount(const PositionSet& once, const PositionSet& twice)
    {
        std::uint64_t sum = 0;
        for (std::size_t i = 0; i < Words; ++i) {
            sum += bytesSum(nibbleCounts(pairCounts(once.m_words[i])) + 2 * nibbleCounts(pairCounts(twice.m_words[i])));
        }
        return static_cast<int>(sum);
    }

    /// The lowest position, alone. Nothing of an empty set.
    PositionSet lowest() const { return *this & minus(); }

    /// The highest position, alone. REQUIRES: the set is not empty.
    PositionSet highest() const
    {
        if constexpr (Words == 2) {
            return m_words[1] != 0 ? PositionSet(0, std::bit_floor(m_words[1]))
                                   : PositionSet(std::bit_floor(m_words[0]));
        } else {
            return PositionSet(std::bit_floor(m_words[0]));
        }
    }

    /// Every position there can be above the lowest of this set. Nothing of an empty set.
    PositionSet allAboveLowest() const
    {
        const PositionSet negative = minus();
        PositionSet result;
        for (std::size_t i = 0; i < Words; ++i) {
            result.m_words[i] = m_words[i] ^ negative.m_words[i];
        }
        return result;
    }

    /// Every position there can be below the lowest of this set. All there are of an empty set.
    PositionSet allBelowLowest() const
    {
        const PositionSet negative = minus();
        PositionSet result;
        for (std::size_t i = 0; i < Words; ++i) {
            result.m_words[i] = ~(m_words[i] | negative.m_words[i]);
        }
        return result;
    }

    /// Every position there can be below the highest of this set. Nothing of an empty set.
    PositionSet allBelowHighest() const
    {
        if constexpr (Words == 2) {
            return m_words[1] != 0 ? PositionSet(~std::uint64_t{0}, bitsBelowHighest(m_words[1]))
                                   : PositionSet(bitsBelowHighest(m_words[0]));
        } else {
            return PositionSet(bitsBelowHighest(m_words[0]));
        }
    }

    /// The lowest \p limit positions, or all if there are no more. REQUIRES: limit is at most FirstLimit.
    PositionSet first(int limit) const
    {
        if constexpr (Words == 2) {
            const int inFirst = PositionSet<1>(m_words[0]).count();
            return PositionSet(lowestBits(m_words[0], std::min(limit, inFirst)),
                               lowestBits(m_words[1], std::max(limit - inFirst, 0)));
        } else {
            return PositionSet(lowestBits(m_words[0], limit));
        }
    }

    /// Every position moved up by one; one that leaves the capacity is gone.
    PositionSet next() const
    {
        PositionSet result;
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < Words; ++i) {
            result.m_words[i] = m_words[i] << 1 | carry;
            carry = m_words[i] >> 63;
        }
        return result;
    }

    /// Every position moved down by one; position 0 is gone.
    PositionSet previous() const
    {
        PositionSet result;
        for (std::size_t i = 0; i < Words; ++i) {
            result.m_words[i] = m_words[i] >> 1 | (i + 1 < Words ? m_words[i + 1] << 63 : 0);
        }
        return result;
    }

    bool operator==(const PositionSet&) const = default;
    PositionSet operator&(PositionSet other) const
    {
        for (std::size_t i = 0; i < Words; ++i) {
            other.m_words[i] &= m_words[i];
        }
        return other;
    }
    PositionSet operator|(PositionSet other) const
    {
        for (std::size_t i = 0; i < Words; ++i) {
            other.m_words[i] |= m_words[i];
        }
        return other;
    }
    /// The positions that are not in \p other.
    PositionSet operator-(PositionSet other) const
    {
        for (std::size_t i = 0; i < Words; ++i) {
            other.m_words[i] = m_words[i] & ~other.m_words[i];
        }
        return other;
    }

private:
    /// The two's complement, in which everything above the lowest position is the other way round.
    PositionSet minus() const
    {
        PositionSet result;
        std::uint64_t carry = 1;
        for (std::size_t i = 0; i < Words; ++i) {
            result.m_words[i] = ~m_words[i] + carry;
            carry = carry & (m_words[i] == 0 ? 1U : 0U);
        }
        return result;
    }

    static std::uint64_t bitsBelowHighest(std::uint64_t word) { return std::bit_floor(word | 1) - 1; }

    /// All steps are taken, because how many are needed is different each time.
    static std::uint64_t lowestBits(std::uint64_t word, int limit)
    {
        std::array<std::uint64_t, FirstLimit + 1> rest;
        rest[0] = word;
        for (std::size_t i = 1; i < rest.size(); ++i) {
            rest[i] = rest[i - 1] & (rest[i - 1] - 1);
        }
        return word ^ rest[static_cast<std::size_t>(limit)];
    }

    // Bits are counted by hand: without the instruction for it, which the oldest x86-64 processors lack, std::popcount
    // is a function call.
    static std::uint64_t pairCounts(std::uint64_t word) { return word - ((word >> 1) & 0x5555555555555555U); }
    static std::uint64_t nibbleCounts(std::uint64_t pairs)
    {
        return (pairs & 0x3333333333333333U) + ((pairs >> 2) & 0x3333333333333333U);
    }
    static std::uint64_t bytesSum(std::uint64_t nibbles)
    {
        const std::uint64_t bytes = (nibbles & 0x0F0F0F0F0F0F0F0FU) + ((nibbles >> 4) & 0x0F0F0F0F0F0F0F0FU);
        return (bytes * 0x0101010101010101U) >> 56;
    }

    std::array<std::uint64_t, Words> m_words;
};

// NOLINTEND(cppcoreguidelines-pro-type-member-init)

} // namespace search
