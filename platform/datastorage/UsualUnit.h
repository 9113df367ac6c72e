#pragma once

#include <datastorage/Units.h>

namespace cl::datastorage {

/// A unit of up to four unit types joined by up to three operators, such as V, mAh/g or mWh/g/h.
///
/// A plain value: components that are not used hold type None, and equality compares all seven parts as they stand, so
/// a unit built by the compound constructor from one type and nothing else equals the unit of that type.
class UsualUnit
{
public:
    /// No unit: the first component is of type None as well.
    constexpr UsualUnit() = default;

    /// A unit of one component.
    constexpr explicit UsualUnit(UsualUnitType unit)
        : m_unit1(unit)
    {
    }

    /// A compound unit. Components that it does not have are given as None, each with the operator before it.
    constexpr UsualUnit(UsualUnitType unit1, UsualUnitOperator operator1, UsualUnitType unit2,
                        UsualUnitOperator operator2 = UsualUnitOperator::None,
                        UsualUnitType unit3 = UsualUnitType::None,
                        UsualUnitOperator operator3 = UsualUnitOperator::None,
                        UsualUnitType unit4 = UsualUnitType::None)
        : m_unit1(unit1)
        , m_unit2(unit2)
        , m_unit3(unit3)
        , m_unit4(unit4)
        , m_operator1(operator1)
        , m_operator2(operator2)
        , m_operator3(operator3)
    {
    }

    /// \{
    /// The type of a component; None for one that the unit does not have.
    constexpr UsualUnitType getUnit1() const { return m_unit1; }
    constexpr UsualUnitType getUnit2() const { return m_unit2; }
    constexpr UsualUnitType getUnit3() const { return m_unit3; }
    constexpr UsualUnitType getUnit4() const { return m_unit4; }
    /// \}

    /// \{
    /// Whether there is a second (third, fourth) component, that is one of another type than None.
    constexpr bool hasUnit2() const { return m_unit2 != UsualUnitType::None; }
    constexpr bool hasUnit3() const { return m_unit3 != UsualUnitType::None; }
    constexpr bool hasUnit4() const { return m_unit4 != UsualUnitType::None; }
    /// \}

    /// The operator before the second component.
    constexpr UsualUnitOperator getOperator() const { return m_operator1; }
    /// The operator before the third component.
    constexpr UsualUnitOperator getOperator2() const { return m_operator2; }
    /// The operator before the fourth component.
    constexpr UsualUnitOperator getOperator3() const { return m_operator3; }

    /// Whether all four types and all three operators are the same. Units that only mean the same (1 Ah/kg = 1 mAh/g)
    /// are different.
    constexpr bool operator==(const UsualUnit& other) const = default;

private:
    UsualUnitType m_unit1 = UsualUnitType::None;
    UsualUnitType m_unit2 = UsualUnitType::None;
    UsualUnitType m_unit3 = UsualUnitType::None;
    UsualUnitType m_unit4 = UsualUnitType::None;
    UsualUnitOperator m_operator1 = UsualUnitOperator::None;
    UsualUnitOperator m_operator2 = UsualUnitOperator::None;
    UsualUnitOperator m_operator3 = UsualUnitOperator::None;
};

} // namespace cl::datastorage
