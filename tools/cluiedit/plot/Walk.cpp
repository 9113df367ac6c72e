#include "Walk.h"

#include <algorithm>
#include <array>

namespace cluiedit {

void Walk::visitAll()
{
    const std::size_t top = m_curve.topLevel();
    for (std::size_t i = 0; i < m_curve.level(top).size() && !hasTooMany(); ++i) {
        visit(top, i);
    }
    flush();
}

std::size_t Walk::visitLeaves(std::size_t begin, std::size_t end)
{
    for (; begin < end && !hasTooMany(); ++begin) {
        visit(0, begin);
    }
    flush();
    return begin;
}

void Walk::visit(std::size_t level, std::size_t index)
{
    const Block& block = m_curve.level(level)[index];
    if (block.drawable == 0) {
        return;
    }
    const int column = m_columns.of(block.lowestX);
    const bool isReduced = !m_isWhole || m_columns.isOutside(column);
    if (isReduced && m_columns.of(block.highestX) == column) {
        const std::size_t size = Pyramid::blockSize(level);
        const std::size_t begin = index * size;
        add(column, block, begin, std::min(begin + size, m_curve.size()));
    } else if (level > 0) {
        const std::size_t end = std::min((index + 1) * Pyramid::Fanout, m_curve.level(level - 1).size());
        for (std::size_t i = index * Pyramid::Fanout; i < end && !hasTooMany(); ++i) {
            visit(level - 1, i);
        }
    } else {
        visitPoints(index);
    }
}

void Walk::visitPoints(std::size_t leaf)
{
    const std::size_t end = std::min((leaf + 1) * Pyramid::LeafSize, m_curve.size());
    for (std::size_t i = leaf * Pyramid::LeafSize; i < end; ++i) {
        if (!m_curve.isDrawable(i)) {
            continue;
        }
        const int column = m_columns.of(m_curve.x(i));
        const auto at = static_cast<quint32>(i);
        const double y = m_curve.y(i);
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

void Walk::addToRun(double lowestY, quint32 lowest, double highestY, quint32 highest, quint32 drawable)
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

void Walk::add(int column, const Block& block, std::size_t begin, std::size_t end)
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

void Walk::flush()
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

} // namespace cluiedit
