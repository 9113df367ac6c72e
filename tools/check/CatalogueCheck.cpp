#include "private/CatalogueCheck.h"

#include "Suggest.h"
#include "UnitSpelling.h"

#include <base/JsonPointer.h>
#include <datastorage/Converter.h>

#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace cluiconfig::check {

namespace {

constexpr auto NameKey = "Name"_L1;
constexpr auto ArraysKey = "Arrays"_L1;
constexpr auto MachineNameKey = "Machine name"_L1;
constexpr auto ParameterKey = "Parameter"_L1;
constexpr auto UnitKey = "Unit"_L1;

constexpr char16_t LastAscii = 0x7F;

/// The key of which the reader complains; empty where it is about the whole entry. What is quoted may be any text.
QString keyIn(const QString& complaint)
{
    if (complaint.startsWith("the unit "_L1)) {
        return UnitKey;
    }
    if (complaint.endsWith(u'"')) {
        return complaint.section(u'"', -2, -2); // "metre" is not known for "Unit"
    }
    return complaint.startsWith(u'"') ? complaint.section(u'"', 1, 1) : QString(); // "Name" is missing or empty
}

/// The quantity that an array names; nothing if what stands there is none.
std::optional<PhysicalParameter> parameterOf(const Value& array)
{
    const std::optional<Value> place = array.member(ParameterKey);
    if (!place) {
        return PhysicalParameter::None;
    }
    const PhysicalParameter parameter = Converter::getPhysicalParameterFromString(place->text());
    return Converter::toString(parameter) == place->text() ? std::optional(parameter) : std::nullopt;
}

QString aUnitOf(PhysicalParameter parameter)
{
    constexpr qsizetype MostListed = 3;
    const QList<UsualUnit> units = Converter::getAvailableUnits(parameter);
    QStringList symbols;
    for (const UsualUnit& unit : units.first(std::min(units.size(), MostListed))) {
        symbols.append(Converter::toString(unit));
    }
    const QString name = Converter::toString(parameter);
    return u"a unit of %1 such as %2; `cluiconfig units %3` lists them"_s.arg(
        name, alternatives(symbols), name.contains(u' ') ? quoted(name) : name);
}

/// ` Did you mean "µV"?`, and where the difference is if nobody can see it.
Advice didYouMeanUnit(const QString& symbol, const QStringList& meant)
{
    const auto seen = [](const QString& text) { return text.normalized(QString::NormalizationForm_KC); };
    const auto codePoint = [](QChar c) { return u"U+%1"_s.arg(c.unicode(), 4, 16, QChar(u'0')).toUpper(); };
    const QString& first = meant.constFirst();
    QString advice = u" Did you mean "_s + alternatives(meant);
    if (first.size() == symbol.size() && seen(first) == seen(symbol)) {
        const auto [right, wrong] = std::ranges::mismatch(first, symbol);
        if (wrong->unicode() > LastAscii) {
            advice += u", with %1 instead of %2"_s.arg(codePoint(*right), codePoint(*wrong));
        }
    }
    return {advice + u'?', meant.size() == 1 ? first : QString()};
}

Advice adviceOnUnit(const QString& symbol, PhysicalParameter parameter)
{
    const QStringList meant = meantUnits(symbol, parameter);
    if (!meant.isEmpty() && !meant.contains(symbol)) {
        return didYouMeanUnit(symbol, meant);
    }
    return parameter == PhysicalParameter::None
        ? u" Leave it out if the values have none; `cluiconfig units` lists the quantities that have."_s
        : u" Write %1."_s.arg(aUnitOf(parameter));
}

Advice wrongUnit(const QString& symbol, PhysicalParameter parameter, const QString& refuses)
{
    const PhysicalParameter measured = measuredBy(symbol);
    const QString quantity = Converter::toString(measured);
    if (parameter == PhysicalParameter::None) {
        return u"The unit %1 measures %2, but the array has no quantity: %3. Write \"Parameter\": \"%2\"."_s.arg(
            quoted(symbol), quantity, refuses);
    }
    const QString what = symbol.isEmpty() ? u"\"Unit\" is empty"_s
        : measured == PhysicalParameter::None
        ? u"The unit %1 measures nothing that the application knows"_s.arg(quoted(symbol))
        : u"The unit %1 measures %2, not %3"_s.arg(quoted(symbol), quantity, Converter::toString(parameter));
    const Advice advice = adviceOnUnit(symbol, parameter);
    return {u"%1: %2.%3"_s.arg(what, refuses, advice.text), advice.instead};
}

/// The unit must measure the quantity, so that one does not go without the other.
void checkUnit(const Value& array, Findings& findings)
{
    const std::optional<PhysicalParameter> parameter = parameterOf(array);
    const std::optional<Value> unit = array.member(UnitKey);
    if (!unit) {
        if (parameter.value_or(PhysicalParameter::None) != PhysicalParameter::None) {
            findings.reportMissing(array, UnitKey, [&](bool /*isRefused*/) {
                return u"The key \"Unit\" is missing: %1. Add it, with %2."_s.arg(findings.refuses(),
                                                                                  aUnitOf(*parameter));
            });
        }
        return;
    }
    const QString symbol = unit->text();
    if (!unit->json().isString()) {
        return;
    }
    if (!Converter::getUnitFromString(symbol)) {
        findings.report(Rule::UnknownUnit, *unit, [&](bool /*isRefused*/) {
            const Advice advice = adviceOnUnit(symbol, parameter.value_or(PhysicalParameter::None));
            return Advice(u"There is no unit %1: %2.%3"_s.arg(quoted(symbol), findings.refuses(), advice.text),
                          advice.instead);
        });
    } else if (parameter && measuredBy(symbol) != *parameter) {
        findings.report(Rule::WrongUnit, *unit,
                        [&](bool /*isRefused*/) { return wrongUnit(symbol, *parameter, findings.refuses()); });
    }
}

/// Finds arrays that stand twice in a category, wherever that is continued.
class ArraysOfCategories
{
public:
    explicit ArraysOfCategories(Findings& findings)
        : m_findings(findings)
    {
    }

    void add(const QString& category, const Value& array)
    {
        if (isRepeated(m_names, category, array.text(NameKey))) {
            m_findings.warn(Rule::RepeatedName, *array.member(NameKey), [&] {
                return u"Another array before this one is called %1 in the category %2: the application takes that one "
                       "and ignores this one. Give it another name, or remove it."_s.arg(quoted(array.text(NameKey)),
                                                                                         quoted(category));
            });
        } else if (isRepeated(m_machineNames, category, array.text(MachineNameKey))) {
            m_findings.warn(Rule::RepeatedName, *array.member(MachineNameKey), [&] {
                return u"Another array before this one has the machine name %1 in the category %2: files that are "
                       "exchanged do not tell them apart. Give this one another."_s.arg(
                           quoted(array.text(MachineNameKey)), quoted(category));
            });
        }
    }

private:
    using Names = QSet<std::pair<QString, QString>>;

    static bool isRepeated(Names& names, const QString& category, const QString& name)
    {
        const qsizetype before = names.size();
        names.insert({category, name});
        return !name.isEmpty() && names.size() == before;
    }

    Findings& m_findings;
    Names m_names;
    Names m_machineNames;
};

void checkArrays(const Value& category, ArraysOfCategories& known, Findings& findings)
{
    const QString name = category.text(NameKey);
    const std::optional<Value> arrays = category.member(ArraysKey);
    if (!arrays || !arrays->isArray()) {
        return;
    }
    if (arrays->json().toArray().isEmpty()) {
        findings.warn(Rule::EmptyCatalogue, *arrays, [&] {
            return u"The category %1 is empty: the application does not know it. Add arrays to it, or remove it."_s.arg(
                quoted(name));
        });
    }
    arrays->forEach([&](const Value& array) {
        if (array.isObject()) {
            checkUnit(array, findings);
            if (!name.isEmpty()) {
                known.add(name, array);
            }
        }
    });
}

} // namespace

QString placeOfRefusal(const QString& sentence, const QString& file)
{
    constexpr auto BeforePlace = " (at "_L1;
    const qsizetype end = sentence.lastIndexOf(BeforePlace);
    if (end < 0 || !sentence.endsWith(u')')) {
        return jsonPointer("Version"_L1); // the one complaint without a place
    }
    const QString entry = sentence.sliced(end + BeforePlace.size()).chopped(1);
    const QString start = u"\"%1\": "_s.arg(file);
    const QString key = sentence.startsWith(start) ? keyIn(sentence.first(end).sliced(start.size())) : QString();
    return key.isEmpty() || key == CategoriesKey ? entry : entry + jsonPointer(key);
}

void checkCategories(const Value& root, Findings& findings)
{
    const std::optional<Value> categories = root.member(CategoriesKey);
    if (!categories || !categories->isArray()) {
        return;
    }
    if (categories->json().toArray().isEmpty()) {
        findings.warn(Rule::EmptyCatalogue, *categories, [] {
            return u"The catalogue is empty: documents cannot name any array. Add categories with arrays."_s;
        });
    }
    QSet<QString> names;
    ArraysOfCategories known(findings);
    categories->forEach([&](const Value& category) {
        const QString name = category.text(NameKey);
        if (names.contains(name) && !name.isEmpty()) {
            findings.warn(Rule::RepeatedCategory, *category.member(NameKey), [&] {
                return u"Another category before this one is called %1: the arrays of both become one category. Write "
                       "these there, or give this one another name."_s.arg(quoted(name));
            });
        }
        names.insert(name);
        checkArrays(category, known, findings);
    });
}

} // namespace cluiconfig::check
