#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

/// \file TableWords.h
/// The tables come from a library that speaks English, as the programs without a window do. These are its words in the
/// language of the window. Names from the document stay as they are.

namespace cluiedit {

/// The words of the tables in English: headings, titles of columns, and what stands in cells without being from the
/// document. Where one has "%1", a name stands in the tables.
QStringList tableWords();

/// \p text, one of the tables' words, in the language of the window. Other texts as they are.
QString tableWord(const QString& text);

/// What people see of \p value in the column with the title \p column, which is in English.
QString tableCell(const QJsonValue& value, const QString& column);

} // namespace cluiedit
