#include "Suggest.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr qsizetype LongestQuotation = 80;
constexpr qsizetype LongestText = 200; // beyond, nobody looks for a slip

/// How many letters are to be inserted, deleted, replaced or swapped with their neighbour to turn \p a into \p b. Takes
/// time in proportion to the product of the lengths.
qsizetype editDistance(const QString& a, const QString& b)
{
    const auto width = static_cast<size_t>(b.size()) + 1;
    std::vector<qsizetype> beforeLast(width);
    std::vector<qsizetype> last(width);
    std::vector<qsizetype> row(width);
    std::iota(row.begin(), row.end(), qsizetype{0});
    for (qsizetype i = 1; i <= a.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto column = static_cast<size_t>(j);
            const qsizetype replaced = last[column - 1] + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            row[column] = std::min({replaced, last[column] + 1, row[column - 1] + 1});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1)) {
                row[column] = std::min(row[column], beforeLast[column - 2] + 1);
            }
        }
    }
    return row.back();
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

QString alternatives(const QStringList& names)
{
    QStringList others;
    for (const QString& name : names) {
        others.append(quoted(name));
    }
    const QString last = others.takeLast();
    return others.isEmpty() ? last : others.join(u", "_s) + u" or "_s + last;
}

QString quoted(const QString& text)
{
    const QString shown = text.size() > LongestQuotation ? text.first(LongestQuotation) + u'…' : text;
    return u'"' + shown + u'"';
}

} // namespace cluiconfig::check
