#include "EditDistance.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace cluiconfig {

qsizetype editDistance(const QString& a, const QString& b)
{
    const auto width = static_cast<std::size_t>(b.size()) + 1;
    std::vector<qsizetype> beforeLast(width);
    std::vector<qsizetype> last(width);
    std::vector<qsizetype> row(width);
    std::iota(row.begin(), row.end(), qsizetype{0});
    for (qsizetype i = 1; i <= a.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto column = static_cast<std::size_t>(j);
            const qsizetype replaced = last[column - 1] + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            row[column] = std::min({replaced, last[column] + 1, row[column - 1] + 1});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1)) {
                row[column] = std::min(row[column], beforeLast[column - 2] + 1);
            }
        }
    }
    return row.back();
}

} // namespace cluiconfig
