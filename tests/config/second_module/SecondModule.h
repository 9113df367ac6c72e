#pragma once

#include <clconfiguisecondmodule_export.h>

class UIConfig;

namespace cl::batterydata {
class RawDataCollection;
}

/// The one configuration and the one battery data of the process, as another shared library sees them.
CLCONFIGUISECONDMODULE_EXPORT UIConfig& uiConfigOfSecondModule();
CLCONFIGUISECONDMODULE_EXPORT cl::batterydata::RawDataCollection& rawDataCollectionOfSecondModule();
