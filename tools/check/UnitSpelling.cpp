#include "UnitSpelling.h"

#include <datastorage/Converter.h>

#include <QMultiHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace cluiconfig::check {

namespace {

constexpr qsizetype LongestUnit = 40;
constexpr qsizetype MostFactors = 4;
constexpr qsizetype MostMeant = 3;

/// The letters that every spelling of a unit has in common. Signs that look or mean the same become the same letters:
/// both kinds of µ and of Ω, ² and 2, ℃ and °C.
QString plain(QString text)
{
    static const std::array spellings{
        std::pair{u"μ"_s, u"u"_s},   std::pair{u"Ω"_s, u"ohm"_s}, std::pair{u"Ohm"_s, u"ohm"_s},
        std::pair{u"°"_s, u"deg"_s}, std::pair{u"^"_s, u""_s},
    };
    static const QRegularExpression degrees(u"[º˚]"_s);
    static const QRegularExpression blanks(u"\\s"_s);
    text = text.replace(degrees, u"°"_s).normalized(QString::NormalizationForm_KC).remove(blanks);
    for (const auto& [spelling, letters] : spellings) {
        text.replace(spelling, letters);
    }
    return text;
}

/// The symbols of all unit types by their plain letters in lower case.
QMultiHash<QString, QString> makeSymbols()
{
    QMultiHash<QString, QString> symbols;
    const QStringList names = Converter::getPhysicalParameterNames();
    for (const QString& name : names) {
        const QList<UsualUnit> units = Converter::getAvailableUnits(Converter::getPhysicalParameterFromString(name));
        for (const UsualUnit& unit : units) {
            if (!unit.hasUnit2()) {
                const QString symbol = Converter::toString(unit);
                symbols.insert(plain(symbol).toLower(), symbol);
            }
        }
    }
    return symbols;
}

} // namespace

QStringList meantUnits(const QString& text, PhysicalParameter parameter)
{
    static const QMultiHash<QString, QString> symbols = makeSymbols();
    static const QRegularExpression dots(u"[*×⋅∙•.]"_s);
    static const QRegularExpression beforeSigns(u"(?=[·/])"_s);
    const QString letters = text.size() > LongestUnit ? QString() : plain(text).replace(dots, u"·"_s);
    const QStringList factors = letters.split(beforeSigns);
    if (factors.size() > MostFactors) {
        return {};
    }
    QStringList meant{QString()};
    for (const QString& factor : factors) {
        const QString sign = factor.startsWith(u'·') || factor.startsWith(u'/') ? factor.first(1) : QString();
        const QStringList types = symbols.values(factor.sliced(sign.size()).toLower());
        QStringList longer;
        for (const QString& start : std::as_const(meant)) {
            for (const QString& type : types) {
                longer.append(start + sign + type);
            }
        }
        meant = longer;
    }
    const auto prefer = [&](auto isRight) {
        QStringList right;
        std::ranges::copy_if(std::as_const(meant), std::back_inserter(right), isRight);
        if (!right.isEmpty()) {
            meant = right;
        }
    };
    prefer([&](const QString& unit) { return measuredBy(unit) == parameter; });
    prefer([&](const QString& unit) { return plain(unit) == letters; });
    return meant.first(std::min(meant.size(), MostMeant));
}

PhysicalParameter measuredBy(const QString& symbol)
{
    const std::optional<UsualUnit> unit = Converter::getUnitFromString(symbol);
    return unit ? Converter::getPhysicalParameterFromUnits(*unit) : PhysicalParameter::None;
}

} // namespace cluiconfig::check
