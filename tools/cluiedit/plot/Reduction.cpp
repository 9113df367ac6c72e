#include "Reduction.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <queue>
#include <utility>

namespace cluiedit {

/// The columns of a picture, and in which of them a value lies.
class Reduction::Columns
{
public:
    explicit Columns(std::vector<double> edges)
        : m_edges(std::move(edges))
    {
    }

    int count() const { return static_cast<int>(m_edges.size()) - 1; }
    double front() const { return m_edges.front(); }
    double back() const { return m_edges.back(); }

    /// −1 left of all columns, count() right of them. Neighbouring values are fastest.
    int of(double x)
    {
        const auto at = static_cast<std::size_t>(m_last);
        if (x >= m_edges[at] && x < m_edges[at + 1]) {
            return m_last;
        }
        if (x < m_edges.front()) {
            return -1;
        }
        if (x >= m_edges.back()) {
            return x > m_edges.back() ? count() : count() - 1;
        }
        if (at + 2 < m_edges.size() && x >= m_edges[at + 1] && x < m_edges[at + 2]) {
            return ++m_last;
        }
        if (at > 0 && x >= m_edges[at - 1] && x < m_edges[at]) {
            return --m_last;
        }
        m_last = static_cast<int>(std::upper_bound(m_edges.begin(), m_edges.end(), x) - m_edges.begin()) - 1;
        return m_last;
    }

    bool isOutside(int column) const { return column < 0 || column >= count(); }

    double narrowest() const
    {
        double width = m_edges.back() - m_edges.front();
        for (std::size_t i = 1; i < m_edges.size(); ++i) {
            width = std::min(width, m_edges[i] - m_edges[i - 1]);
        }
        return width;
    }

    /// At most \p most of them: \p most and neighbours taken together.
    Columns joined(int most) const
    {
        const auto step = static_cast<std::size_t>((count() + most - 1) / most);
        std::vector<double> edges;
        for (std::size_t i = 0; i + 1 < m_edges.size(); i += step) {
            edges.push_back(m_edges[i]);
        }
        edges.push_back(m_edges.back());
        return Columns(std::move(edges));
    }

private:
    std::vector<double> m_edges;
    int m_last = 0; // the column of the last answer
};

/// Goes along the curve and reduces what lies in one column without leaving it.
class Reduction::Walk
{
public:
    /// Ends when there are more than \p most points. Points in view are not reduced when \p isWhole.
    Walk(const Reduction& curve, Columns& columns, std::size_t most, bool isWhole = false)
        : m_curve(curve)
        , m_columns(columns)
        , m_most(most)
        , m_isWhole(isWhole)
    {
    }

    void visitAll()
    {
        const std::size_t top = m_curve.m_levels.size() - 1;
        for (std::size_t i = 0; i < m_curve.m_levels[top].size() && !hasTooMany(); ++i) {
            visit(top, i);
        }
        flush();
    }

    /// Returns the leaf behind the last one.
    std::size_t visitLeaves(std::size_t begin, std::size_t end)
    {
        for (; begin < end && !hasTooMany(); ++begin) {
            visit(0, begin);
        }
        flush();
        return begin;
    }

    bool hasTooMany() const { return m_picks.size() > m_most; }
    std::vector<Pick> takePicks() { return std::move(m_picks); }
    std::size_t inView() const { return m_inView; }
    bool hasAllInView() const { return m_inView == m_pickedInView; }

private:
    void visit(std::size_t level, std::size_t index)
    {
        const Block& block = m_curve.m_levels[level][index];
        if (block.drawable == 0) {
            return;
        }
        const int column = m_columns.of(block.lowestX);
        const bool isReduced = !m_isWhole || m_columns.isOutside(column);
        if (isReduced && m_columns.of(block.highestX) == column) {
            const std::size_t size = m_curve.blockSize(level);
            const std::size_t begin = index * size;
            add(column, block, begin, std::min(begin + size, m_curve.m_size));
        } else if (level > 0) {
            const std::size_t end = std::min((index + 1) * Fanout, m_curve.m_levels[level - 1].size());
            for (std::size_t i = index * Fanout; i < end && !hasTooMany(); ++i) {
                visit(level - 1, i);
            }
        } else {
            visitPoints(index);
        }
    }

    void visitPoints(std::size_t leaf)
    {
        const std::size_t end = std::min((leaf + 1) * LeafSize, m_curve.m_size);
        for (std::size_t i = leaf * LeafSize; i < end; ++i) {
            if (!m_curve.isDrawable(i)) {
                continue;
            }
            const int column = m_columns.of(m_curve.m_xs[i]);
            const auto at = static_cast<quint32>(i);
            const double y = m_curve.m_ys[i];
            if (m_run.drawable > 0 && column == m_column) { // as is mostly so, and what costs the time
                addToRun(y, at, y, at, 1);
                m_lastBegin = i;
                m_lastEnd = i + 1;
            } else {
                add(column, Block{.lowestY = y, .highestY = y, .lowest = at, .highest = at, .drawable = 1}, i, i + 1);
            }
            if (m_isWhole && !m_columns.isOutside(column)) {
                flush();
            }
        }
    }

    void addToRun(double lowestY, quint32 lowest, double highestY, quint32 highest, quint32 drawable)
    {
        m_run.drawable += drawable;
        if (lowestY < m_run.lowestY) {
            m_run.lowestY = lowestY;
            m_run.lowest = lowest;
        }
        if (highestY > m_run.highestY) {
            m_run.highestY = highestY;
            m_run.highest = highest;
        }
    }

    void add(int column, const Block& block, std::size_t begin, std::size_t end)
    {
        if (m_run.drawable == 0 || column != m_column) {
            flush();
            m_column = column;
            m_run = block;
            m_first = m_curve.firstDrawable(begin, end);
        } else {
            addToRun(block.lowestY, block.lowest, block.highestY, block.highest, block.drawable);
        }
        m_lastBegin = begin;
        m_lastEnd = end;
    }

    void flush()
    {
        if (m_run.drawable == 0) {
            return;
        }
        const std::size_t last = m_curve.lastDrawable(m_lastBegin, m_lastEnd);
        std::array<std::size_t, 4> kept{m_first, m_run.lowest, m_run.highest, last};
        const bool isOutside = m_columns.isOutside(m_column);
        if (isOutside) {
            kept = {m_first, m_first, last, last};
        }
        std::sort(kept.begin(), kept.end());
        const auto end = std::unique(kept.begin(), kept.end());
        bool isJoined = m_hasLast && m_first == m_last + 1;
        for (auto at = kept.begin(); at != end; ++at) {
            m_picks.push_back({static_cast<quint32>(*at), isJoined});
            isJoined = true;
        }
        if (!isOutside) {
            m_inView += m_run.drawable;
            m_pickedInView += static_cast<std::size_t>(end - kept.begin());
        }
        m_last = last;
        m_hasLast = true;
        m_run.drawable = 0;
    }

    const Reduction& m_curve;
    Columns& m_columns;
    std::size_t m_most;
    bool m_isWhole;

    // Consecutive points in the same column.
    int m_column = 0;
    Block m_run;
    std::size_t m_first = 0;
    std::size_t m_lastBegin = 0;
    std::size_t m_lastEnd = 0;

    bool m_hasLast = false;
    std::size_t m_last = 0;
    std::size_t m_inView = 0;
    std::size_t m_pickedInView = 0;
    std::vector<Pick> m_picks;
};

Reduction::Reduction(Values x, Values y, double floorX, double floorY)
    : m_x(std::move(x))
    , m_y(std::move(y))
    , m_xs(m_x->data())
    , m_ys(m_y->data())
    , m_size(std::min(m_x->size(), m_y->size()))
    , m_floorX(floorX)
    , m_floorY(floorY)
{
    makeLeaves();
    makeLevels();
    if (!m_isSorted) {
        makeBins();
    }
}

void Reduction::makeLeaves()
{
    std::vector<Block> leaves((m_size + LeafSize - 1) / LeafSize);
    double lastX = NoFloor;
    for (std::size_t leaf = 0; leaf < leaves.size(); ++leaf) {
        Block block;
        const std::size_t end = std::min((leaf + 1) * LeafSize, m_size);
        for (std::size_t i = leaf * LeafSize; i < end; ++i) {
            const double x = m_xs[i];
            const double y = m_ys[i];
            if (!isDrawable(i)) {
                m_belowFloor += std::isfinite(x) && std::isfinite(y) ? 1 : 0;
                continue;
            }
            m_isSorted = m_isSorted && x >= lastX;
            lastX = x;
            const auto at = static_cast<quint32>(i);
            include(block, {x, x, y, y, at, at, 1});
        }
        leaves[leaf] = block;
    }
    m_levels.push_back(std::move(leaves));
}

void Reduction::makeLevels()
{
    while (m_levels.back().size() > Fanout) {
        const std::vector<Block>& below = m_levels.back();
        std::vector<Block> level((below.size() + Fanout - 1) / Fanout);
        for (std::size_t i = 0; i < below.size(); ++i) {
            include(level[i / Fanout], below[i]);
        }
        m_levels.push_back(std::move(level));
    }
    for (const Block& block : m_levels.back()) {
        include(m_bounds, block);
    }
    m_drawable = m_bounds.drawable;
    if (m_drawable == 0) {
        constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
        m_bounds = {NaN, NaN, NaN, NaN, 0, 0, 0};
    }
}

void Reduction::makeBins()
{
    constexpr std::size_t PointsForBins = std::size_t{1} << 16U;
    constexpr std::size_t PointsPerBin = 128;
    if (m_drawable < PointsForBins) {
        return;
    }
    const std::size_t count = m_drawable / PointsPerBin;
    const double width = (m_bounds.highestX - m_bounds.lowestX) / static_cast<double>(count);
    if (!std::isnormal(width)) {
        return;
    }
    m_binWidth = width;
    m_bins.resize(count);
    for (std::size_t i = 0; i < m_size; ++i) {
        if (!isDrawable(i)) {
            continue;
        }
        Bin& bin = m_bins[binOf(m_xs[i])];
        if (m_ys[i] < bin.lowestY) {
            bin.lowestY = m_ys[i];
            bin.lowest = static_cast<quint32>(i);
        }
        if (m_ys[i] > bin.highestY) {
            bin.highestY = m_ys[i];
            bin.highest = static_cast<quint32>(i);
        }
    }
}

std::size_t Reduction::binOf(double x) const
{
    return std::min(static_cast<std::size_t>((x - m_bounds.lowestX) / m_binWidth), m_bins.size() - 1);
}

void Reduction::include(Block& block, const Block& other)
{
    if (block.drawable == 0 || other.drawable == 0) {
        block = block.drawable == 0 ? other : block;
        return;
    }
    block.lowestX = std::min(block.lowestX, other.lowestX);
    block.highestX = std::max(block.highestX, other.highestX);
    if (other.lowestY < block.lowestY) {
        block.lowestY = other.lowestY;
        block.lowest = other.lowest;
    }
    if (other.highestY > block.highestY) {
        block.highestY = other.highestY;
        block.highest = other.highest;
    }
    block.drawable += other.drawable;
}

std::size_t Reduction::blockSize(std::size_t level) const
{
    std::size_t size = LeafSize;
    for (std::size_t i = 0; i < level; ++i) {
        size *= Fanout;
    }
    return size;
}

/// Of the points [begin, end), which are one or a whole block. REQUIRES: one can be drawn.
std::size_t Reduction::firstDrawable(std::size_t begin, std::size_t end) const
{
    while (begin < end && !isDrawable(begin)) {
        const bool isEmptyLeaf = begin % LeafSize == 0 && m_levels.front()[begin / LeafSize].drawable == 0;
        begin += isEmptyLeaf ? LeafSize : 1;
    }
    return begin;
}

std::size_t Reduction::lastDrawable(std::size_t begin, std::size_t end) const
{
    while (end > begin && !isDrawable(end - 1)) {
        const bool isEmptyLeaf = end % LeafSize == 0 && m_levels.front()[end / LeafSize - 1].drawable == 0;
        end -= isEmptyLeaf ? LeafSize : 1;
    }
    return end - 1;
}

Reduction::Picks Reduction::picks(std::vector<double> edges, const Amounts& amounts) const
{
    constexpr std::size_t PicksPerColumn = 4;
    constexpr std::size_t Fewest = 16;
    Amounts possible = amounts;
    possible.most = std::max(amounts.most, Fewest);
    possible.whole = std::min(amounts.whole, possible.most);

    Columns columns(std::move(edges));
    Walk walk(*this, columns, possible.most);
    walk.visitAll();
    const std::size_t inView = walk.inView();
    if (!walk.hasTooMany() && inView <= possible.whole) {
        Walk whole(*this, columns, possible.most, true);
        whole.visitAll();
        if (!whole.hasTooMany()) {
            return {.points = whole.takePicks(), .inView = inView, .isWhole = true};
        }
    }
    if (!walk.hasTooMany()) {
        const bool isWhole = walk.hasAllInView();
        return {.points = walk.takePicks(), .inView = inView, .isWhole = isWhole};
    }
    // A column more on either side is for the neighbours.
    const auto mostColumns = static_cast<int>(possible.most / PicksPerColumn) - 2;
    if (m_isSorted && columns.count() > mostColumns) {
        Columns joined = columns.joined(mostColumns);
        Walk wider(*this, joined, possible.most);
        wider.visitAll();
        const std::size_t inJoined = wider.inView();
        return {.points = wider.takePicks(), .inView = inJoined};
    }
    return sampled(columns, possible);
}

bool Reduction::areBinsFineEnough(const Columns& columns) const
{
    return !m_bins.empty() && columns.narrowest() >= m_binWidth;
}

/// The lowest and the highest of each column, by bins that are fine enough.
std::vector<Reduction::Bin> Reduction::extremesOfBins(Columns& columns) const
{
    std::vector<Bin> result(static_cast<std::size_t>(columns.count()));
    constexpr double Rounding = 1e-6; // of points at the bounds of bins
    for (std::size_t i = 0; i < m_bins.size(); ++i) {
        const double left = m_bounds.lowestX + (static_cast<double>(i) - Rounding) * m_binWidth;
        const int last = columns.of(left + (1 + 2 * Rounding) * m_binWidth);
        for (int column = columns.of(left); column <= last; ++column) {
            if (!columns.isOutside(column)) {
                result[static_cast<std::size_t>(column)].include(m_bins[i]);
            }
        }
    }
    return result;
}

/// The same by a look at every point of the blocks in view.
std::vector<Reduction::Bin> Reduction::extremesOfPoints(Columns& columns) const
{
    std::vector<Bin> result(static_cast<std::size_t>(columns.count()));
    forEachInView(columns, [&](std::size_t index, int column) {
        const auto at = static_cast<quint32>(index);
        result[static_cast<std::size_t>(column)].include({m_ys[index], m_ys[index], at, at});
        return true;
    });
    return result;
}

/// Calls \p visit with every point in view and its column, in index order, until it returns false.
template <typename Visit>
void Reduction::forEachInView(Columns& columns, const Visit& visit) const
{
    for (std::size_t leaf = 0; leaf < m_levels.front().size(); ++leaf) {
        const Block& block = m_levels.front()[leaf];
        if (block.drawable == 0 || block.highestX < columns.front() || block.lowestX > columns.back()) {
            continue;
        }
        const std::size_t end = std::min((leaf + 1) * LeafSize, m_size);
        for (std::size_t i = leaf * LeafSize; i < end; ++i) {
            const int column = isDrawable(i) ? columns.of(m_xs[i]) : -1;
            if (!columns.isOutside(column) && !visit(i, column)) {
                return;
            }
        }
    }
}

/// The points between the stretches of a sampled curve: the extremes, or all in view when they are few.
std::vector<quint32> Reduction::lonely(Columns& columns, const Amounts& amounts, std::size_t& inView) const
{
    std::vector<quint32> points;
    inView = 0;
    forEachInView(columns, [&](std::size_t index, int /*column*/) {
        points.push_back(static_cast<quint32>(index));
        return ++inView <= amounts.most / 2;
    });
    if (inView <= amounts.most / 2) {
        return points;
    }
    points.clear();
    for (const Bin& column : areBinsFineEnough(columns) ? extremesOfBins(columns) : extremesOfPoints(columns)) {
        if (column.lowestY <= column.highestY) {
            points.push_back(column.lowest);
            points.push_back(column.highest);
        }
    }
    std::sort(points.begin(), points.end());
    points.erase(std::unique(points.begin(), points.end()), points.end());
    return points;
}

/// Parts of the curve, of at most \p most points: some long ones, at even distances, and short ones all over the curve,
/// so that a curve that repeats itself is not always met at the same place.
std::vector<Reduction::Pick> Reduction::parts(const Columns& columns, std::size_t most) const
{
    constexpr std::size_t LongParts = 4;
    constexpr std::size_t Overrun = LeafSize + 8; // of a walk, which ends behind a block or a leaf
    constexpr double GoldenRatio = 0.618033988749895; // hits upon no period
    const std::size_t leaves = m_levels.front().size();
    std::size_t left = most;
    Columns wider = columns.joined(std::max(1, columns.count() / 2)); // see more of the curve for as many points
    std::map<std::size_t, std::vector<Pick>> parts; // by leaf
    std::vector<bool> isTaken(leaves);
    const auto take = [&](std::size_t begin, std::size_t end, std::size_t mostOfIt) {
        if (left <= Overrun || isTaken[begin]) {
            return;
        }
        Walk walk(*this, wider, std::min(mostOfIt, left - Overrun));
        const std::size_t next = walk.visitLeaves(begin, end);
        std::fill(isTaken.begin() + static_cast<std::ptrdiff_t>(begin),
                  isTaken.begin() + static_cast<std::ptrdiff_t>(next), true);
        auto& picks = parts[begin];
        picks = walk.takePicks();
        left -= picks.size();
    };
    for (std::size_t i = 0; i < LongParts; ++i) {
        take(leaves * i / LongParts, leaves * (i + 1) / LongParts, most / 2 / LongParts);
    }
    for (std::size_t i = 0; i < leaves && left > Overrun; ++i) {
        const auto at =
            static_cast<std::size_t>(std::fmod(static_cast<double>(i) * GoldenRatio, 1) * static_cast<double>(leaves));
        take(at, at + 1, LeafSize);
    }
    std::vector<Pick> result;
    for (const auto& [leaf, picks] : parts) {
        result.insert(result.end(), picks.begin(), picks.end());
    }
    return result;
}

Reduction::Picks Reduction::sampled(Columns& columns, const Amounts& amounts) const
{
    constexpr std::size_t ExtremesPerColumn = 2;
    Columns wider = columns.joined(
        static_cast<int>(std::min(amounts.most / 2 / ExtremesPerColumn, static_cast<std::size_t>(columns.count()))));
    std::size_t inView = 0;
    const std::vector<quint32> extremePoints = lonely(wider, amounts, inView);
    const std::vector<Pick> stretches = parts(columns, amounts.most - extremePoints.size());

    Picks result{.points = {}, .inView = inView, .isSampled = true};
    auto extreme = extremePoints.cbegin();
    for (const Pick& pick : stretches) {
        for (; extreme != extremePoints.cend() && *extreme < pick.index; ++extreme) {
            result.points.push_back({*extreme, pick.isJoined});
        }
        if (extreme != extremePoints.cend() && *extreme == pick.index) {
            ++extreme;
        }
        result.points.push_back(pick);
    }
    for (; extreme != extremePoints.cend(); ++extreme) {
        result.points.push_back({*extreme, false});
    }
    return result;
}

std::size_t Reduction::nearest(const QPointF& at, const Position& position) const
{
    struct Candidate
    {
        double distance;
        std::size_t level;
        std::size_t index;
        bool operator<(const Candidate& other) const { return distance > other.distance; }
    };
    const auto outside = [](double value, double one, double other) {
        const auto [low, high] = std::minmax(one, other);
        return value < low ? low - value : value > high ? value - high : 0;
    };
    std::priority_queue<Candidate> candidates;
    const auto offer = [&](std::size_t level, std::size_t index) {
        const Block& block = m_levels[level][index];
        if (block.drawable > 0) {
            const QPointF one = position(block.lowestX, block.lowestY);
            const QPointF other = position(block.highestX, block.highestY);
            candidates.push(
                {std::hypot(outside(at.x(), one.x(), other.x()), outside(at.y(), one.y(), other.y())), level, index});
        }
    };
    for (std::size_t i = 0; i < m_levels.back().size(); ++i) {
        offer(m_levels.size() - 1, i);
    }
    std::size_t best = m_size;
    double bestDistance = std::numeric_limits<double>::infinity();
    while (!candidates.empty() && (best == m_size || candidates.top().distance < bestDistance)) {
        const Candidate next = candidates.top();
        candidates.pop();
        if (next.level > 0) {
            const std::size_t end = std::min((next.index + 1) * Fanout, m_levels[next.level - 1].size());
            for (std::size_t i = next.index * Fanout; i < end; ++i) {
                offer(next.level - 1, i);
            }
            continue;
        }
        const std::size_t end = std::min((next.index + 1) * LeafSize, m_size);
        for (std::size_t i = next.index * LeafSize; i < end; ++i) {
            if (isDrawable(i)) {
                const QPointF away = position(m_xs[i], m_ys[i]) - at;
                const double distance = std::hypot(away.x(), away.y());
                if (best == m_size || distance < bestDistance) {
                    best = i;
                    bestDistance = distance;
                }
            }
        }
    }
    return best;
}

std::size_t Reduction::overhead() const
{
    std::size_t bytes = m_bins.size() * sizeof(Bin);
    for (const auto& level : m_levels) {
        bytes += level.size() * sizeof(Block);
    }
    return bytes;
}

} // namespace cluiedit
