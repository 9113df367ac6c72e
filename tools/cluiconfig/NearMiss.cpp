#include "NearMiss.h"
#include "EditDistance.h"

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr int MostSuggestions = 3;
constexpr qsizetype LongestName = 256; // nobody mistypes a longer one, and the distance costs the square

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
