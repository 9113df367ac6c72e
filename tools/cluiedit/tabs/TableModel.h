#pragma once

#include <document/Table.h>

#include <QAbstractTableModel>
#include <QString>

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

} // namespace cluiedit
