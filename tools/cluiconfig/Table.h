#pragma once

#include "Output.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace cluiconfig {

/// Rows of named columns: what a command shows, as aligned text for people and as JSON for programs.
struct Table
{
    QString name{}; ///< Heading in text, key in JSON.
    QStringList columns{};
    QList<QList<QJsonValue>> rows{}; ///< One value a column each.

    // Of a table that shows a section of the document.

    QString section{}; ///< The key of the section.
    QStringList keys{}; ///< The columns by which another document's rows are recognised; none for a single row.
    QStringList names{}; ///< Those of the keys that are mere names: a row that differs in nothing else was renamed.

    // How the text looks.

    /// Rows that stand together and differ only in this column, the last one, become one, its values joined by commas.
    qsizetype joinedColumn = -1;
    bool endsInColors = false; ///< The last column holds names of colours, such as "#0072b2".
};

/// The row with the columns as keys.
QJsonObject toObject(const Table& table, const QList<QJsonValue>& row);

/// Prints the heading with the number of rows, and the rows below it, columns aligned and separated by two blanks.
/// Names of colours are followed by a swatch where \p colors are to be had. Where a row takes more than \p room, texts
/// are wrapped in their columns, and values that were joined stand below their row.
void printText(const Table& table, ColorDepth colors, std::optional<qsizetype> room);

/// An array with one object a row, each on a line, the columns as keys.
QByteArray toJson(const Table& table);

/// Adds the option "--wide" of a command whose lines are wrapped to fit a terminal.
void addWideOption(CLI::App& command, bool& isWide);

/// The options of a command that prints tables, and how it does: as aligned text, an empty line between two tables, or
/// as one JSON object with an array a table.
struct TableFormat
{
    std::string name = "text";
    bool isWide = false;

    void addTo(CLI::App& command);
    void print(const QList<Table>& tables) const;
};

} // namespace cluiconfig
