#pragma once

#include <QByteArray>
#include <QString>

namespace cluiconfig::check {

/// \p text as one line for people, on which everything can be seen: control characters, line breaks, what turns the
/// direction of writing or has no width, and halves of surrogate pairs are shown as JSON escapes them ("\u001b").
/// Combining marks stay.
QString printable(const QString& text);

/// \p json, which Qt has written, with the halves of surrogate pairs as people see them: as the text "\ud800". Qt
/// escapes them and nothing else in this way. Their escapes are JSON, but what they stand for is no text, and many
/// parsers refuse it.
QByteArray withHalvesAsText(const QByteArray& json);

} // namespace cluiconfig::check
