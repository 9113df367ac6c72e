#pragma once

#include "Columns.h"
#include "Picks.h"
#include "Pyramid.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace cluiedit {

/// Goes along a curve and reduces what lies in one column without leaving it: to the first and the last point, the
/// lowest and the highest. A block that lies in one column is not looked into.
class Walk
{
public:
    /// Ends when there are more than \p most points. Points in view are not reduced when \p isWhole.
    ///
    /// REQUIRES: \p curve and \p columns outlive the walk.
    Walk(const Pyramid& curve, Columns& columns, std::size_t most, bool isWhole = false)
        : m_curve(curve)
        , m_columns(columns)
        , m_most(most)
        , m_isWhole(isWhole)
    {
    }

    void visitAll();
    /// Returns the leaf behind the last one.
    std::size_t visitLeaves(std::size_t begin, std::size_t end);

    bool hasTooMany() const { return m_picks.size() > m_most; }
    std::vector<Pick> takePicks() { return std::move(m_picks); }
    std::size_t inView() const { return m_inView; }
    bool hasAllInView() const { return m_inView == m_pickedInView; }

private:
    using Block = Pyramid::Block;

    void visit(std::size_t level, std::size_t index);
    void visitPoints(std::size_t leaf);
    void addToRun(double lowestY, quint32 lowest, double highestY, quint32 highest, quint32 drawable);
    void add(int column, const Block& block, std::size_t begin, std::size_t end);
    void flush();

    const Pyramid& m_curve;
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

} // namespace cluiedit
