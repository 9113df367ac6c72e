#pragma once

#include "DenseGraph.h"

#include <datastorage/DataArrayIdentifier.h>
#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

#include <QList>
#include <QString>

#include <optional>

namespace cluiedit {

/// What a data array of the catalogue measures.
struct Quantity
{
    cl::datastorage::DataArrayIdentifier array;
    cl::datastorage::PhysicalParameter parameter = cl::datastorage::PhysicalParameter::None;
    cl::datastorage::UsualUnit unit; ///< Of the values; without components where they have none.
};

/// Nothing if the process's catalogue lacks \p array.
std::optional<Quantity> quantityOf(const cl::datastorage::DataArrayIdentifier& array);

/// The name without the unit at its end, however that is spelt: "Voltage" of "Voltage / V".
QString nameWithoutUnit(const Quantity& quantity);

/// "Voltage / mV": the name and the unit that is shown.
QString label(const Quantity& quantity, const cl::datastorage::UsualUnit& unit);

/// The units in which the quantity may be shown: those that the user interface offers, and its own.
QList<cl::datastorage::UsualUnit> unitsOf(const Quantity& quantity);

/// How values convert; nothing unless both units measure the same. The same unit, if it is none, converts.
std::optional<UnitScale> unitScale(const cl::datastorage::UsualUnit& from, const cl::datastorage::UsualUnit& to);

/// "3.7 V": \p value, which has the unit \p from, in the unit \p to.
QString valueText(double value, const cl::datastorage::UsualUnit& from, const cl::datastorage::UsualUnit& to);

} // namespace cluiedit
