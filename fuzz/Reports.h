#pragma once

#include <check/Check.h>

#include <QByteArray>

namespace fuzz {

/// Requires that \p report, of \p text, has an error exactly if that is refused, and then first; that its places lie in
/// the text; and that it can be read in each of its forms.
void requireSound(const cluiconfig::check::Report& report, const QByteArray& text);

} // namespace fuzz
