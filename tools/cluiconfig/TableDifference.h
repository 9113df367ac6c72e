#pragma once

#include "TableOutput.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

#include <optional>

namespace cluiconfig {

/// What became of the rows of a table.
struct TableDifference
{
    struct Change
    {
        QString column;
        QJsonValue from;
        QJsonValue to;
    };
    struct ChangedRow
    {
        QJsonObject row; ///< As it was.
        QList<Change> changes;
    };
    struct MovedRow
    {
        QJsonObject row; ///< As it is now.
        qsizetype from; ///< Its places in the two tables, counted from 1.
        qsizetype to;
    };

    QList<QJsonObject> gained;
    QList<QJsonObject> lost;
    QList<ChangedRow> changed;
    QList<MovedRow> moved; ///< As few as explain the order of the rows that both tables have.

    bool isEmpty() const { return gained.isEmpty() && lost.isEmpty() && changed.isEmpty() && moved.isEmpty(); }
};

/// Compares two tables of the same name. Rows that agree in the keys are the same row, and of several such rows the
/// first goes with the first. Of the others, those are the same that differ in a single name.
TableDifference difference(const Table& before, const Table& after);

/// What became of the rows of \p table, which may be either of the two: a heading that counts, and a line for each row,
/// which is wrapped where it takes more than \p room.
QString toText(const Table& table, const TableDifference& difference, std::optional<qsizetype> room);

/// `{"table", "gained": [row], "lost": [row], "changed": [{"row", "changes": [{"column", "from", "to"}]}],
/// "moved": [{"row", "from", "to"}]}`
QJsonObject toJson(const Table& table, const TableDifference& difference);

} // namespace cluiconfig
