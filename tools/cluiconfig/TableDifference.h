#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace cluiconfig {

/// How the rows of a table are recognised in another document.
struct TableIdentity
{
    QString table;
    QStringList keys; ///< The columns that tell which row it is; none where the table is a single row.
    QStringList names; ///< Those of the keys that are mere names: a row that differs in nothing else was renamed.
};

/// The identities of the tables that documentTables() gives, in its order.
QList<TableIdentity> tableIdentities();

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

/// Compares two tables in the form that toJson() gives them. Rows that agree in the keys are the same row, and of
/// several such rows the first goes with the first. Of the others, those are the same that differ in a single name.
TableDifference difference(const TableIdentity& identity, const QJsonArray& before, const QJsonArray& after);

/// A heading that counts, and a line for each row.
QString toText(const TableIdentity& identity, const TableDifference& difference);

/// `{"table", "gained": [row], "lost": [row], "changed": [{"row", "changes": [{"column", "from", "to"}]}],
/// "moved": [{"row", "from", "to"}]}`
QJsonObject toJson(const TableIdentity& identity, const TableDifference& difference);

} // namespace cluiconfig
