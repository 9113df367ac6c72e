#pragma once

#include <QtGlobal>

/// \file DataType.h
/// How the values of a data array are stored, and where they come from.

namespace cl::datastorage {

/// The type of one value of a data array.
enum class DataType : qint32 {
    Double = 0,
    Float = 1,
    Integer = 2,
    Boolean = 3,
    Text = 4,
};

/// Where the values of a data array come from.
enum class DataConfigType : qint32 {
    Measured = 0, ///< the tester recorded them
    Computed = 1, ///< the application computes them from other arrays
};

} // namespace cl::datastorage
