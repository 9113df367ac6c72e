#pragma once

#include "Output.h"

#include <document/Table.h>

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <optional>
#include <string>

namespace cluiconfig {

/// The row with the columns as keys.
QJsonObject toObject(const Table& table, const QList<QJsonValue>& row);

/// Prints the heading with the number of rows, and the rows below it, columns aligned and separated by two blanks.
/// Names of colours are followed by a swatch where \p colors are to be had. Where a row takes more than \p room, texts
/// are wrapped in their columns, and values that were joined stand below their row.
void printText(const Table& table, ColorDepth colors, std::optional<qsizetype> room);

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
