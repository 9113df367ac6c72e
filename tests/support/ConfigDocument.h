#pragma once

#include <support/TestCatalogue.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

/// \file ConfigDocument.h
/// Configuration documents for tests, and the files that hold them.

/// The catalogue of which configDocument() speaks.
class ConfigDocumentCatalogue : public TestCatalogue
{
public:
    ConfigDocumentCatalogue();
};

/// A valid document with a little in each of its thirteen sections, as small as it can be. Its names are those of
/// ConfigDocumentCatalogue.
QJsonObject configDocument();

/// \p document with \p value under \p key.
QJsonObject with(QJsonObject document, const QString& key, const QJsonValue& value);

/// \p document without \p key.
QJsonObject without(QJsonObject document, const QString& key);

/// A file in a temporary directory of its own, removed at the end of its life.
class DocumentFile
{
public:
    explicit DocumentFile(const QByteArray& bytes);
    explicit DocumentFile(const QJsonObject& document);

    const QString& path() const { return m_path; }

    /// Replaces what the file holds.
    void write(const QByteArray& bytes) const;
    void write(const QJsonObject& document) const;

private:
    QTemporaryDir m_directory;
    QString m_path;
};
