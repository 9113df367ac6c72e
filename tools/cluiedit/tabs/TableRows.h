#pragma once

#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>

#include <vector>

namespace cluiedit {

class TableModel;

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
    /// What a cell is sorted by.
    struct Key
    {
        bool isMade = false;
        bool isNumber = false;
        double number = 0;
        QString text{}; // case-folded
    };

    void forget();
    const Key& key(int row, int column) const;
    const QString& foldedText(int row) const;

    const TableModel& m_model;
    QStringList m_words; // case-folded

    // Made for a row when it is asked for, until the table changes.
    mutable std::vector<Key> m_keys;
    mutable int m_keyColumn = -1;
    mutable std::vector<QString> m_foldedTexts; // null where it is not made
};

} // namespace cluiedit
