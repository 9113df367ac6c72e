#include "Suggest.h"
#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <axes/AxesCombinationManager.h>
#include <axes/ConfigRepresentation.h>
#include <base/DocumentKeys.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

/// A Y of a representation that names an array.
struct NamedY
{
    QLatin1StringView key;
    Value place;
    QString name;
};

QStringList commonCategories(const QString& a, const QString& b, const Catalogue& catalogue)
{
    QStringList categories = catalogue.categoriesOf(a);
    categories.removeIf([&](const QString& category) { return !catalogue.has(b, category); });
    return categories;
}

/// What to do so that \p x can be drawn with one of \p ys: pair them, or, if that is not possible, name others.
QString remedy(const QString& x, const std::vector<NamedY>& ys, const Context& with)
{
    for (const NamedY& y : ys) {
        if (!commonCategories(x, y.name, with.catalogue).isEmpty()) {
            return u" Add a pair such as %1 and %2 to \"Axes combinations\"."_s.arg(quoted(x), quoted(y.name));
        }
    }
    constexpr qsizetype MostNamed = 4;
    QStringList paired = with.axes.getYAxesNames(x);
    const qsizetype others = std::max<qsizetype>(0, paired.size() - MostNamed);
    paired.resize(paired.size() - others);
    const QString possible = paired.isEmpty()
        ? u"the entries of \"Axes combinations\" pair that X with nothing."_s
        : u"with that X go %1%2."_s.arg(listed(paired), others > 0 ? u" and %1 more"_s.arg(others) : QString());
    return u" No category holds both %1 and %2, so that they cannot be paired: %3"_s.arg(
        quoted(x), quoted(ys.front().name), possible);
}

/// Adds findings for what of an entry can not be drawn, each Y by itself.
void checkDrawing(const Value& entry, const Context& with)
{
    const QString x = entry.text(keys::X);
    std::vector<NamedY> drawn;
    std::vector<NamedY> missing;
    for (const QLatin1StringView key : {keys::Y1, keys::Y2}) {
        const QString name = entry.text(key);
        if (!with.catalogue.has(x) || (!name.isEmpty() && !with.catalogue.has(name))) {
            return; // that is to be corrected first
        }
        if (!name.isEmpty()) {
            const ConfigRepresentation alone(QString(), x, name, QString(), QString(), false);
            const bool isDrawn = with.axes.isRepresentationValid(&alone);
            (isDrawn ? drawn : missing).push_back({key, *entry.member(key), name});
        }
    }
    if (missing.empty()) {
        return;
    }
    if (drawn.empty()) {
        with.findings.warn(Rule::InvalidRepresentation, entry, [&] {
            return u"No axes combination pairs the X array %1 with a Y array of this representation: it cannot be "
                   "plotted."_s.arg(quoted(x))
                + remedy(x, missing, with);
        });
    } else {
        with.findings.warn(Rule::InvalidRepresentation, missing.front().place, [&] {
            return u"No axes combination pairs the X array %1 with %2: only %3 is drawn."_s.arg(
                       quoted(x), quoted(missing.front().name), quoted(drawn.front().key))
                + remedy(x, missing, with);
        });
    }
}

void checkAxes(const Value& entry, const Context& with)
{
    for (const QLatin1StringView key : {keys::X, keys::Y1, keys::Y2}) {
        const QString name = entry.text(key);
        if (!name.isEmpty() && !with.catalogue.has(name)) {
            with.findings.report(Rule::UnknownArray, *entry.member(key),
                                 [&](bool /*isRefused*/) { return with.catalogue.unknownName(name, Refuses); });
        }
    }
    if (entry.isObject() && entry.text(keys::Y1).isEmpty() && entry.text(keys::Y2).isEmpty()) {
        with.findings.report(Rule::MissingY, entry, [](bool /*isRefused*/) {
            return u"The representation has neither \"Y1\" nor \"Y2\": %1. Name an array for one of them."_s.arg(
                Refuses);
        });
    } else {
        checkDrawing(entry, with);
    }
}

} // namespace

void checkRepresentations(const Value& section, const Context& with)
{
    RepeatedNames names(u"representation"_s, with.findings);
    bool hasDefault = false;
    bool isMeant = false; // by a value of another type
    section.forEach([&](const Value& entry) {
        names.add(entry, keys::Name);
        checkAxes(entry, with);
        const std::optional<Value> isDefault = entry.member(keys::Default);
        if (isDefault && isDefault->json().toBool()) {
            if (hasDefault) {
                with.findings.warn(Rule::SecondDefault, *isDefault, [] {
                    return u"Another representation before this one is the default: this one is not used, but its "
                           "arrays become default axes, too. Leave \"Default\": true at one of them."_s;
                });
            }
            hasDefault = true;
        }
        isMeant = isMeant || (isDefault && !isDefault->json().isBool());
    });
    if (!hasDefault && !isMeant && !section.json().toArray().isEmpty()) {
        with.findings.warnAtKey(Rule::NoDefault, section, [] {
            return u"No representation is the default: nothing is drawn before the user chooses one, and no array "
                   "becomes a default axis. Write \"Default\": true in one of them."_s;
        });
    }
}

} // namespace cluiconfig::check
