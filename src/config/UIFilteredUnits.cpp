#include <config/UIFilteredUnits.h>

#include <datastorage/Converter.h>

#include <algorithm>
#include <array>

using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cl::datastorage::UsualUnitOperator;
using cl::datastorage::UsualUnitType;

namespace {

// By value, because the numbers are what the two libraries have agreed on. The gaps are meant.
constexpr auto AllowedTypes = std::to_array<qint32>(
    {2,   3,   4,   5,   10,  11,  12,  13,  14,  15,  20,  21,  22,  23,  24,  40,  41,  42,   50,   60,
     61,  62,  64,  70,  71,  72,  80,  82,  83,  90,  100, 101, 102, 103, 111, 112, 113, 114,  130,  131,
     132, 135, 140, 141, 142, 143, 144, 145, 146, 147, 150, 151, 160, 161, 170, 180, 190, 1043, 1044, 1045});
static_assert(AllowedTypes.size() == 60 && std::is_sorted(AllowedTypes.begin(), AllowedTypes.end()));

constexpr PhysicalParameter Time{4};
constexpr UsualUnitType NoUnit{0};
constexpr UsualUnitType Second{20};
constexpr UsualUnitType Hour{23};

bool isAllowed(UsualUnitType type)
{
    return std::binary_search(AllowedTypes.begin(), AllowedTypes.end(), static_cast<qint32>(type));
}

bool isTime(UsualUnitType type)
{
    return Converter::getPhysicalParameterFromUnits(UsualUnit(type)) == Time;
}

/// Whether \p type may stand behind an operator.
bool isAllowedAsPart(UsualUnitType type)
{
    return isTime(type) ? type == Second || type == Hour : isAllowed(type);
}

/// \p unit put together again from those of its components that may be shown: equal to it when all of them may.
UsualUnit rebuilt(const UsualUnit& unit)
{
    std::array<UsualUnitType, 4> types{unit.getUnit1(), NoUnit, NoUnit, NoUnit};
    std::array<UsualUnitOperator, 3> operators{};
    if (unit.hasUnit2()) {
        if (isAllowedAsPart(unit.getUnit2())) {
            types[1] = unit.getUnit2();
        }
        operators[0] = unit.getOperator();
    }
    if (unit.hasUnit2() && unit.hasUnit3()) {
        if (isAllowedAsPart(unit.getUnit3())) {
            types[2] = unit.getUnit3();
        }
        operators[1] = unit.getOperator2();
    }
    if (unit.hasUnit2() && unit.hasUnit3() && unit.hasUnit4()) {
        const UsualUnitType fourth = unit.getUnit4();
        if (isAllowedAsPart(fourth)) {
            // A time goes to the third place, not the fourth, so that a unit that ends in one is never offered.
            types[isTime(fourth) ? 2 : 3] = fourth;
        }
        operators[2] = unit.getOperator3();
    }
    return {types[0], operators[0], types[1], operators[1], types[2], operators[2], types[3]};
}

} // namespace

QList<UsualUnit> UIFilteredUnits::getFilteredUnits(const PhysicalParameter& parameter)
{
    QList<UsualUnit> result;
    const QList<UsualUnit> units = Converter::getAvailableUnits(parameter);
    for (const UsualUnit& unit : units) {
        if (isAllowed(unit.getUnit1()) && rebuilt(unit) == unit) {
            result.append(unit);
        }
    }
    return result;
}
