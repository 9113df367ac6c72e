#include "Suggest.h"
#include "private/Sections.h"

#include <axes/AxesCombinations.h>
#include <base/DocumentKeys.h>

#include <QHash>
#include <QJsonObject>

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
        with.findings.report(Rule::UnknownArray, namePlace, reference.place.pointer(), [&](bool isRefused) {
            return with.catalogue.unknownNameIn(reference.category, reference.name, effect(isRefused));
        });
    } else {
        with.findings.report(Rule::UnknownCategory, reference.place.member(keys::Category).value_or(reference.place),
                             reference.place.pointer(), [&](bool isRefused) {
                                 return with.catalogue.unknownCategory(reference.category, effect(isRefused));
                             });
    }
}

/// Which entry of the section paired two arrays first.
class Pairings
{
public:
    /// Looks at the \p combinations that \p entry, number \p number of the section, yields; adds a finding if other
    /// entries, or the entry itself, have given some of them before.
    void add(const QList<AxesCombination>& combinations, const Value& entry, qsizetype number, Findings& findings)
    {
        qsizetype repeated = 0;
        QString example;
        qsizetype firstNumber = 0;
        for (const AxesCombination& combination : combinations) {
            const QString pairing = combination.getDataStreamCombination().toString();
            const auto earlier = m_firstEntries.constFind(pairing);
            if (earlier == m_firstEntries.constEnd()) {
                m_firstEntries.insert(pairing, number);
            } else if (repeated++ == 0) {
                example = quoted(combination.getConfigX().getName()) + u" and "_s
                    + quoted(combination.getConfigY().getName());
                firstNumber = *earlier;
            }
        }
        if (repeated > 0) {
            const QString where = firstNumber == number ? u"in this entry itself"_s
                                                        : u"at "_s + jsonPointer(keys::AxesCombinations, firstNumber);
            findings.warn(Rule::RepeatedCombination, entry, [&] {
                return u"%1 of the %2 pairs of this entry have been paired before, such as %3 %4: the scales given "
                       "there count. Remove them from one of the two."_s.arg(
                           QString::number(repeated), QString::number(combinations.size()), example, where);
            });
        }
    }

private:
    QHash<QString, qsizetype> m_firstEntries;
};

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
        available += other.categories;
    }
    available.removeDuplicates();
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

void checkEntry(const Value& entry, const QList<AxesCombination>& combinations, const Context& with)
{
    const std::vector<Reference> xs = readReferences(entry, keys::X, with.catalogue);
    const std::vector<Reference> ys = readReferences(entry, keys::Y1Y2, with.catalogue);
    for (const std::vector<Reference>& references : {xs, ys}) {
        for (const Reference& reference : references) {
            checkReference(reference, with);
        }
    }
    if (!combinations.isEmpty()) {
        checkPairs(xs, ys, keys::Y1Y2, with);
        checkPairs(ys, xs, keys::X, with);
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
    Pairings pairings;
    qsizetype number = 0;
    section.forEach([&](const Value& entry) {
        if (entry.isObject()) {
            QList<AxesCombination> combinations;
            uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::GoOn);
            uiconfig::readAxesCombination(entry.json().toObject(), number, with.catalogue.arrays(), combinations,
                                          refusals);
            checkEntry(entry, combinations, with);
            pairings.add(combinations, entry, number, with.findings);
        }
        ++number;
    });
}

} // namespace cluiconfig::check
