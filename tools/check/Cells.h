#pragma once

#include <QString>
#include <QStringList>

namespace cluiconfig::check {

/// How many cells of a terminal \p text takes: two for each sign that East Asian type sets wide and most emoji, none
/// for marks on the sign before. REQUIRES: everything in it can be seen.
qsizetype cellCount(QStringView text);

/// The parts of \p text between which a line may end: those between blanks, with a unit kept at its slash ("/ V").
QStringList words(const QString& text);

/// \p text in lines of at most \p cells, at least one. A word that takes more is cut.
QStringList wrapped(const QString& text, qsizetype cells);

} // namespace cluiconfig::check
