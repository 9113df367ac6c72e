#include "Suggest.h"

#include <EditDistance.h>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr qsizetype LongestQuotation = 80;
constexpr qsizetype LongestText = 200; // beyond, nobody looks for a slip

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
