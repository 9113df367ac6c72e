#include "Suggest.h"
#include "private/Sections.h"

#include <axes/AxesCombinationManager.h>
#include <axes/DataStreamCombination.h>
#include <base/DocumentKeys.h>
#include <base/JsonPointer.h>

#include <QHash>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

/// An element of "X" or "Y1/Y2", with the categories of the arrays that it names.
struct Reference
{
    Value place;
    QString name;
    QString category;
    QStringList categories;
};

std::vector<Reference> readReferences(const Value& entry, QLatin1StringView key, const Catalogue& catalogue)
{
    std::vector<Reference> references;
    const std::optional<Value> list = entry.member(key);
    if (list && list->isArray()) {
        list->forEach([&](const Value& element) {
            const QString name = element.text(keys::Name);
            const QString category = element.text(keys::Category);
            QStringList categories = catalogue.categoriesOf(name);
            if (!category.isEmpty()) {
                categories = catalogue.has(name, category) ? QStringList{category} : QStringList();
            }
            references.push_back({element, name, category, categories});
        });
    }
    return references;
}

/// Whether something else than pairing is to be corrected first.
bool waitsForCorrection(const Reference& reference)
{
    return !reference.place.isObject() || (reference.categories.isEmpty() && !reference.category.isEmpty());
}

/// Adds a finding if \p reference names no array.
void checkReference(const Reference& reference, const Context& with)
{
    if (!reference.categories.isEmpty()) {
        return;
    }
    const auto effect = [](bool isRefused) { return isRefused ? Refuses : u"it adds nothing"_s; };
    const Value namePlace = reference.place.member(keys::Name).value_or(reference.place);
    if (reference.category.isEmpty()) {
        if (!reference.name.isEmpty()) {
            with.findings.warn(Rule::UnknownArray, namePlace,
                               [&] { return with.catalogue.unknownName(reference.name, effect(false)); });
        }
    } else if (with.catalogue.hasCategory(reference.category)) {
        with.findings.report(Rule::UnknownArray, namePlace, reference.place, [&](bool isRefused) {
            return with.catalogue.unknownNameIn(reference.category, reference.name, effect(isRefused));
        });
    } else {
        with.findings.report(
            Rule::UnknownCategory, reference.place.member(keys::Category).value_or(reference.place), reference.place,
            [&](bool isRefused) { return with.catalogue.unknownCategory(reference.category, effect(isRefused)); });
    }
}

/// The arrays of one category that a side of an entry names.
struct NamedArrays
{
    QStringList names; ///< each once
    qsizetype count = 0; ///< with the repeated ones
    QString repeated; ///< the first of those

    void add(const QString& name)
    {
        ++count;
        if (!m_known.contains(name)) {
            m_known.insert(name);
            names.append(name);
        } else if (repeated.isEmpty()) {
            repeated = name;
        }
    }

private:
    QSet<QString> m_known;
};

/// What an entry pairs, category by category. A few lines can give millions of pairs: they are counted, and walked
/// through only as far as they differ.
class Pairs
{
public:
    Pairs(const std::vector<Reference>& xs, const std::vector<Reference>& ys)
    {
        for (const Reference& x : xs) {
            for (const QString& category : x.categories) {
                if (!m_sides.contains(category)) {
                    m_categories.append(category);
                }
                m_sides[category].xs.add(x.name);
            }
        }
        for (const Reference& y : ys) {
            for (const QString& category : y.categories) {
                if (const auto sides = m_sides.find(category); sides != m_sides.end()) {
                    sides->ys.add(y.name);
                }
            }
        }
    }

    /// With the repeated ones.
    qsizetype count() const
    {
        qsizetype count = 0;
        for (const Sides& sides : m_sides) {
            count += sides.xs.count * sides.ys.count;
        }
        return count;
    }

    /// Calls \p visit with every pair, each once.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const QString& category : m_categories) {
            const Sides& sides = *m_sides.find(category);
            for (const QString& x : sides.xs.names) {
                for (const QString& y : sides.ys.names) {
                    visit(DataStreamCombination(category, x, category, y));
                }
            }
        }
    }

    /// A pair that the entry itself gives twice, if there is one.
    std::optional<DataStreamCombination> repeated() const
    {
        for (const QString& category : m_categories) {
            const auto& [xs, ys] = *m_sides.find(category);
            if (xs.count * ys.count > xs.names.size() * ys.names.size()) {
                const auto of = [](const NamedArrays& arrays) {
                    return arrays.repeated.isEmpty() ? arrays.names.constFirst() : arrays.repeated;
                };
                return DataStreamCombination(category, of(xs), category, of(ys));
            }
        }
        return std::nullopt;
    }

private:
    struct Sides
    {
        NamedArrays xs;
        NamedArrays ys;
    };

    QStringList m_categories; // in the order of the X
    QHash<QString, Sides> m_sides; // by category
};

/// Which entry of the section paired two arrays first.
class Pairings
{
public:
    explicit Pairings(AxesCombinationManager& axes)
        : m_axes(axes)
    {
    }

    /// Takes the \p pairs of \p entry, number \p number of the section; adds a finding if other entries, or the entry
    /// itself, have given some of them before.
    void add(const Pairs& pairs, const Value& entry, qsizetype number, Findings& findings)
    {
        qsizetype repeated = pairs.count();
        std::optional<DataStreamCombination> example;
        qsizetype firstNumber = number;
        pairs.forEach([&](const DataStreamCombination& pair) {
            const QString key = pair.toString();
            const auto earlier = m_firstEntries.constFind(key);
            if (earlier == m_firstEntries.constEnd()) {
                --repeated;
                m_firstEntries.insert(key, number);
                m_axes.append({{pair.getXName(), pair.getXCategory()},
                               {pair.getYName(), pair.getYCategory()},
                               QCPAxis::stLinear,
                               QCPAxis::stLinear,
                               false});
            } else if (!example) {
                example = pair;
                firstNumber = *earlier;
            }
        });
        if (repeated == 0) {
            return;
        }
        example = example ? example : pairs.repeated();
        findings.warn(Rule::RepeatedCombination, entry, [&] {
            const QString where = firstNumber == number ? u"in this entry itself"_s
                                                        : u"at "_s + jsonPointer(keys::AxesCombinations, firstNumber);
            return u"%1 of the %2 pairs of this entry have been paired before, such as %3 and %4 %5: the scales given "
                   "there count. Remove them from one of the two."_s.arg(
                       QString::number(repeated), QString::number(pairs.count()), quoted(example->getXName()),
                       quoted(example->getYName()), where);
        });
    }

private:
    AxesCombinationManager& m_axes;
    QHash<QString, qsizetype> m_firstEntries;
};

/// Adds a finding if an entry yields more pairs than anybody can choose from.
void checkNumber(qsizetype pairs, const Value& entry, Findings& findings)
{
    constexpr qsizetype Most = 10000;
    if (pairs > Most) {
        findings.warn(Rule::TooManyCombinations, entry, [&] {
            return u"The entry gives %1 pairs, each of its X with each of its Y of the same category: the application "
                   "keeps all of them, and nobody can choose from so many. Name only arrays that belong together."_s
                       .arg(pairs);
        });
    }
}

bool namesNothing(const std::vector<Reference>& references)
{
    return std::all_of(references.begin(), references.end(),
                       [](const Reference& each) { return each.categories.isEmpty(); });
}

/// Adds a finding for each of \p references that has no category in common with any of \p others, which stand under
/// \p otherKey. Nothing is said while one of the others waits to be corrected: it may be the one that is missed.
void checkPairs(const std::vector<Reference>& references, const std::vector<Reference>& others,
                QLatin1StringView otherKey, const Context& with)
{
    QStringList available;
    for (const Reference& other : others) {
        if (other.categories.isEmpty()) {
            return;
        }
        for (const QString& category : other.categories) {
            if (!available.contains(category)) {
                available.append(category);
            }
        }
    }
    const auto isAvailable = [&](const QString& category) { return available.contains(category); };
    for (const Reference& reference : references) {
        if (reference.categories.isEmpty()
            || std::any_of(reference.categories.begin(), reference.categories.end(), isAvailable)) {
            continue;
        }
        const std::optional<Value> category = reference.place.member(keys::Category);
        with.findings.warn(Rule::UnpairedArray, category.value_or(reference.place), [&] {
            QStringList better = with.catalogue.categoriesOf(reference.name);
            better.removeIf([&](const QString& each) { return !isAvailable(each); });
            const QString advice = better.isEmpty()
                ? u"Name an array of %1, or remove it."_s.arg(alternatives(available))
                : u"Write \"Category\": %1."_s.arg(alternatives(better));
            return u"%1 of %2 pairs with nothing, because what \"%3\" names here is of %4: it is not offered. %5"_s.arg(
                quoted(reference.name), alternatives(reference.categories), otherKey, alternatives(available), advice);
        });
    }
}

void checkEntry(const Value& entry, qsizetype number, Pairings& pairings, const Context& with)
{
    const std::vector<Reference> xs = readReferences(entry, keys::X, with.catalogue);
    const std::vector<Reference> ys = readReferences(entry, keys::Y1Y2, with.catalogue);
    for (const std::vector<Reference>* references : {&xs, &ys}) {
        for (const Reference& reference : *references) {
            checkReference(reference, with);
        }
    }
    const Pairs pairs(xs, ys);
    if (pairs.count() > 0) {
        checkPairs(xs, ys, keys::Y1Y2, with);
        checkPairs(ys, xs, keys::X, with);
        checkNumber(pairs.count(), entry, with.findings);
        pairings.add(pairs, entry, number, with.findings);
        return;
    }
    const auto isList = [&](QLatin1StringView key) { return entry.json()[key].isArray(); };
    const bool isComplete = isList(keys::X) && isList(keys::Y1Y2) && std::ranges::none_of(xs, waitsForCorrection)
        && std::ranges::none_of(ys, waitsForCorrection);
    if (isComplete) {
        with.findings.warn(Rule::NoCombination, entry, [&] {
            const QString why = namesNothing(xs) ? u"\"X\" names no array"_s
                : namesNothing(ys)               ? u"\"Y1/Y2\" names no array"_s
                                                 : u"no X array has the category of a Y array"_s;
            return u"The entry pairs no arrays, because %1: it offers nothing to plot. Name arrays of one category in "
                   "both."_s.arg(why);
        });
    }
}

} // namespace

void checkAxesCombinations(const Value& section, const Context& with)
{
    Pairings pairings(with.axes);
    qsizetype number = 0;
    section.forEach([&](const Value& entry) {
        if (entry.isObject()) {
            checkEntry(entry, number, pairings, with);
        }
        ++number;
    });
}

} // namespace cluiconfig::check
