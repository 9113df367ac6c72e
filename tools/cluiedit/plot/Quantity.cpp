#include "Quantity.h"

#include <check/UnitSpelling.h>
#include <cluiedit/reading/Catalogue.h>
#include <config/UIFilteredUnits.h>
#include <datastorage/Converter.h>

#include <limits>

using namespace Qt::StringLiterals;

using cl::datastorage::Converter;
using cl::datastorage::DataArrayIdentifier;
using cl::datastorage::UsualUnit;

namespace cluiedit {

std::optional<Quantity> quantityOf(const DataArrayIdentifier& array)
{
    const auto* found = dynamic_cast<const cl::batterydata::ClConfigDataArray*>(
        catalogue().getConfigDataArray(array.getName(), array.getCategory()));
    if (found == nullptr) {
        return std::nullopt;
    }
    return Quantity{array, found->getPhysicalParameter(), found->getUsualUnit()};
}

QString nameWithoutUnit(const Quantity& quantity)
{
    constexpr auto Separator = " / "_L1;
    const QString& name = quantity.array.getName();
    const qsizetype at = name.lastIndexOf(Separator);
    if (at <= 0) {
        return name;
    }
    const QString spelt = name.mid(at + Separator.size()).replace(u' ', u'·'); // "ohm cm2" is Ω·cm²
    const QString symbol = Converter::toString(quantity.unit);
    const bool isUnit = symbol.isEmpty()
        ? spelt == u"1"
        : spelt == symbol || cluiconfig::check::meantUnits(spelt, quantity.parameter).contains(symbol);
    return isUnit ? name.left(at) : name;
}

QString label(const Quantity& quantity, const UsualUnit& unit)
{
    const QString symbol = Converter::toString(unit);
    const QString name = nameWithoutUnit(quantity);
    return symbol.isEmpty() ? name : u"%1 / %2"_s.arg(name, symbol);
}

QList<UsualUnit> unitsOf(const Quantity& quantity)
{
    QList<UsualUnit> units = UIFilteredUnits::getFilteredUnits(quantity.parameter);
    if (!units.contains(quantity.unit)) {
        units.prepend(quantity.unit);
    }
    return units;
}

std::optional<UnitScale> unitScale(const UsualUnit& from, const UsualUnit& to)
{
    if (from == to) {
        return UnitScale{};
    }
    const auto zero = Converter::convert(0, from, to);
    const auto one = Converter::convert(1, from, to);
    if (!zero || !one) {
        return std::nullopt;
    }
    return UnitScale{*one - *zero, *zero};
}

QString valueText(double value, const UsualUnit& from, const UsualUnit& to)
{
    constexpr int Digits = 7;
    const double shown =
        from == to ? value : Converter::convert(value, from, to).value_or(std::numeric_limits<double>::quiet_NaN());
    const QString symbol = Converter::toString(to);
    QLocale locale; // as the axes have it
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString number = locale.toString(shown, 'g', Digits);
    return symbol.isEmpty() ? number : u"%1 %2"_s.arg(number, symbol);
}

} // namespace cluiedit
