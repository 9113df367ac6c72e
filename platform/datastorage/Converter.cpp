#include <datastorage/Converter.h>

#include <datastorage/private/UnitTables.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <cstddef>

namespace cl::datastorage {

namespace {

constexpr int MaxComponents = 4;

// A unit taken apart; the operator of a component stands before it, so the first one has none.
struct Component
{
    UsualUnitOperator op;
    UsualUnitType type;
};
using Components = std::array<Component, MaxComponents>;

constexpr Components componentsOf(const UsualUnit& unit)
{
    return {{{UsualUnitOperator::None, unit.getUnit1()},
             {unit.getOperator(), unit.getUnit2()},
             {unit.getOperator2(), unit.getUnit3()},
             {unit.getOperator3(), unit.getUnit4()}}};
}

constexpr UsualUnit unitOf(const Components& parts)
{
    return {parts[0].type, parts[1].op, parts[1].type, parts[2].op, parts[2].type, parts[3].op, parts[3].type};
}

// The types fill two ranges without holes, so a type's row is a matter of subtraction.
constexpr qint32 FirstLowerType = static_cast<qint32>(UsualUnitType::Kiloampere);
constexpr qint32 LastLowerType = static_cast<qint32>(UsualUnitType::Inch);
constexpr qint32 FirstUpperType = static_cast<qint32>(UsualUnitType::SquareNanometre);
constexpr qint32 LastUpperType = static_cast<qint32>(UsualUnitType::SquareKilometre);
constexpr std::size_t LowerTypes = LastLowerType - FirstLowerType + 1;

constexpr const tables::UnitType* unitTypeOf(UsualUnitType type)
{
    const auto value = static_cast<qint32>(type);
    if (value >= FirstLowerType && value <= LastLowerType) {
        return &tables::UnitTypes[static_cast<std::size_t>(value - FirstLowerType)];
    }
    if (value >= FirstUpperType && value <= LastUpperType) {
        return &tables::UnitTypes[LowerTypes + static_cast<std::size_t>(value - FirstUpperType)];
    }
    return nullptr;
}

static_assert(LowerTypes + LastUpperType - FirstUpperType + 1 == tables::UnitTypes.size());
static_assert(std::ranges::all_of(tables::UnitTypes, [](const auto& row) { return unitTypeOf(row.type) == &row; }),
              "the rows of the unit types must be in the order of their numbers");

constexpr PhysicalParameter parameterOf(UsualUnitType type)
{
    const tables::UnitType* row = unitTypeOf(type);
    return row ? row->parameter : PhysicalParameter::None;
}

QStringView view(std::u16string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

// Whether both units join the same quantities by the same operators.
bool haveSameForm(const UsualUnit& a, const UsualUnit& b)
{
    const Components left = componentsOf(a);
    const Components right = componentsOf(b);
    return std::equal(left.begin(), left.end(), right.begin(), [](const Component& x, const Component& y) {
        return x.op == y.op && parameterOf(x.type) == parameterOf(y.type);
    });
}

QHash<PhysicalParameter, QList<UsualUnit>> makeAvailableUnits()
{
    QHash<PhysicalParameter, QList<UsualUnit>> units;
    for (const tables::UnitType& row : tables::UnitTypes) {
        units[row.parameter].append(UsualUnit(row.type));
    }
    for (const tables::CompoundUnit& row : tables::CompoundUnits) {
        units[row.parameter].append(row.unit);
    }
    return units;
}

QHash<QStringView, UsualUnitType> makeTypesBySymbol()
{
    QHash<QStringView, UsualUnitType> types;
    for (const tables::UnitType& row : tables::UnitTypes) {
        types.insert(view(row.symbol), row.type);
    }
    return types;
}

// Factor to the product of the SI units of all components.
double factorOf(const UsualUnit& unit)
{
    double factor = 1;
    for (const Component& part : componentsOf(unit)) {
        if (const tables::UnitType* row = unitTypeOf(part.type)) {
            factor = part.op == UsualUnitOperator::Divide ? factor / row->factor : factor * row->factor;
        }
    }
    return factor;
}

double zeroOf(const UsualUnit& unit)
{
    const tables::UnitType* row = unit.hasUnit2() ? nullptr : unitTypeOf(unit.getUnit1());
    return row ? row->zero : 0;
}

} // namespace

PhysicalParameter Converter::getPhysicalParameterFromString(const QString& name)
{
    const auto row =
        std::ranges::find_if(tables::Quantities, [&](const auto& each) { return view(each.name) == name; });
    return row == tables::Quantities.end() ? PhysicalParameter::None : row->parameter;
}

UsualUnitOperator Converter::getOperatorFromString(const QString& name)
{
    const auto row = std::ranges::find_if(tables::Operators, [&](const auto& each) { return view(each.name) == name; });
    return row == tables::Operators.end() ? UsualUnitOperator::None : row->op;
}

std::optional<UsualUnit> Converter::getUnitFromString(const QString& symbol)
{
    static const QHash<QStringView, UsualUnitType> typesBySymbol = makeTypesBySymbol();
    if (symbol.isEmpty()) {
        return UsualUnit();
    }
    Components parts{};
    UsualUnitOperator op = UsualUnitOperator::None;
    QStringView rest = symbol;
    for (Component& part : parts) {
        // No symbol of a type holds a sign of an operator, so the next sign ends the component.
        const auto end = std::ranges::find_if(rest, [](QChar c) { return c == u'·' || c == u'/'; });
        const auto type = typesBySymbol.constFind(rest.first(end - rest.begin()));
        if (type == typesBySymbol.constEnd()) {
            return std::nullopt;
        }
        part = {op, *type};
        if (end == rest.end()) {
            return unitOf(parts);
        }
        op = *end == u'/' ? UsualUnitOperator::Divide : UsualUnitOperator::Multiply;
        rest = rest.sliced(end - rest.begin() + 1);
    }
    return std::nullopt;
}

QString Converter::toString(PhysicalParameter parameter)
{
    const auto row = std::ranges::find(tables::Quantities, parameter, &tables::Quantity::parameter);
    return row == tables::Quantities.end() ? QString() : view(row->name).toString();
}

QString Converter::toString(UsualUnitOperator op)
{
    const auto row = std::ranges::find(tables::Operators, op, &tables::Operator::op);
    return row == tables::Operators.end() ? QString() : view(row->name).toString();
}

QString Converter::toString(UsualUnitType type)
{
    const tables::UnitType* row = unitTypeOf(type);
    return row ? view(row->symbol).toString() : QString();
}

QString Converter::toString(const UsualUnit& unit)
{
    QString symbol;
    for (const Component& part : componentsOf(unit)) {
        const tables::UnitType* row = unitTypeOf(part.type);
        const auto op = std::ranges::find(tables::Operators, part.op, &tables::Operator::op);
        if (row && op != tables::Operators.end()) {
            symbol += view(op->sign);
            symbol += view(row->symbol);
        }
    }
    return symbol;
}

QList<QString> Converter::getPhysicalParameterNames()
{
    QList<QString> names;
    names.reserve(static_cast<qsizetype>(tables::Quantities.size()));
    for (const tables::Quantity& row : tables::Quantities) {
        names.append(view(row.name).toString());
    }
    return names;
}

QList<QString> Converter::getOperatorNames()
{
    QList<QString> names;
    names.reserve(static_cast<qsizetype>(tables::Operators.size()));
    for (const tables::Operator& row : tables::Operators) {
        names.append(view(row.name).toString());
    }
    return names;
}

QList<UsualUnit> Converter::getAvailableUnits(const PhysicalParameter& parameter)
{
    static const QHash<PhysicalParameter, QList<UsualUnit>> availableUnits = makeAvailableUnits();
    return availableUnits.value(parameter);
}

PhysicalParameter Converter::getPhysicalParameterFromUnits(const UsualUnit& unit)
{
    if (!unit.hasUnit2()) {
        return parameterOf(unit.getUnit1());
    }
    const auto row =
        std::ranges::find_if(tables::CompoundUnits, [&](const auto& each) { return haveSameForm(each.unit, unit); });
    return row == tables::CompoundUnits.end() ? PhysicalParameter::None : row->parameter;
}

std::optional<double> Converter::convert(double value, const UsualUnit& from, const UsualUnit& to)
{
    const PhysicalParameter parameter = getPhysicalParameterFromUnits(from);
    if (parameter == PhysicalParameter::None || parameter != getPhysicalParameterFromUnits(to)) {
        return std::nullopt;
    }
    return (value * factorOf(from) + zeroOf(from) - zeroOf(to)) / factorOf(to);
}

} // namespace cl::datastorage
