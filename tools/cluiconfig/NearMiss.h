#pragma once

#include <QString>
#include <QStringList>

namespace cluiconfig {

/// The names in \p known, at most three and best first, that somebody who wrote \p name may have meant: those at a
/// small edit distance, upper and lower case being the same; where there is none, those that contain the letters in
/// their order.
QStringList nearMisses(const QString& name, const QStringList& known);

/// ` Did you mean "A" or "B"?`, to follow a sentence; empty when nothing in \p known is near \p name.
QString didYouMean(const QString& name, const QStringList& known);

} // namespace cluiconfig
