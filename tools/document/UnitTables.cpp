#include "UnitTables.h"

#include <config/UIFilteredUnits.h>
#include <datastorage/Converter.h>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cl::datastorage::UsualUnitType;

namespace cluiconfig {

namespace {

bool isTime(UsualUnitType type)
{
    return Converter::getPhysicalParameterFromUnits(UsualUnit(type))
        == Converter::getPhysicalParameterFromString(u"Time"_s);
}

/// Whether the user interface shows the type as a unit by itself.
bool isShown(UsualUnitType type)
{
    const UsualUnit unit(type);
    return UIFilteredUnits::getFilteredUnits(Converter::getPhysicalParameterFromUnits(unit)).contains(unit);
}

QString reasonAgainst(UsualUnitType type, bool isFirst)
{
    if (!isFirst && isTime(type)) {
        return type == UsualUnitType::Second || type == UsualUnitType::Hour
            ? QString()
            : u"%1 stands behind an operator: of the times only s and h may"_s.arg(Converter::toString(type));
    }
    return isShown(type) ? QString() : u"%1 is not among the units that may be shown"_s.arg(Converter::toString(type));
}

} // namespace

QString reasonAgainst(const UsualUnit& unit)
{
    using Part = std::pair<bool, UsualUnitType>;
    const std::array parts{Part{true, unit.getUnit1()}, Part{unit.hasUnit2(), unit.getUnit2()},
                           Part{unit.hasUnit3(), unit.getUnit3()}, Part{unit.hasUnit4(), unit.getUnit4()}};
    for (const auto& [isThere, type] : parts) {
        QString reason = isThere ? reasonAgainst(type, &type == &parts.front().second) : QString();
        if (!reason.isEmpty()) {
            return reason;
        }
    }
    return u"%1 is a time at the fourth place"_s.arg(Converter::toString(unit.getUnit4()));
}

Table parametersTable()
{
    Table table{.name = u"Physical parameters"_s, .columns = {u"Parameter"_s, u"Units"_s, u"Shown"_s}};
    const QStringList names = Converter::getPhysicalParameterNames();
    for (const QString& name : names) {
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromString(name);
        table.rows.append({name, Converter::getAvailableUnits(parameter).size(),
                           UIFilteredUnits::getFilteredUnits(parameter).size()});
    }
    return table;
}

Table unitsTable(PhysicalParameter parameter)
{
    const QList<UsualUnit> shown = UIFilteredUnits::getFilteredUnits(parameter);
    Table table{.name = u"Units of %1"_s.arg(Converter::toString(parameter)),
                .columns = {u"Unit"_s, u"Shown"_s, u"Why not"_s}};
    const QList<UsualUnit> units = Converter::getAvailableUnits(parameter);
    for (const UsualUnit& unit : units) {
        const bool isOffered = shown.contains(unit);
        table.rows.append({Converter::toString(unit), isOffered, isOffered ? QString() : reasonAgainst(unit)});
    }
    return table;
}

} // namespace cluiconfig
