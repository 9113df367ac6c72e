#pragma once

#include <cldatastorage_export.h>
#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

#include <QList>
#include <QString>

#include <optional>

namespace cl::datastorage {

/// What there is to know about units: the names of quantities and operators, the symbols of units, which units measure
/// which quantity, and how values convert.
///
/// All operations are static, read constant tables and may be called from any thread. docs/units.md holds the tables.
class CLDATASTORAGE_EXPORT Converter
{
public:
    Converter() = delete;

    /// The quantity of that name ("Voltage", "Specific charge"), compared exactly and case-sensitively;
    /// PhysicalParameter::None for an unknown name.
    static PhysicalParameter getPhysicalParameterFromString(const QString& name);
    /// The operator of that name ("Multiply", "Divide"), compared exactly and case-sensitively;
    /// UsualUnitOperator::None for an unknown name.
    static UsualUnitOperator getOperatorFromString(const QString& name);
    /// The unit that toString() writes as \p symbol ("mAh/g", "Ω·cm²"), of up to four known unit types; nothing for any
    /// other text. The empty text is the unit without components.
    static std::optional<UsualUnit> getUnitFromString(const QString& symbol);

    /// The name that getPhysicalParameterFromString() maps to \p parameter; empty for a number that is no enumerator.
    static QString toString(PhysicalParameter parameter);
    /// The name that getOperatorFromString() maps to \p op; empty for a number that is no enumerator.
    static QString toString(UsualUnitOperator op);
    /// The symbol of a unit type ("mAh"); empty for None and for a number that is no enumerator.
    static QString toString(UsualUnitType type);
    /// The symbol of a unit, its components joined by "·" and "/"; empty for a unit without components.
    static QString toString(const UsualUnit& unit);

    /// The names of all quantities in the order of their numbers, None first.
    static QList<QString> getPhysicalParameterNames();
    /// The names of all operators in the order of their numbers, None first.
    static QList<QString> getOperatorNames();

    /// Every unit offered for \p parameter: single units in the order of their types, then compound ones. Empty for
    /// None and for a number that is no enumerator. The list is ready-made and shared: a call does not allocate.
    static QList<UsualUnit> getAvailableUnits(const PhysicalParameter& parameter);

    /// The quantity that \p unit measures. A compound unit need not be an offered one: it measures what the offered
    /// units do whose components measure the same quantities and are joined by the same operators. None if there is no
    /// such unit, and for the unit without components.
    static PhysicalParameter getPhysicalParameterFromUnits(const UsualUnit& unit);

    /// \p value, given in \p from, expressed in \p to; nothing unless both measure the same quantity. Temperatures that
    /// are units by themselves convert with their zero points, as parts of a compound unit they are differences.
    static std::optional<double> convert(double value, const UsualUnit& from, const UsualUnit& to);
};

} // namespace cl::datastorage
