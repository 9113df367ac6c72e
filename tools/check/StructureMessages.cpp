#include "private/StructureMessages.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr auto EffectKey = "x-effect"_L1;
constexpr auto TypeKey = "type"_L1;
constexpr auto EnumKey = "enum"_L1;

QStringList words(const QJsonObject& schema)
{
    QStringList result;
    const QJsonArray values = schema.value(EnumKey).toArray();
    for (const auto& word : values) {
        result.append(word.toString());
    }
    return result;
}

/// What to write: one of a few words, or a value of the type.
QString expected(const QJsonObject& schema)
{
    constexpr qsizetype MostListed = 5;
    const QStringList known = words(schema);
    if (!known.isEmpty() && known.size() <= MostListed) {
        return alternatives(known);
    }
    const QString type = schema.value(TypeKey).toString();
    if (type == "string"_L1) {
        return u"a text in quotes"_s;
    }
    if (type == "array"_L1) {
        return u"an array [ … ]"_s;
    }
    if (type == "object"_L1) {
        return u"an object { … }"_s;
    }
    if (type == "boolean"_L1) {
        return u"true or false, without quotes"_s;
    }
    return type == "integer"_L1 ? u"a whole number"_s : u"a number"_s;
}

/// What the loader makes of a value that has not the type.
QString readingOf(const QString& type)
{
    if (type == "string"_L1) {
        return u"it reads as an empty text"_s;
    }
    if (type == "array"_L1) {
        return u"it reads as an empty list"_s;
    }
    if (type == "object"_L1) {
        return u"it reads as an empty object"_s;
    }
    return type == "boolean"_L1 ? u"it reads as false"_s : u"it reads as 0"_s;
}

QString effect(const QJsonObject& schema, const QString& keyword, const QString& refusal)
{
    if (!refusal.isEmpty()) {
        return refusal;
    }
    const QString given = schema.value(EffectKey).toObject().value(keyword).toString();
    return given.isEmpty() ? readingOf(schema.value(TypeKey).toString()) : given;
}

/// The value as people would call it.
QString shown(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Object:
        return u"an object"_s;
    case QJsonValue::Array:
        return u"an array"_s;
    case QJsonValue::String:
        return u"the text "_s + quoted(value.toString());
    case QJsonValue::Double:
        return u"the number "_s
            + QString::fromLatin1(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact)).chopped(1).sliced(1);
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    default:
        return u"null"_s;
    }
}

/// What to write instead of a text where an object or an array belongs; empty if that cannot be told.
QString meantByText(const QString& text, const QJsonObject& schema)
{
    const QString type = schema.value(TypeKey).toString();
    const QJsonArray required = schema.value("required"_L1).toArray();
    if (text.isEmpty()) {
        return {};
    }
    if (type == "object"_L1 && required.size() == 1) {
        return u"{ %1: %2 }"_s.arg(quoted(required.first().toString()), quoted(text));
    }
    const QColor color(text);
    if (type == "array"_L1 && schema.value("minItems"_L1).toInt() == 3 && color.isValid()) {
        return u"[%1, %2, %3]"_s.arg(color.red()).arg(color.green()).arg(color.blue());
    }
    return {};
}

QString subject(const Value& value)
{
    return value.hasKey() ? quoted(value.key()) : value.isRoot() ? u"The document"_s : u"This element"_s;
}

} // namespace

QString wrongTypeMessage(const Value& value, const QJsonObject& schema, const QString& refusal)
{
    const QString meant = meantByText(value.text(), schema);
    return u"%1 is %2: %3. Write %4."_s.arg(subject(value), shown(value.json()), effect(schema, TypeKey, refusal),
                                            meant.isEmpty() ? expected(schema) : meant);
}

QString missingKeyMessage(const QString& key, const QJsonObject& schema, const QString& refusal)
{
    return u"The key %1 is missing: %2. Add it, with %3."_s.arg(quoted(key), effect(schema, u"missing"_s, refusal),
                                                                expected(schema));
}

QStringList keysMeantBy(const QString& key, const QJsonObject& object, const QJsonObject& schema)
{
    QStringList lacking = schema.value("properties"_L1).toObject().keys();
    lacking.removeIf([&](const QString& each) { return object.contains(each); });
    const QString meant = suggestion(key, lacking);
    if (!meant.isEmpty()) {
        return {meant};
    }
    lacking.removeIf([&](const QString& each) {
        return key.isEmpty()
            || !(key.size() > 2 ? each.contains(key, Qt::CaseInsensitive) : each.startsWith(key, Qt::CaseInsensitive));
    });
    return lacking;
}

Advice unknownKeyMessage(const QString& key, const QStringList& meant, const QJsonObject& schema)
{
    Advice advice = meant.isEmpty() ? Advice(u" Remove it."_s)
        : meant.size() == 1         ? didYouMean(key, meant.first())
                                    : Advice(u" Did you mean %1?"_s.arg(alternatives(meant)));
    const QString given = schema.value(EffectKey).toObject().value("additionalProperties"_L1).toString();
    advice.text = u"The application does not know the key %1 and ignores it%2.%3"_s.arg(
        quoted(key), given.isEmpty() ? QString() : u": "_s + given, advice.text);
    return advice;
}

Advice unknownWordMessage(const QString& word, const QJsonObject& schema, const QString& refusal)
{
    Advice advice = didYouMean(word, words(schema));
    if (advice.text.isEmpty()) {
        const QString command = schema.value("x-listed-by"_L1).toString();
        advice.text = u" Write %1."_s.arg(command.isEmpty() ? expected(schema)
                                                            : u"one of the names that `%1` lists"_s.arg(command));
    }
    advice.text = u"%1 means nothing here: %2.%3"_s.arg(quoted(word), effect(schema, EnumKey, refusal), advice.text);
    return advice;
}

QString emptyTextMessage(const Value& value, const QJsonObject& schema, const QString& refusal)
{
    return u"%1 is empty: %2. Write a text."_s.arg(subject(value), effect(schema, u"minLength"_s, refusal));
}

QString wrongLengthMessage(const Value& value, const QJsonObject& schema, const QString& refusal)
{
    const qsizetype count = value.json().toArray().size();
    return u"%1 has %2: %3. Write %4."_s.arg(subject(value),
                                             u"%1 element%2"_s.arg(count).arg(count == 1 ? u""_s : u"s"_s), refusal,
                                             QString::number(schema.value("minItems"_L1).toInt()));
}

QString outOfRangeMessage(const Value& value, const QJsonObject& schema)
{
    return u"%1 is beyond the range: %2. Write a whole number from %3 to %4."_s.arg(
        shown(value.json()).replace(0, 1, u"T"_s), effect(schema, u"maximum"_s, {}),
        QString::number(schema.value("minimum"_L1).toInt()), QString::number(schema.value("maximum"_L1).toInt()));
}

QString wrongVersionMessage(const Value& value, const QJsonObject& schema, const QString& refusal)
{
    return u"The format version is %1: %2. It reads version %3 only."_s.arg(
        shown(value.json()), refusal, QString::number(schema.value("const"_L1).toInt()));
}

} // namespace cluiconfig::check
