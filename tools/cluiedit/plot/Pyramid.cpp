#include "Pyramid.h"

#include <algorithm>
#include <queue>
#include <utility>

namespace cluiedit {

namespace {

void include(Pyramid::Block& block, const Pyramid::Block& other)
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

} // namespace

Pyramid::Pyramid(Values x, Values y, double floorX, double floorY)
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
}

void Pyramid::makeLeaves()
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

void Pyramid::makeLevels()
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
    if (m_bounds.drawable == 0) {
        constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
        m_bounds = {NaN, NaN, NaN, NaN, 0, 0, 0};
    }
}

std::size_t Pyramid::blockSize(std::size_t level)
{
    std::size_t size = LeafSize;
    for (std::size_t i = 0; i < level; ++i) {
        size *= Fanout;
    }
    return size;
}

std::size_t Pyramid::overhead() const
{
    std::size_t bytes = 0;
    for (const auto& level : m_levels) {
        bytes += level.size() * sizeof(Block);
    }
    return bytes;
}

std::size_t Pyramid::firstDrawable(std::size_t begin, std::size_t end) const
{
    while (begin < end && !isDrawable(begin)) {
        const bool isEmptyLeaf = begin % LeafSize == 0 && m_levels.front()[begin / LeafSize].drawable == 0;
        begin += isEmptyLeaf ? LeafSize : 1;
    }
    return begin;
}

std::size_t Pyramid::lastDrawable(std::size_t begin, std::size_t end) const
{
    while (end > begin && !isDrawable(end - 1)) {
        const bool isEmptyLeaf = end % LeafSize == 0 && m_levels.front()[end / LeafSize - 1].drawable == 0;
        end -= isEmptyLeaf ? LeafSize : 1;
    }
    return end - 1;
}

std::size_t Pyramid::nearest(const QPointF& at, const Position& position) const
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

} // namespace cluiedit
