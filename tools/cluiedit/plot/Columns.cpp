#include "Columns.h"

#include <algorithm>
#include <utility>

namespace cluiedit {

Columns::Columns(std::vector<double> edges)
    : m_edges(std::move(edges))
{
}

int Columns::search(double x)
{
    const auto at = static_cast<std::size_t>(m_last);
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

double Columns::narrowest() const
{
    double width = m_edges.back() - m_edges.front();
    for (std::size_t i = 1; i < m_edges.size(); ++i) {
        width = std::min(width, m_edges[i] - m_edges[i - 1]);
    }
    return width;
}

Columns Columns::joined(int most) const
{
    const auto step = static_cast<std::size_t>((count() + most - 1) / most);
    std::vector<double> edges;
    for (std::size_t i = 0; i + 1 < m_edges.size(); i += step) {
        edges.push_back(m_edges[i]);
    }
    edges.push_back(m_edges.back());
    return Columns(std::move(edges));
}

} // namespace cluiedit
