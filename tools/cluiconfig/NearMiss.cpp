#include "NearMiss.h"

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr int MostSuggestions = 3;
constexpr qsizetype LongestName = 256; // nobody mistypes a longer one, and the distance costs the square

/// How many letters are to be inserted, deleted, replaced or swapped with their neighbour to turn \p a into \p b.
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

QStringList mistyped(const QString& name, const QStringList& known)
{
    const QString folded = name.toCaseFolded();
    const qsizetype most = std::max<qsizetype>(1, folded.size() / 4);
    std::vector<std::pair<qsizetype, QString>> near;
    for (const QString& candidate : known) {
        if (candidate.size() <= LongestName && std::abs(candidate.size() - folded.size()) <= most) {
            const qsizetype distance = editDistance(folded, candidate.toCaseFolded());
            if (distance <= most) {
                near.emplace_back(distance, candidate);
            }
        }
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QStringList names;
    for (const auto& [distance, candidate] : near) {
        names.append(candidate);
    }
    return names;
}

QStringList abbreviated(const QString& name, const QStringList& known)
{
    std::vector<std::string> candidates;
    candidates.reserve(static_cast<std::size_t>(known.size()));
    for (const QString& candidate : known) {
        candidates.push_back(candidate.toStdString());
    }
    QStringList names;
    for (const std::size_t index :
         FuzzyFinder::search(name.toStdString(), candidates, MostSuggestions, std::make_unique<FtsStrategy>())) {
        names.append(known.at(static_cast<qsizetype>(index)));
    }
    return names;
}

} // namespace

QStringList nearMisses(const QString& name, const QStringList& known)
{
    if (name.size() > LongestName) {
        return {};
    }
    const QStringList names = mistyped(name, known);
    return names.isEmpty() ? abbreviated(name, known) : names.first(std::min<qsizetype>(names.size(), MostSuggestions));
}

QString didYouMean(const QString& name, const QStringList& known)
{
    QStringList names = nearMisses(name, known);
    if (names.isEmpty()) {
        return {};
    }
    for (QString& near : names) {
        near = u'"' + near + u'"';
    }
    const QString last = names.takeLast();
    return u" Did you mean "_s + (names.isEmpty() ? last : names.join(u", "_s) + u" or "_s + last) + u'?';
}

} // namespace cluiconfig
