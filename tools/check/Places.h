#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

class QJsonObject;

namespace cluiconfig::check {

/// Where in \p text, which Qt has read as \p root, the value at the JSON pointer \p pointer begins, in bytes; or what
/// is there of it: the object or array in which it would stand.
///
/// REQUIRES: \p text has fewer than 4 GiB.
qsizetype offsetOf(const QByteArray& text, const QJsonObject& root, const QString& pointer);

} // namespace cluiconfig::check
