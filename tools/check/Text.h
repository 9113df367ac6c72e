#pragma once

#include <QString>

namespace cluiconfig::check {

/// \p text as one line for people, on which everything can be seen: control characters, line breaks, what turns the
/// direction of writing or has no width, and halves of surrogate pairs are shown as JSON escapes them ("\u001b").
/// Combining marks stay.
QString printable(const QString& text);

} // namespace cluiconfig::check
