#include "FtsScorer.h"

#include "Ascii.h"
#include "BlockExploration.h"
#include "FtsRules.h"
#include "TextBlock.h"

#include <algorithm>
#include <array>

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
        explore(0, 0, 0, Nowhere);
        return m_best.score();
    }

private:
    static constexpr int Nowhere = -2; // a position that none follows

    /// Places the letters from \p letter on at \p from or behind, after those that have brought \p points and of which
    /// the last one is at \p previous, modulo 256.
    void explore(std::size_t letter, std::size_t from, int points, int previous)
    {
        std::array<std::size_t, BranchLimit + 1> places; // NOLINT(cppcoreguidelines-pro-type-member-init)
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
        const int adjacent = position == previous + 1 ? AdjacentBonus : 0;
        if (position == 0) {
            return adjacent + FirstPositionBonus;
        }
        const auto before = static_cast<unsigned char>(m_text[static_cast<std::size_t>(position) - 1]);
        const auto here = static_cast<unsigned char>(m_text[static_cast<std::size_t>(position)]);
        const bool wordStart = isWordGap(before) || (isLower(before) && isUpper(here));
        return adjacent + (wordStart ? WordStartBonus : 0);
    }

    std::string_view m_letters;
    std::string_view m_text;
    BestPlacement m_best;
    int m_branches = BranchLimit;
};

} // namespace

std::string_view ftsQuery(std::string_view query)
{
    query = query.substr(0, query.find('\0'));
    return query.size() <= LongestQuery ? query : std::string_view();
}

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
    if (text.size() < ChunkSize || text.size() > TextBlock<8>::Capacity) {
        text = text.substr(0, text.find('\0'));
    }
    if (text.size() < m_query.letters.size()) {
        return std::nullopt;
    }
    if (text.size() <= TextBlock<4>::Capacity) {
        return scoreBlock<4>(text);
    }
    if (text.size() <= TextBlock<5>::Capacity) {
        return scoreBlock<5>(text);
    }
    if (text.size() <= TextBlock<8>::Capacity) {
        return scoreBlock<8>(text);
    }
    return LongTextExploration(m_query.letters, text).score();
}

template <int Chunks>
std::optional<int> FtsScorer::scoreBlock(std::string_view text) const
{
    const TextBlock<Chunks> block(text);
    if (text.size() >= ChunkSize && !block.where('\0').empty()) {
        return score(text.substr(0, text.find('\0')));
    }
    return BlockExploration<Chunks>(m_query, block).score(text.size());
}

} // namespace search
