#include "Suggest.h"

#include <algorithm>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr qsizetype LongestQuotation = 80;
constexpr qsizetype LongestText = 200; // beyond, nobody looks for a slip

/// Letters inserted, left out, replaced, or swapped with their neighbour, the least that make \p b of \p a.
qsizetype editDistance(const QString& a, const QString& b)
{
    const auto columns = static_cast<size_t>(b.size()) + 1;
    std::vector<qsizetype> beforeLast(columns);
    std::vector<qsizetype> last(columns);
    std::vector<qsizetype> row(columns);
    for (size_t j = 0; j < columns; ++j) {
        last[j] = static_cast<qsizetype>(j);
    }
    for (qsizetype i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (size_t j = 1; j < columns; ++j) {
            const auto at = static_cast<qsizetype>(j);
            const bool isSame = a.at(i - 1) == b.at(at - 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(at - 2) && a.at(i - 2) == b.at(at - 1)) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last.back();
}

} // namespace

QString suggestion(const QString& text, const QStringList& known)
{
    const QString wrong = text.toCaseFolded().simplified();
    if (wrong.isEmpty() || wrong.size() > LongestText) {
        return {};
    }
    const qsizetype most = std::max<qsizetype>(1, wrong.size() / 3);
    qsizetype least = std::numeric_limits<qsizetype>::max();
    QString best;
    for (const QString& candidate : known) {
        if (candidate == text) {
            continue;
        }
        const QString right = candidate.toCaseFolded();
        qsizetype distance = std::numeric_limits<qsizetype>::max();
        if (std::abs(right.size() - wrong.size()) <= most) {
            distance = editDistance(wrong, right);
        }
        if (distance > most && wrong.size() > 2 && right.startsWith(wrong)) {
            distance = most;
        }
        if (distance <= most && distance < least) {
            least = distance;
            best = candidate;
        }
    }
    return best;
}

QString didYouMean(const QString& text, const QStringList& known)
{
    const QString meant = suggestion(text, known);
    return meant.isEmpty() ? QString() : u" Did you mean "_s + quoted(meant) + u'?';
}

QString quoted(const QString& text)
{
    const QString shown = text.size() > LongestQuotation ? text.first(LongestQuotation) + u'…' : text;
    return u'"' + shown + u'"';
}

} // namespace cluiconfig::check
