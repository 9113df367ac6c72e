#include "Sections.h"
#include "Suggest.h"

#include <axes/AxesCombinationManager.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

const QString SectionKey = u"Axes combinations"_s;
const QString XKey = u"X"_s;
const QString YKey = u"Y1/Y2"_s;
const QStringList PlotDefaultKeys{u"DEFAULT_SCALE_X"_s, u"DEFAULT_SCALE_Y"_s, u"ORTHONORMAL_AXIS"_s};
const QString NameKey = u"Name"_s;
const QString CategoryKey = u"Category"_s;

const QString Refuses = u"the application refuses the document"_s;

/// An element of "X" or "Y1/Y2", with the categories of the arrays that it names.
struct Reference
{
    Value place;
    QString name;
    QString category;
    QStringList categories;
};

std::vector<Reference> readReferences(const Value& entry, const QString& key, const Catalogue& catalogue)
{
    std::vector<Reference> references;
    const std::optional<Value> list = entry.member(key);
    if (list && list->isArray()) {
        list->forEach([&](const Value& element) {
            const QString name = element.text(NameKey);
            const QString category = element.text(CategoryKey);
            QStringList categories = catalogue.categoriesOf(name);
            if (!category.isEmpty()) {
                categories = catalogue.has(name, category) ? QStringList{category} : QStringList();
            }
            references.push_back({element, name, category, categories});
        });
    }
    return references;
}

/// Adds a finding if \p reference names no array. \p step is when the loader looks at it.
void checkReference(const Reference& reference, const Catalogue& catalogue, qint64 step, Findings& findings)
{
    if (!reference.categories.isEmpty()) {
        return;
    }
    const bool isRead = step != Findings::NeverRead;
    const Value place = reference.place.member(NameKey).value_or(reference.place);
    if (reference.category.isEmpty()) {
        if (!reference.name.isEmpty()) {
            catalogue.checkName(findings, place, reference.name, Severity::Warning, u"it adds nothing"_s);
        }
        return;
    }
    const Severity severity = isRead ? Severity::Error : Severity::Warning;
    const QString effect = isRead ? Refuses : u"it adds nothing"_s;
    if (catalogue.hasCategory(reference.category)) {
        catalogue.checkNameIn(reference.category, findings, place, reference.name, severity, effect, step);
    } else {
        findings.add(
            Rule::UnknownCategory, severity, reference.place.member(CategoryKey).value_or(reference.place),
            [&] { return catalogue.unknownCategoryMessage(reference.category, effect); }, {}, step);
    }
}

/// The categories that \p reference would stand for if its author corrected what makes the loader refuse it.
QSet<QString> intendedCategories(const Reference& reference)
{
    if (reference.categories.isEmpty() && !reference.category.isEmpty()) {
        return {reference.category};
    }
    return {reference.categories.begin(), reference.categories.end()};
}

/// When the loader looks at what, if nothing is refused before: an X reference; at the first of them also every Y
/// reference; at the first pair also the scales and the flag.
class ReadingSteps
{
public:
    ReadingSteps(const std::vector<Reference>& xs, const std::vector<Reference>& ys)
        : m_ys(std::ssize(ys))
    {
        QSet<QString> yCategories;
        for (const Reference& y : ys) {
            yCategories.unite(intendedCategories(y));
        }
        for (size_t i = 0; i < xs.size(); ++i) {
            const QSet<QString> xCategories = intendedCategories(xs[i]);
            if (yCategories.intersects(xCategories)) {
                size_t j = 0;
                while (!xCategories.intersects(intendedCategories(ys[j]))) {
                    ++j;
                }
                m_firstPair = ofY(static_cast<qint64>(i), static_cast<qint64>(j)) + 1;
                return;
            }
        }
    }

    qint64 ofX(qint64 x) const { return 1 + 2 * x * (m_ys + 1); }
    qint64 ofY(qint64 x, qint64 y) const { return ofX(x) + 2 * (y + 1); }
    /// Never if there is no pair.
    qint64 ofPlotDefaults() const { return m_firstPair; }

private:
    qint64 m_ys;
    qint64 m_firstPair = Findings::NeverRead;
};

/// Which entry of the section paired two arrays first.
class Pairings
{
public:
    /// Looks at the combinations that the manager got from \p entry, its entry number \p number; adds a finding if
    /// other entries, or the entry itself, have given some of them before.
    void add(const AxesCombinationManager& manager, const Value& entry, qsizetype number, Findings& findings)
    {
        const QList<AxesCombination>& all = manager.getAxesCombinations();
        qsizetype repeated = 0;
        QString example;
        qsizetype firstNumber = 0;
        const qsizetype from = m_seen;
        for (; m_seen < all.size(); ++m_seen) {
            const QString pairing = all.at(m_seen).getDataStreamCombination().toString();
            const auto earlier = m_firstEntries.constFind(pairing);
            if (earlier == m_firstEntries.constEnd()) {
                m_firstEntries.insert(pairing, number);
            } else if (repeated++ == 0) {
                example = quoted(all.at(m_seen).getConfigX().getName()) + u" and "_s
                    + quoted(all.at(m_seen).getConfigY().getName());
                firstNumber = *earlier;
            }
        }
        if (repeated > 0) {
            const QString where =
                firstNumber == number ? u"in this entry itself"_s : u"at /Axes combinations/%1"_s.arg(firstNumber);
            findings.add(Rule::RepeatedCombination, Severity::Warning, entry, [&] {
                return u"%1 of the %2 pairs of this entry have been paired before, such as %3 %4: the scales given "
                       "there count. Remove them from one of the two."_s.arg(
                           QString::number(repeated), QString::number(all.size() - from), example, where);
            });
        }
    }

private:
    QHash<QString, qsizetype> m_firstEntries;
    qsizetype m_seen = 0;
};

bool namesNothing(const std::vector<Reference>& references)
{
    return std::all_of(references.begin(), references.end(),
                       [](const Reference& each) { return each.categories.isEmpty(); });
}

QJsonArray withoutUnknown(const std::vector<Reference>& references)
{
    QJsonArray known;
    for (const Reference& each : references) {
        if (!each.categories.isEmpty()) {
            known.append(each.place.json());
        }
    }
    return known;
}

/// \p entry as it would be if its author corrected what makes the loader refuse it, so that one mistake is not followed
/// by complaints about everything that needs the entry.
QJsonObject withoutMistakes(const Value& entry, const std::vector<Reference>& xs, const std::vector<Reference>& ys)
{
    QJsonObject corrected = entry.json().toObject();
    corrected.insert(XKey, withoutUnknown(xs));
    corrected.insert(YKey, withoutUnknown(ys));
    for (const QString& key : PlotDefaultKeys) {
        corrected.insert(key, u"LINEAR"_s); // any word will do
    }
    return corrected;
}

/// Adds the findings about \p entry, and returns it without mistakes.
QJsonObject checkEntry(const Value& entry, const Catalogue& catalogue, Findings& findings)
{
    const std::vector<Reference> xs = readReferences(entry, XKey, catalogue);
    const std::vector<Reference> ys = readReferences(entry, YKey, catalogue);
    const ReadingSteps steps(xs, ys);
    for (const QString& key : PlotDefaultKeys) {
        findings.setStep(entry, key, steps.ofPlotDefaults());
    }
    for (size_t i = 0; i < xs.size(); ++i) {
        checkReference(xs[i], catalogue, steps.ofX(static_cast<qint64>(i)), findings);
    }
    for (size_t j = 0; j < ys.size(); ++j) {
        const bool isRead = !xs.empty();
        checkReference(ys[j], catalogue, isRead ? steps.ofY(0, static_cast<qint64>(j)) : Findings::NeverRead, findings);
    }
    const auto isRefused = [](const Reference& each) { return each.categories.isEmpty() && !each.category.isEmpty(); };
    if (steps.ofPlotDefaults() == Findings::NeverRead && std::none_of(xs.begin(), xs.end(), isRefused)
        && std::none_of(ys.begin(), ys.end(), isRefused)) {
        findings.add(Rule::NoCombination, Severity::Warning, entry, [&] {
            const QString why = namesNothing(xs) ? u"\"X\" names no array"_s
                : namesNothing(ys)               ? u"\"Y1/Y2\" names no array"_s
                                                 : u"no X array has the category of a Y array"_s;
            return u"The entry pairs no arrays, because %1: it offers nothing to plot. Name arrays of one category in "
                   "both."_s.arg(why);
        });
    }
    return withoutMistakes(entry, xs, ys);
}

} // namespace

void checkAxesCombinations(const Value& root, const Catalogue& catalogue, AxesCombinationManager& manager,
                           Findings& findings)
{
    const std::optional<Value> section = root.member(SectionKey);
    if (!section || !section->isArray()) {
        return;
    }
    Pairings pairings;
    qsizetype number = 0;
    section->forEach([&](const Value& entry) {
        if (entry.isObject()) {
            QString error;
            manager.readAxesCombination(checkEntry(entry, catalogue, findings), error);
            pairings.add(manager, entry, number, findings);
        }
        ++number;
    });
}

} // namespace cluiconfig::check
