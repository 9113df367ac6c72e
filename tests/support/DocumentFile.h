#pragma once

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A file in a temporary directory of its own, both removed at the end of its life.
class DocumentFile
{
public:
    explicit DocumentFile(const QByteArray& bytes) { write(bytes); }
    explicit DocumentFile(const QJsonObject& document) { write(document); }

    QString path() const { return m_directory.filePath(QStringLiteral("document.json")); }
    QString directory() const { return m_directory.path(); }

    /// Replaces what the file holds.
    void write(const QByteArray& bytes) const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path().toStdString();
    }
    void write(const QJsonObject& document) const { write(QJsonDocument(document).toJson()); }

private:
    QTemporaryDir m_directory;
};
