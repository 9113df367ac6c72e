#pragma once

#include "InputFile.h"

#include <config/Configuration.h>

#include <QString>

#include <string>

namespace cluiconfig {

/// The path of the document that comes with the program.
constexpr auto ShippedDocument = ":/cluiconfig/UIConfig.json";

/// Ends the command with ExitCannotRun and one sentence unless \p file is a file that can be opened for reading. What
/// is not a regular file is refused without being opened: reading a pipe may never end.
void requireReadableFile(const InputFile& file);

/// Reads what the document \p file gives the application; true on success, otherwise false with the loader's sentence
/// in \p error. Ends the command with ExitCannotRun for a pipe or a device, without reading it. The axes combinations,
/// of which a few lines can give millions, are left out unless \p takesAxesCombinations.
bool readDocument(const InputFile& file, uiconfig::Configuration& configuration, QString& error,
                  bool takesAxesCombinations = true);

/// The same with the document that the command line names so, but ends the command with the loader's sentence when the
/// document does not load (ExitRefused).
uiconfig::Configuration loadDocument(const std::string& argument, bool takesAxesCombinations = true);

} // namespace cluiconfig
