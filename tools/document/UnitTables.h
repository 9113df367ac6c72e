#pragma once

#include "Table.h"

#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

#include <QString>

namespace cluiconfig {

/// The physical parameters, each with the number of its units and of those that the user interface shows.
Table parametersTable();

/// The units of \p parameter, whether the user interface shows them, and why not.
Table unitsTable(cl::datastorage::PhysicalParameter parameter);

/// Why the user interface does not show \p unit, by its first component that is in the way.
///
/// REQUIRES: it does not.
QString reasonAgainst(const cl::datastorage::UsualUnit& unit);

} // namespace cluiconfig
