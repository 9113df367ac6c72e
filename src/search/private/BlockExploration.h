#pragma once

#include "FtsRules.h"
#include "FtsScorer.h"
#include "TextBlock.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace search::fts {

/// The exploration of FtsScorer in a text of at most 16 * Chunks bytes, with sets of positions: the places of a letter
/// are found together, counted together and, once no branches are left, completed together where they lead to the same.
/// A branch of the program costs more than all else here whenever it goes another way than the last time, so there are
/// few.
template <int Chunks>
class BlockExploration
{
public:
    BlockExploration(const FtsQuery& query, const TextBlock<Chunks>& block)
        : m_query(query)
        , m_block(block)
    {
    }

    std::optional<int> score(std::size_t textLength)
    {
        for (std::size_t i = 0; i < m_query.distinct.size(); ++i) {
            m_places[i] = m_block.where(m_query.distinct[i]);
        }
        if (!findFirstPath()) {
            return std::nullopt;
        }
        m_best = startPoints(m_first[0]) + m_firstPoints;
        explore<true>(0, where(0), 0, Set::none());
        return static_cast<int>(commonPoints(textLength, m_query.letters.size())) + m_best;
    }

private:
    using Set = typename TextBlock<Chunks>::Set;

    static constexpr std::uint64_t EarlyPositions = (1U << (LatePenaltyLimit / LatePenalty)) - 1;
    static constexpr std::size_t SummedLetters = 4;

    bool findFirstPath()
    {
        const std::size_t count = m_query.letters.size();
        Set path = Set::none();
        Set from = Set::all();
        for (std::size_t letter = 0; letter < count; ++letter) {
            const Set places = where(letter) & from;
            m_first[letter] = places.lowest();
            path = path | m_first[letter];
            from = places.allAboveLowest(); // nothing, and so nothing from there on, where there is no place
        }
        if (m_first[count - 1].empty()) {
            return false;
        }

        const std::size_t summed = std::min(count, SummedLetters);
        Set previous = Set::none();
        for (std::size_t letter = 0; letter < summed; ++letter) {
            m_firstPoints += wordStartPoints(m_first[letter]) + adjacentPoints(m_first[letter], previous);
            m_pointsUpTo[letter] = m_firstPoints;
            previous = m_first[letter];
        }
        if (count > summed) {
            const Set behind = previous.allAboveLowest();
            m_laterAdjacent = path & path.next() & behind;
            m_laterWordStarts = path & m_block.wordStarts() & behind;
            m_firstPoints += laterPoints(Set::all());
        }
        return true;
    }

    /// What the letters of the first path behind the first few bring in \p range.
    int laterPoints(const Set& range) const
    {
        static_assert(WordStartBonus == 2 * AdjacentBonus, "weightedCount() counts word starts twice");
        return AdjacentBonus * Set::weightedCount(m_laterAdjacent & range, m_laterWordStarts & range);
    }

    /// What the first path brings behind \p letter.
    int firstPointsBehind(std::size_t letter) const
    {
        return letter < SummedLetters ? m_firstPoints - m_pointsUpTo[letter]
                                      : laterPoints(m_first[letter].allAboveLowest());
    }

    /// What the first letter brings or costs at \p place for being there, words apart.
    static int startPoints(const Set& place)
    {
        static_assert(EarlyPositions == 0b111 && latePoints(3) == -LatePenaltyLimit, "from 3 on all cost the same");
        static constexpr std::array<int, 9> Points = {latePoints(3), FirstPositionBonus, latePoints(1),
                                                      latePoints(3), latePoints(2),      latePoints(3),
                                                      latePoints(3), latePoints(3),      latePoints(3)};
        return Points[static_cast<std::size_t>(std::min<std::uint64_t>(place.word(0), 8))];
    }

    void offer(int points) { m_best = std::max(m_best, points); }

    /// Tries \p letter at \p places, behind \p previous and after letters that have brought \p points.
    /// REQUIRES: there are branches left, so that letter is below BranchLimit. IsFirst tells whether it is 0.
    template <bool IsFirst>
    void explore(std::size_t letter, Set places, int points, const Set& previous)
    {
        const int count = places.count();
        if (count >= m_branches) {
            static_assert(BranchLimit + 1 <= Set::FirstLimit, "first() gives no more");
            places = places.first(m_branches + 1);
            m_branches = 0;
        } else {
            m_branches -= count;
            if (!isLast(letter)) {
                const Set next = where(letter + 1);
                places = places & next.allBelowHighest(); // from the others no way leads on
                do {
                    if (places.empty()) {
                        return;
                    }
                    const Set at = places.highest();
                    places = places - at;
                    explore<false>(
                        letter + 1, next & at.allAboveLowest(),
                        points + (IsFirst ? startPoints(at) : adjacentPoints(at, previous)) + wordStartPoints(at), at);
                } while (m_branches > 0);
            }
        }
        if constexpr (IsFirst) {
            for (Set early = places & Set(EarlyPositions); !early.empty(); early = early - early.lowest()) {
                complete<true>(0, early.lowest(), startPoints(early.lowest()), previous);
            }
            places = places - Set(EarlyPositions);
            points -= LatePenaltyLimit;
        }
        complete<IsFirst>(letter, places, points, previous);
    }

    /// Completes the placements that have \p letter at one of \p places, each on the first letters that follow.
    template <bool IsFirst>
    void complete(std::size_t letter, Set places, int points, const Set& previous)
    {
        if (isLast(letter)) {
            if (!places.empty()) {
                offer(points + mostPoints<IsFirst>(places, previous, Set::none()));
            }
            return;
        }
        // Those with nothing of the next letter between them go on in the same way.
        const Set& nextPlaces = where(letter + 1);
        while (!places.empty()) {
            const Set next = (nextPlaces & places.allAboveLowest()).lowest();
            if (next.empty()) {
                return;
            }
            const Set group = places & next.allBelowLowest();
            places = places - group;
            follow(letter + 1, points + mostPoints<IsFirst>(group, previous, next) + wordStartPoints(next), next);
        }
    }

    /// The most that a letter at one of \p places brings, with what it brings the next letter at \p next.
    template <bool IsFirst>
    int mostPoints(const Set& places, const Set& previous, const Set& next) const
    {
        const Set starts = places & m_block.wordStarts();
        const Set beforeNext = places & next.previous();
        const int start = WordStartBonus * count(starts);
        const int before = AdjacentBonus * count(beforeNext) + WordStartBonus * count(beforeNext & starts);
        if constexpr (IsFirst) {
            return std::max(start, before);
        } else {
            const Set behindPrevious = places & previous.next();
            const int both = AdjacentBonus * count(behindPrevious & beforeNext);
            const int behind = AdjacentBonus * count(behindPrevious) + WordStartBonus * count(behindPrevious & starts);
            return std::max(start, std::max(before, behind) + both);
        }
    }
    static int count(const Set& set) { return set.empty() ? 0 : 1; }

    /// Completes one placement, which has \p letter at \p place: from there on everything comes as early as it can.
    void follow(std::size_t letter, int points, Set place)
    {
        while (!(place == m_first[letter])) {
            if (isLast(letter)) {
                offer(points);
                return;
            }
            ++letter;
            const Set next = (where(letter) & place.allAboveLowest()).lowest();
            if (next.empty()) {
                return;
            }
            points += wordStartPoints(next) + adjacentPoints(next, place);
            place = next;
        }
        offer(points + firstPointsBehind(letter));
    }

    const Set& where(std::size_t letter) const { return m_places[m_query.indices[letter]]; }
    bool isLast(std::size_t letter) const { return letter + 1 == m_query.letters.size(); }
    int wordStartPoints(const Set& place) const { return WordStartBonus * count(place & m_block.wordStarts()); }
    static int adjacentPoints(const Set& place, const Set& previous)
    {
        return AdjacentBonus * count(place & previous.next());
    }

    const FtsQuery& m_query;
    const TextBlock<Chunks>& m_block;
    int m_best = 0;
    int m_branches = BranchLimit;
    std::array<Set, TextBlock<Chunks>::Capacity> m_first; // the first path
    int m_firstPoints = 0; // what it brings, the place of its first letter apart
    std::array<int, SummedLetters> m_pointsUpTo{}; // what its first letters bring
    Set m_laterAdjacent; // of its other letters, those that follow the one before
    Set m_laterWordStarts; // and those that start a word
    std::array<Set, 256> m_places; // of the distinct letters
};

} // namespace search::fts
