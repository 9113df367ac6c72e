#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <ostream>

/// \file QtPrinters.h
/// How Qt's values read in the message of a failed comparison.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QJsonObject& object, std::ostream* out)
{
    *out << QJsonDocument(object).toJson().toStdString();
}

inline void PrintTo(const QJsonArray& array, std::ostream* out)
{
    *out << QJsonDocument(array).toJson().toStdString();
}
