#pragma once

#include <QByteArray>

namespace cluiconfig::check {

/// The JSON Schemas of the document and of the catalogue, as they are installed.
QByteArray documentSchema();
QByteArray catalogueSchema();

} // namespace cluiconfig::check
