#pragma once

#include "Document.h"

#include <QJsonObject>
#include <QString>

/// \file StructureMessages.h
/// What to tell people about values that violate the JSON Schema. Each takes the value, or the object that lacks a key,
/// and the schema of the violated keyword with its annotations "x-refused" and "x-effect".

namespace cluiconfig::check {

/// Whether \p schema says that the application refuses a document that violates \p keyword.
bool isRefused(const QJsonObject& schema, const QString& keyword);

QString wrongTypeMessage(const Value& value, const QJsonObject& schema, bool isError);
QString missingKeyMessage(const QString& key, const QJsonObject& schema, bool isError);
/// \p member of \p object, whose schema is \p schema.
QString unknownKeyMessage(const Value& member, const QJsonObject& object, const QJsonObject& schema);
QString unknownWordMessage(const Value& value, const QJsonObject& schema);
QString emptyTextMessage(const Value& value, const QJsonObject& schema, bool isError);
QString wrongLengthMessage(const Value& value, const QJsonObject& schema);
QString outOfRangeMessage(const Value& value, const QJsonObject& schema);
QString wrongVersionMessage(const Value& value, const QJsonObject& schema);

} // namespace cluiconfig::check
