#include "FtsScorer.h"

#include "Ascii.h"
#include "FtsRules.h"
#include "TextBlock.h"

#include <array>
#include <limits>

using namespace search::fts;

namespace search {

namespace {

/// The best of the placements offered so far. A placement is offered with its own points; those that all placements in
/// a text have in common come on top, in 32 bits that wrap.
class BestPlacement
{
public:
    explicit BestPlacement(std::uint32_t common)
        : m_common(common)
    {
    }
    void offer(int points)
    {
        const int score = static_cast<int>(m_common + static_cast<std::uint32_t>(points));
        m_score = m_any ? std::max(m_score, score) : score;
        m_any = true;
    }
    std::optional<int> score() const { return m_any ? std::optional<int>(m_score) : std::nullopt; }

private:
    std::uint32_t m_common;
    int m_score = 0;
    bool m_any = false;
};

/// The exploration in a text of any length, byte by byte. Positions count modulo 256.
class LongTextExploration
{
public:
    LongTextExploration(std::string_view letters, std::string_view text)
        : m_letters(letters)
        , m_text(text)
        , m_best(commonPoints(text.size(), letters.size()))
    {
    }

    std::optional<int> score()
    {
        explore(0, 0, 0, nowhere);
        return m_best.score();
    }

private:
    static constexpr int nowhere = -2; // a position that none follows

    /// Places the letters from \p letter on at \p from or behind, after those that have brought \p points and of which
    /// the last one is at \p previous, modulo 256.
    void explore(std::size_t letter, std::size_t from, int points, int previous)
    {
        std::array<std::size_t, branchLimit + 1> places; // NOLINT(cppcoreguidelines-pro-type-member-init)
        int count = 0;
        for (std::size_t at = find(letter, from); at < m_text.size() && count <= m_branches;
             at = find(letter, at + 1)) {
            places[static_cast<std::size_t>(count++)] = at;
        }
        m_branches -= std::min(count, m_branches);
        while (count > 0) {
            const std::size_t at = places[static_cast<std::size_t>(--count)];
            const int position = static_cast<int>(at % 256);
            const int sum = points + (letter == 0 ? latePoints(position) : 0) + pointsAt(position, previous);
            if (letter + 1 == m_letters.size()) {
                m_best.offer(sum);
            } else {
                explore(letter + 1, at + 1, sum, position);
            }
        }
    }

    std::size_t find(std::size_t letter, std::size_t from) const
    {
        while (from < m_text.size() && toLower(m_text[from]) != static_cast<unsigned char>(m_letters[letter])) {
            ++from;
        }
        return from;
    }

    int pointsAt(int position, int previous) const
    {
        const int adjacent = position == previous + 1 ? adjacentBonus : 0;
        if (position == 0) {
            return adjacent + firstPositionBonus;
        }
        const auto before = static_cast<unsigned char>(m_text[static_cast<std::size_t>(position) - 1]);
        const auto here = static_cast<unsigned char>(m_text[static_cast<std::size_t>(position)]);
        const bool wordStart = isWordGap(before) || (isLower(before) && isUpper(here));
        return adjacent + (wordStart ? wordStartBonus : 0);
    }

    std::string_view m_letters;
    std::string_view m_text;
    BestPlacement m_best;
    int m_branches = branchLimit;
};

/// The same exploration in a text of at most 16 * Chunks bytes, with sets of positions: the places of a letter are
/// found together, counted together and, once no branches are left, completed together where they lead to the same. A
/// branch of the program costs more than all else here whenever it goes another way than the last time, so there are
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

    static constexpr std::uint64_t earlyPositions = (1U << (latePenaltyLimit / latePenalty)) - 1;
    static constexpr std::size_t summedLetters = 4;

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

        const std::size_t summed = std::min(count, summedLetters);
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
        static_assert(wordStartBonus == 2 * adjacentBonus);
        return adjacentBonus * Set::weightedCount(m_laterAdjacent & range, m_laterWordStarts & range);
    }

    /// What the first path brings behind \p letter.
    int firstPointsBehind(std::size_t letter) const
    {
        return letter < summedLetters ? m_firstPoints - m_pointsUpTo[letter]
                                      : laterPoints(m_first[letter].allAboveLowest());
    }

    /// What the first letter brings or costs at \p place for being there, words apart.
    static int startPoints(const Set& place)
    {
        static constexpr std::array<int, 9> points = {latePoints(3), firstPositionBonus, latePoints(1),
                                                      latePoints(3), latePoints(2),      latePoints(3),
                                                      latePoints(3), latePoints(3),      latePoints(3)};
        return points[static_cast<std::size_t>(std::min<std::uint64_t>(place.word(0), 8))];
    }

    void offer(int points) { m_best = std::max(m_best, points); }

    /// Tries \p letter at \p places, behind \p previous and after letters that have brought \p points.
    /// REQUIRES: there are branches left, so that letter is below branchLimit. IsFirst tells whether it is 0.
    template <bool IsFirst>
    void explore(std::size_t letter, Set places, int points, const Set& previous)
    {
        const int count = places.count();
        if (count >= m_branches) {
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
            for (Set early = places & Set(earlyPositions); !early.empty(); early = early - early.lowest()) {
                complete<true>(0, early.lowest(), startPoints(early.lowest()), previous);
            }
            places = places - Set(earlyPositions);
            points -= latePenaltyLimit;
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
        const int start = wordStartBonus * count(starts);
        const int before = adjacentBonus * count(beforeNext) + wordStartBonus * count(beforeNext & starts);
        if constexpr (IsFirst) {
            return std::max(start, before);
        } else {
            const Set behindPrevious = places & previous.next();
            const int both = adjacentBonus * count(behindPrevious & beforeNext);
            const int behind = adjacentBonus * count(behindPrevious) + wordStartBonus * count(behindPrevious & starts);
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
    int wordStartPoints(const Set& place) const { return wordStartBonus * count(place & m_block.wordStarts()); }
    static int adjacentPoints(const Set& place, const Set& previous)
    {
        return adjacentBonus * count(place & previous.next());
    }

    const FtsQuery& m_query;
    const TextBlock<Chunks>& m_block;
    int m_best = 0;
    int m_branches = branchLimit;
    std::array<Set, TextBlock<Chunks>::capacity> m_first; // the first path
    int m_firstPoints = 0; // what it brings, the place of its first letter apart
    std::array<int, summedLetters> m_pointsUpTo{}; // what its first letters bring
    Set m_laterAdjacent; // of its other letters, those that follow the one before
    Set m_laterWordStarts; // and those that start a word
    std::array<Set, 256> m_places; // of the distinct letters
};

} // namespace

FtsScorer::FtsScorer(std::string_view query)
    : m_query{toLower(query), {}, {}}
{
    for (const char letter : m_query.letters) {
        const auto byte = static_cast<unsigned char>(letter);
        const auto known = std::find(m_query.distinct.begin(), m_query.distinct.end(), byte);
        m_query.indices.push_back(static_cast<unsigned char>(known - m_query.distinct.begin()));
        if (known == m_query.distinct.end()) {
            m_query.distinct.push_back(byte);
        }
    }
}

std::optional<int> FtsScorer::score(std::string_view text) const
{
    if (text.size() < chunkSize || text.size() > TextBlock<8>::capacity) {
        text = text.substr(0, text.find('\0'));
    }
    if (text.size() < m_query.letters.size()) {
        return std::nullopt;
    }
    if (text.size() <= TextBlock<4>::capacity) {
        return scoreBlock<4>(text);
    }
    if (text.size() <= TextBlock<5>::capacity) {
        return scoreBlock<5>(text);
    }
    if (text.size() <= TextBlock<8>::capacity) {
        return scoreBlock<8>(text);
    }
    return LongTextExploration(m_query.letters, text).score();
}

template <int Chunks>
std::optional<int> FtsScorer::scoreBlock(std::string_view text) const
{
    const TextBlock<Chunks> block(text);
    if (text.size() >= chunkSize && !block.where('\0').empty()) {
        return score(text.substr(0, text.find('\0')));
    }
    return BlockExploration<Chunks>(m_query, block).score(text.size());
}

} // namespace search
