#pragma once

#include <clconfigui_export.h>
#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

#include <QList>

/// Narrows the units that the data-storage library knows to those that the user interface offers.
class CLCONFIGUI_EXPORT UIFilteredUnits
{
public:
    /// The units of \p parameter, in the converter's order, of which every component may be shown: one of 60 unit
    /// types, and for a time that is not the first component only the second and the hour. A unit whose fourth
    /// component is such a time is dropped too. Empty for a parameter without units. Callable from any thread.
    static QList<cl::datastorage::UsualUnit> getFilteredUnits(const cl::datastorage::PhysicalParameter& parameter);
};
