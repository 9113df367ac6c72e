#pragma once

#include <vector>

namespace cluiedit {

/// The columns of a picture, and in which of them a value lies. Column i reaches from edge i up to, but without, edge
/// i + 1; the last one has its upper edge, too.
class Columns
{
public:
    /// REQUIRES: two ascending edges at least.
    explicit Columns(std::vector<double> edges);

    int count() const { return static_cast<int>(m_edges.size()) - 1; }
    double front() const { return m_edges.front(); }
    double back() const { return m_edges.back(); }

    /// −1 left of all columns, count() right of them. Neighbouring values are fastest.
    int of(double x)
    {
        const auto at = static_cast<std::size_t>(m_last);
        return x >= m_edges[at] && x < m_edges[at + 1] ? m_last : search(x);
    }

    bool isOutside(int column) const { return column < 0 || column >= count(); }

    double narrowest() const;

    /// At most \p most of them: \p most and neighbours taken together.
    Columns joined(int most) const;

private:
    int search(double x);

    std::vector<double> m_edges;
    int m_last = 0; // the column of the last answer
};

} // namespace cluiedit
