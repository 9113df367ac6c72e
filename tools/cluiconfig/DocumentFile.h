#pragma once

#include <config/Configuration.h>

#include <QString>

namespace cluiconfig {

/// The path of the document that comes with the program.
constexpr auto ShippedDocument = ":/cluiconfig/UIConfig.json";

/// Ends the command with ExitCannotRun and one sentence unless \p path is a file that can be opened for reading. What
/// is not a regular file is refused without being opened: reading a pipe may never end.
void requireReadableFile(const QString& path);

/// Reads what the document \p path gives the application; true on success, otherwise false with the loader's sentence
/// in \p error. Ends the command with ExitCannotRun for a pipe or a device, without reading it.
bool readDocument(const QString& path, uiconfig::Configuration& configuration, QString& error);

/// The same, but ends the command with the loader's sentence when the document does not load (ExitRefused).
uiconfig::Configuration loadDocument(const QString& path);

} // namespace cluiconfig
