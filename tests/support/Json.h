#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <gtest/gtest.h>

/// The object that the JSON text \p text holds.
inline QJsonObject jsonObject(const QByteArray& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    EXPECT_TRUE(document.isObject()) << text.constData();
    return document.object();
}

/// The value of any type that the JSON text \p text holds.
inline QJsonValue jsonValue(const QByteArray& text)
{
    return jsonObject("{\"value\": " + text + '}').value(QLatin1StringView("value"));
}

/// One value of every JSON type but \p type. Inserting the undefined one removes the key.
inline QList<QJsonValue> valuesOfOtherTypes(QJsonValue::Type type)
{
    QList<QJsonValue> values{QJsonValue(QJsonValue::Undefined),
                             QJsonValue(QJsonValue::Null),
                             QJsonValue(true),
                             QJsonValue(1.5),
                             QJsonValue(QStringLiteral("text")),
                             QJsonArray{QStringLiteral("text")},
                             jsonObject(R"({"key": "text"})")};
    values.removeIf([type](const QJsonValue& value) { return value.type() == type; });
    return values;
}
