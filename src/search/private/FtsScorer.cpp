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

/// The same exploration in a text of at most 64 * Words bytes, with sets of positions: the places of a letter are found
/// together, counted together and, once no branches are left, completed together where they lead to the same.
template <int Words>
class BlockExploration
{
public:
    BlockExploration(std::string_view letters, std::string_view text)
        : m_letters(letters)
        , m_text(text)
        , m_block(text)
    {
    }

    std::optional<int> score()
    {
        if (!findFirstPath()) {
            return std::nullopt;
        }
        m_best = pointsOf(0, m_first[0], nowhere) + pointsBehind(m_first[0]);
        explore(0, where(0), 0, nowhere);
        return static_cast<int>(commonPoints(m_text.size(), m_letters.size())) + m_best;
    }

private:
    using Set = PositionSet<Words>;

    static constexpr int nowhere = -2; // a position that none follows
    static constexpr int fullPenaltyFrom = latePenaltyLimit / latePenalty;

    bool findFirstPath()
    {
        Set path = Set::none();
        std::size_t next = 0;
        for (std::size_t letter = 0; letter < m_letters.size(); ++letter) {
            const std::size_t at = find(letter, next);
            if (at == m_text.size()) {
                return false;
            }
            m_first[letter] = static_cast<unsigned char>(at);
            path.add(1, at);
            next = at + 1;
        }
        m_firstAdjacent = path & path.next();
        m_firstWordStarts = path & m_block.wordStarts();
        return true;
    }

    /// What the first path brings behind \p position, one of its own.
    int pointsBehind(int position) const
    {
        return adjacentBonus * m_firstAdjacent.above(position).count()
            + wordStartBonus * m_firstWordStarts.above(position).count();
    }

    int pointsOf(std::size_t letter, int position, int previous) const
    {
        return (letter == 0 ? latePoints(position) : 0) + (position == 0 ? firstPositionBonus : 0)
            + adjacentPoints(position, previous) + wordStartPoints(position);
    }

    void offer(int points) { m_best = std::max(m_best, points); }

    /// Tries \p letter at \p places, behind \p previous and after letters that have brought \p points.
    /// REQUIRES: there are branches left, so that letter is below branchLimit.
    void explore(std::size_t letter, Set places, int points, int previous)
    {
        const int count = places.count();
        if (count > m_branches + 1) {
            places = places.first(m_branches + 1);
        }
        m_branches -= std::min(count, m_branches);
        while (m_branches > 0 && !isLast(letter)) {
            places = places.below(where(letter + 1).highest()); // from the others no way leads on
            if (places.empty()) {
                return;
            }
            const int at = places.highest();
            places.remove(at);
            explore(letter + 1, where(letter + 1).above(at), points + pointsOf(letter, at, previous), at);
        }
        if (letter == 0) {
            completeEarly(places.below(fullPenaltyFrom));
            places = places.above(fullPenaltyFrom - 1);
            points -= latePenaltyLimit;
        }
        complete(letter, places, points, previous);
    }

    /// Completes the placements whose first letter is at one of \p places.
    void completeEarly(Set places)
    {
        for (; !places.empty(); places.remove(places.lowest())) {
            const int at = places.lowest();
            follow(1, pointsOf(0, at, nowhere), at);
        }
    }

    /// Completes the placements that have \p letter at one of \p places, each on the first letters that follow.
    void complete(std::size_t letter, const Set& places, int points, int previous)
    {
        if (places.empty()) {
            return;
        }
        if (isLast(letter)) {
            offer(points + mostPoints(places, previous, nowhere));
            return;
        }
        // Before the place where the first path has the next letter, that place comes next, and the rest of the path.
        const int join = m_first[letter + 1];
        const Set joining = places.below(join);
        if (!joining.empty()) {
            offer(points + mostPoints(joining, previous, join) + wordStartPoints(join) + pointsBehind(join));
        }
        for (Set others = places.above(join - 1); !others.empty(); others.remove(others.lowest())) {
            const int at = others.lowest();
            follow(letter + 1, points + wordStartPoints(at) + adjacentPoints(at, previous), at);
        }
    }

    /// The most that a letter at one of \p places brings, with what it brings the next letter at \p next.
    int mostPoints(const Set& places, int previous, int next) const
    {
        int most = (places & m_block.wordStarts()).empty() ? 0 : wordStartBonus;
        for (const int at : {previous + 1, next - 1}) {
            if (at >= 0 && places.contains(at)) {
                most = std::max(most, wordStartPoints(at) + adjacentPoints(at, previous) + adjacentPoints(next, at));
            }
        }
        return most;
    }

    /// Completes one placement: from \p letter on everything comes as early as it can.
    void follow(std::size_t letter, int points, int previous)
    {
        for (; letter < m_letters.size(); ++letter) {
            const int join = m_first[letter];
            if (previous < join) {
                offer(points + wordStartPoints(join) + adjacentPoints(join, previous) + pointsBehind(join));
                return;
            }
            const std::size_t at = find(letter, static_cast<std::size_t>(previous) + 1);
            if (at == m_text.size()) {
                return;
            }
            points += wordStartPoints(static_cast<int>(at)) + adjacentPoints(static_cast<int>(at), previous);
            previous = static_cast<int>(at);
        }
        offer(points);
    }

    std::size_t find(std::size_t letter, std::size_t from)
    {
        if (letter <= branchLimit) {
            const Set places = from == 0 ? where(letter) : where(letter).above(static_cast<int>(from) - 1);
            return places.empty() ? m_text.size() : static_cast<std::size_t>(places.lowest());
        }
        while (from < m_text.size() && toLower(m_text[from]) != letterAt(letter)) {
            ++from;
        }
        return from;
    }

    /// REQUIRES: letter is at most branchLimit.
    const Set& where(std::size_t letter)
    {
        for (; m_known <= letter; ++m_known) {
            m_where[m_known] = m_block.where(letterAt(m_known));
        }
        return m_where[letter];
    }

    bool isLast(std::size_t letter) const { return letter + 1 == m_letters.size(); }
    unsigned char letterAt(std::size_t letter) const { return static_cast<unsigned char>(m_letters[letter]); }
    int wordStartPoints(int position) const { return m_block.wordStarts().contains(position) ? wordStartBonus : 0; }
    static int adjacentPoints(int position, int previous) { return position == previous + 1 ? adjacentBonus : 0; }

    std::string_view m_letters;
    std::string_view m_text;
    TextBlock<Words> m_block;
    int m_best = 0;
    int m_branches = branchLimit;
    std::array<unsigned char, longestQuery> m_first; // the positions of the first path
    Set m_firstAdjacent; // those that follow the one before
    Set m_firstWordStarts; // those that start a word
    std::array<Set, branchLimit + 1> m_where; // the places of the letters up to m_known
    std::size_t m_known = 0;
};

} // namespace

FtsScorer::FtsScorer(std::string_view query)
    : m_letters(toLower(query))
{
}

std::optional<int> FtsScorer::score(std::string_view text) const
{
    text = text.substr(0, text.find('\0'));
    if (text.size() < m_letters.size()) {
        return std::nullopt;
    }
    if (text.size() <= PositionSet<1>::capacity) {
        return BlockExploration<1>(m_letters, text).score();
    }
    if (text.size() <= PositionSet<2>::capacity) {
        return BlockExploration<2>(m_letters, text).score();
    }
    return LongTextExploration(m_letters, text).score();
}

} // namespace search
