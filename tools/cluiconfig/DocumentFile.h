#pragma once

#include <QJsonObject>
#include <QString>

class UIConfig;

namespace cluiconfig {

/// The path of the document that comes with the program.
constexpr auto ShippedDocument = ":/cluiconfig/UIConfig.json";

/// Ends the command with ExitCannotRun and one sentence unless \p path is a file that can be opened for reading. What
/// is not a regular file is refused without being opened: reading a pipe may never end.
void requireReadableFile(const QString& path);

/// Loads \p path into \p config as the application does. Ends the command with the loader's sentence when it does not
/// load (ExitRefused), and without asking it for a pipe or a device (ExitCannotRun).
///
/// REQUIRES: nothing has been loaded into \p config before.
void loadDocument(const QString& path, UIConfig& config);

/// The document itself, for what the configuration does not tell. Ends the command when it cannot be opened
/// (ExitRefused).
///
/// REQUIRES: loadDocument() has loaded it.
QJsonObject openDocument(const QString& path);

} // namespace cluiconfig
