#pragma once

#include <clconfiguisecondmodule_export.h>

class AAnalysisItem;
class MSVUnitsCombination;
class UIConfig;

namespace cl::batterydata {
class RawDataCollection;
}

/// The one configuration and the one battery data of the process, as another shared library sees them.
CLCONFIGUISECONDMODULE_EXPORT UIConfig& uiConfigOfSecondModule();
CLCONFIGUISECONDMODULE_EXPORT cl::batterydata::RawDataCollection& rawDataCollectionOfSecondModule();

/// Records of classes that only the second module knows, for others to delete. They differ from the library's in that
/// they count how many of them were deleted.
CLCONFIGUISECONDMODULE_EXPORT AAnalysisItem* newItemOfSecondModule();
CLCONFIGUISECONDMODULE_EXPORT MSVUnitsCombination* newUnitsOfSecondModule();
CLCONFIGUISECONDMODULE_EXPORT int recordsOfSecondModuleDeleted();

/// Deletes a record that somebody else made.
CLCONFIGUISECONDMODULE_EXPORT void deleteInSecondModule(AAnalysisItem* item);
