#pragma once

#include "Document.h"

#include <check/Suggest.h>

#include <QJsonObject>
#include <QString>

/// \file StructureMessages.h
/// What to tell people about values that violate the JSON Schema. Each takes the value, or the object that lacks a key,
/// the schema of the violated keyword with its annotation "x-effect", and what to say if the application refuses the
/// value: an empty text if it does not.

namespace cluiconfig::check {

QString wrongTypeMessage(const Value& value, const QJsonObject& schema, const QString& refusal);
QString missingKeyMessage(const QString& key, const QJsonObject& schema, const QString& refusal);
/// The keys that \p object, whose schema is \p schema, lacks and that somebody who wrote \p key may have meant.
QStringList keysMeantBy(const QString& key, const QJsonObject& object, const QJsonObject& schema);
/// \p key of an object, with those that may be meant.
Advice unknownKeyMessage(const QString& key, const QStringList& meant, const QJsonObject& schema);
/// \p word is a text or a key; \p schema is that of the words.
Advice unknownWordMessage(const QString& word, const QJsonObject& schema, const QString& refusal);
QString emptyTextMessage(const Value& value, const QJsonObject& schema, const QString& refusal);
QString wrongLengthMessage(const Value& value, const QJsonObject& schema, const QString& refusal);
QString outOfRangeMessage(const Value& value, const QJsonObject& schema);
QString wrongVersionMessage(const Value& value, const QJsonObject& schema, const QString& refusal);

} // namespace cluiconfig::check
