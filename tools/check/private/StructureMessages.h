#pragma once

#include "Document.h"

#include <QJsonObject>
#include <QString>

/// \file StructureMessages.h
/// What to tell people about values that violate the JSON Schema. Each takes the value, or the object that lacks a key,
/// and the schema of the violated keyword with its annotation "x-effect".

namespace cluiconfig::check {

QString wrongTypeMessage(const Value& value, const QJsonObject& schema, bool isRefused);
QString missingKeyMessage(const QString& key, const QJsonObject& schema, bool isRefused);
/// \p member of \p object, whose schema is \p schema.
QString unknownKeyMessage(const Value& member, const QJsonObject& object, const QJsonObject& schema);
QString unknownWordMessage(const Value& value, const QJsonObject& schema);
QString emptyTextMessage(const Value& value, const QJsonObject& schema, bool isRefused);
QString wrongLengthMessage(const Value& value, const QJsonObject& schema);
QString outOfRangeMessage(const Value& value, const QJsonObject& schema);
QString wrongVersionMessage(const Value& value, const QJsonObject& schema);

} // namespace cluiconfig::check
