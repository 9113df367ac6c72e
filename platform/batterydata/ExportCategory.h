#pragma once

#include <QtGlobal>

namespace cl::batterydata {

/// When a data array goes into an export. The numbers are stored in catalogues' archives.
enum class ExportCategory : qint32 {
    Never = 0, ///< internal bookkeeping of the tester or the application
    OnDemand = 1, ///< only when the user picks it
    Standard = 2, ///< by default; only these arrays may become default axes
    Complete = 3, ///< in exports of everything
};

} // namespace cl::batterydata
