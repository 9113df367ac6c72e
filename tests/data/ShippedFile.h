#pragma once

#include <datastorage/JsonUtils.h>

#include <QByteArray>
#include <QFile>
#include <QJsonObject>
#include <QString>

#include <gtest/gtest.h>

/// The path of a file in data/.
inline QString shippedPath(const QString& name)
{
    return QStringLiteral(SHIPPED_DATA_DIRECTORY "/") + name;
}

/// The object that a file in data/ holds.
inline QJsonObject shippedObject(const QString& name)
{
    QString error;
    QJsonObject root;
    EXPECT_TRUE(cl::datastorage::JsonUtils::openJsonDocument(shippedPath(name), error, root)) << error.toStdString();
    return root;
}

/// The bytes of a file in data/.
inline QByteArray shippedBytes(const QString& name)
{
    QFile file(shippedPath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.errorString().toStdString();
    return file.readAll();
}
