#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

/// Makes the file \p path, or makes it anew, with these bytes.
inline void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// What the file \p path holds.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}
