#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <gtest/gtest.h>

/// The object that the JSON text \p text holds.
inline QJsonObject jsonObject(const char* text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    EXPECT_TRUE(document.isObject()) << text;
    return document.object();
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
