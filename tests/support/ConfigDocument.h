#pragma once

#include <support/DocumentFile.h>
#include <support/TestCatalogue.h>

#include <QJsonObject>
#include <QString>

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
