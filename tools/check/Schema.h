#pragma once

#include <QByteArray>

namespace cluiconfig::check {

/// The JSON Schema of the document, as it is installed.
QByteArray documentSchema();

} // namespace cluiconfig::check
