#pragma once

#include <QString>
#include <QStringList>

namespace cluiconfig {

/// Up to \p most of \p known that contain the letters of \p name in their order, best first.
QStringList abbreviated(const QString& name, const QStringList& known, int most);

/// ` Did you mean "A"?` for a name that somebody typed on the command line: with what the check would suggest or, where
/// nothing is near, with up to three names that contain the letters in their order. Empty when there is none either.
QString didYouMean(const QString& name, const QStringList& known);

} // namespace cluiconfig
