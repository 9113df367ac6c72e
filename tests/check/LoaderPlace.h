#pragma once

#include <QJsonObject>
#include <QString>

/// Whether \p pointer, a JSON pointer into \p document, is the place of which the loader's \p message tells: the value
/// that it refuses, something within it, or the object that lacks what it misses. Of places that the same message would
/// fit, the first that the loader reads.
bool isPlaceOf(const QString& message, const QJsonObject& document, const QString& pointer);
