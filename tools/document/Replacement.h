#pragma once

#include <QString>

class QSaveFile;

namespace cluiconfig {

/// What QSaveFile leaves out before a new file takes the place of an old one: gives \p file the owner, the group and
/// all permissions of the file whose place it will take, if there is one, and waits until its content is on the disk.
/// What fails here gives false with the reason in \p error; then \p file must not be committed.
///
/// REQUIRES: \p file is open, without a buffer, and has been written.
bool prepareReplacement(QSaveFile& file, QString& error);

/// Has the new file \p file take its place; what fails gives false with the reason in \p error.
bool commitReplacement(QSaveFile& file, QString& error);

} // namespace cluiconfig
