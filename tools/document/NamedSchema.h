#pragma once

#include <QJsonObject>

namespace cl::batterydata {
class ClConfigDataArrayManager;
}

namespace cluiconfig {

/// The JSON Schema \p schema with the names of \p catalogue at the places that its annotation "x-names" marks: there,
/// editors complete the names of arrays and categories, and only those are valid.
QJsonObject namedSchema(const QJsonObject& schema, const cl::batterydata::ClConfigDataArrayManager& catalogue);

} // namespace cluiconfig
