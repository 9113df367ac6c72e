#pragma once

#include "Commands.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <optional>

namespace cluiconfig {

/// How many colours the reader of the output can show.
enum class ColorDepth {
    None, ///< Not a terminal, a terminal without colours, or the user wants none.
    Palette, ///< The 256 colours that terminals number.
    TrueColor, ///< Any colour.
};

/// Whether \p file is a terminal.
bool isTerminal(std::FILE* file);

/// What standard output can show: nothing unless it is a terminal, nor where NO_COLOR is set to anything. COLORTERM
/// says whether the terminal takes any colour.
ColorDepth colorDepth();

/// How many cells a line of standard output has, as COLUMNS says or the terminal itself; nothing when it is no
/// terminal.
std::optional<qsizetype> terminalWidth();

/// To be called first. Bytes are bytes: no translation of line ends. A reader that goes away and a file that grows too
/// large are errors of writing, not signals. No file that is opened later takes the place of a closed stream, where
/// output would go into it.
void prepareStreams();

/// Writes all of \p bytes to standard output, sooner or later. Ends the command with ExitCannotRun when that is not
/// possible; a reader that has gone away is no error.
void print(const QByteArray& bytes);

/// The same with JSON that Qt has written; halves of surrogate pairs are escaped twice, so that texts are texts. A
/// terminal gets texts with everything escaped that cannot be seen.
void printJson(const QByteArray& json);

/// Writes what print() has left, at the end of the program; the same errors.
void printRest();

/// Why the last call of the C library failed.
QString lastError();

/// Ends the command: \p message goes to standard error as a line that can be seen, \p exitCode to the caller of the
/// program.
[[noreturn]] void fail(const QString& message, int exitCode = ExitCannotRun);

} // namespace cluiconfig
