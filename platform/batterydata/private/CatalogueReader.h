#pragma once

#include <batterydata/ClConfigDataArray.h>

#include <memory>
#include <vector>

class QString;

namespace cl::batterydata {

/// Reads the catalogue file \p path (docs/catalogue.md describes its form) and returns its arrays in \p arrays, in file
/// order; true on success. On failure \p arrays is unspecified and \p error says what is wrong and where.
bool readCatalogueFile(const QString& path, QString& error, std::vector<std::unique_ptr<ClConfigDataArray>>& arrays);

} // namespace cl::batterydata
