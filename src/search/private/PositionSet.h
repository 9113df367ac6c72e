#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace search {

/// A set of positions in a text of at most 64 * Words bytes.
template <int Words>
class PositionSet
{
public:
    static constexpr int capacity = 64 * Words;

    /// Holds anything: assign before use.
    PositionSet() = default; // NOLINT(cppcoreguidelines-pro-type-member-init): many are made and few are used

    static PositionSet none()
    {
        PositionSet set;
        set.m_words.fill(0);
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

    bool contains(int position) const { return ((m_words[wordOf(position)] >> (position % 64)) & 1) != 0; }

    int count() const
    {
        std::uint64_t sum = 0;
        for (const std::uint64_t word : m_words) {
            sum += ones(word);
        }
        return static_cast<int>(sum);
    }

    /// REQUIRES: the set is not empty.
    int lowest() const
    {
        if constexpr (Words == 2) {
            return m_words[0] != 0 ? std::countr_zero(m_words[0]) : 64 + std::countr_zero(m_words[1]);
        }
        return std::countr_zero(m_words[0]);
    }

    /// REQUIRES: the set is not empty.
    int highest() const
    {
        if constexpr (Words == 2) {
            return m_words[1] != 0 ? 127 - std::countl_zero(m_words[1]) : 63 - std::countl_zero(m_words[0]);
        }
        return 63 - std::countl_zero(m_words[0]);
    }

    void remove(int position) { m_words[wordOf(position)] &= ~(std::uint64_t{1} << (position % 64)); }

    /// Adds the positions of the set bits among the 16 of \p bits, counted from \p offset on.
    void add(unsigned bits, std::size_t offset)
    {
        if (Words == 1 || offset < 64) {
            m_words[0] |= std::uint64_t{bits} << offset;
        }
        if (Words == 2 && offset > 64 - 16) {
            m_words[1] |= offset < 64 ? std::uint64_t{bits} >> (64 - offset) : std::uint64_t{bits} << (offset - 64);
        }
    }

    /// The positions that are less than \p position. REQUIRES: position is below the capacity.
    PositionSet below(int position) const
    {
        const std::uint64_t ones = (std::uint64_t{1} << (position % 64)) - 1;
        PositionSet result = *this;
        if constexpr (Words == 2) {
            result.m_words[1] &= position < 64 ? 0 : ones;
            result.m_words[0] &= position < 64 ? ones : ~std::uint64_t{0};
        } else {
            result.m_words[0] &= ones;
        }
        return result;
    }

    /// The positions that are greater than \p position. REQUIRES: position is below the capacity.
    PositionSet above(int position) const
    {
        const std::uint64_t ones = ~std::uint64_t{1} << (position % 64);
        PositionSet result = *this;
        if constexpr (Words == 2) {
            result.m_words[0] &= position < 64 ? ones : 0;
            result.m_words[1] &= position < 64 ? ~std::uint64_t{0} : ones;
        } else {
            result.m_words[0] &= ones;
        }
        return result;
    }

    /// The lowest \p count positions. REQUIRES: the set has more than that.
    PositionSet first(int count) const
    {
        PositionSet rest = *this;
        while (count-- > 0) {
            rest.remove(rest.lowest());
        }
        return below(rest.lowest());
    }

    /// Every position moved up by one; one that leaves the capacity is gone.
    PositionSet next() const
    {
        PositionSet result;
        std::uint64_t carry = 0;
        for (int i = 0; i < Words; ++i) {
            result.m_words[i] = m_words[i] << 1 | carry;
            carry = m_words[i] >> 63;
        }
        return result;
    }

    PositionSet operator&(const PositionSet& other) const
    {
        PositionSet result;
        for (int i = 0; i < Words; ++i) {
            result.m_words[i] = m_words[i] & other.m_words[i];
        }
        return result;
    }
    PositionSet operator|(const PositionSet& other) const
    {
        PositionSet result;
        for (int i = 0; i < Words; ++i) {
            result.m_words[i] = m_words[i] | other.m_words[i];
        }
        return result;
    }

private:
    static std::size_t wordOf(int position) { return Words == 1 || position < 64 ? 0 : 1; }

    /// Without the instruction for it, which the oldest x86-64 processors lack, std::popcount is a function call.
    static std::uint64_t ones(std::uint64_t word)
    {
        word -= (word >> 1) & 0x5555555555555555U;
        word = (word & 0x3333333333333333U) + ((word >> 2) & 0x3333333333333333U);
        word = (word + (word >> 4)) & 0x0F0F0F0F0F0F0F0FU;
        return (word * 0x0101010101010101U) >> 56;
    }

    std::array<std::uint64_t, Words> m_words;
};

} // namespace search
