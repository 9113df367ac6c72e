#include "NearMiss.h"

#include <check/Suggest.h>
#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>

#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr int MostSuggestions = 3;
constexpr qsizetype LongestName = 256; // nobody abbreviates to more

} // namespace

QStringList abbreviated(const QString& name, const QStringList& known, int most)
{
    if (name.size() > LongestName) {
        return {};
    }
    std::vector<std::string> candidates;
    candidates.reserve(static_cast<std::size_t>(known.size()));
    for (const QString& candidate : known) {
        candidates.push_back(candidate.toStdString());
    }
    QStringList names;
    for (const std::size_t index :
         FuzzyFinder::search(name.toStdString(), candidates, most, std::make_unique<FtsStrategy>())) {
        names.append(known.at(static_cast<qsizetype>(index)));
    }
    return names;
}

QString didYouMean(const QString& name, const QStringList& known)
{
    const QString near = check::didYouMean(name, known).text;
    const QStringList names = near.isEmpty() ? abbreviated(name, known, MostSuggestions) : QStringList();
    return names.isEmpty() ? near : u" Did you mean "_s + check::alternatives(names) + u'?';
}

} // namespace cluiconfig
