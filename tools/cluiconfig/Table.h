#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace cluiconfig {

/// Rows of named columns: what a command shows, as aligned text for people and as JSON for programs.
struct Table
{
    QString name; ///< Heading in text, key in JSON.
    QStringList columns;
    QList<QList<QJsonValue>> rows; ///< One value a column each.
    /// In text, rows that stand together and differ only in this column become one, its values joined by commas.
    qsizetype joinedColumn = -1;
};

/// The heading with the number of rows, and the rows below it, columns aligned and separated by two blanks.
QString toText(const Table& table);

/// An array with one object a row, the columns as keys.
QJsonValue toJson(const Table& table);

} // namespace cluiconfig
