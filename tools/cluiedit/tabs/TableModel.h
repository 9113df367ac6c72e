#pragma once

#include <document/Table.h>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>

namespace cluiedit {

/// The rows of a table as they are, without an item for each.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows \p table in place of the one before. Only the rows between the first and the last that differ change, so
    /// that whatever is chosen in the others stays; nothing changes where nothing differs.
    void show(const cluiconfig::Table& table);

    const cluiconfig::Table& table() const { return m_table; }
    const QJsonValue& value(qsizetype row, qsizetype column) const { return m_table.rows.at(row).at(column); }
    /// What people see in a cell, in the language of the window.
    QString shown(qsizetype row, qsizetype column) const;
    /// The same on one line.
    QString text(qsizetype row, qsizetype column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    cluiconfig::Table m_table;
};

/// The rows of a TableModel that have all words of a filter, in the order of a column: numbers by their size, texts
/// regardless of case.
class TableRows : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// REQUIRES: \p model outlives the rows.
    explicit TableRows(TableModel& model, QObject* parent = nullptr);

    void setWords(const QStringList& words);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    const TableModel& m_model;
    QStringList m_words;
};

} // namespace cluiedit
