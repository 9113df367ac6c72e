#pragma once

#include "FindEntries.h"

#include <QAbstractTableModel>
#include <QDialog>

#include <memory>

class QLabel;
class QLineEdit;
class QTableView;

namespace cluiedit {

/// The entries that match a query, with their kinds in words.
class FindModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setEntries(const QList<FindEntry>& entries);
    void setQuery(const QString& query);

    const QString& query() const { return m_query; }
    const FindEntry& entry(int row) const { return m_entries.at(m_found[static_cast<std::size_t>(row)]); }
    qsizetype entryCount() const { return m_entries.size(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<FindEntry> m_entries;
    FindIndex m_index;
    QString m_query;
    std::vector<qsizetype> m_found;
};

/// Finds anything that has a name: as one types, the best matches come first.
class FindAnything : public QDialog
{
    Q_OBJECT

public:
    explicit FindAnything(QWidget* parent = nullptr);

    /// Looks in \p snapshot from now on, which loads. Cheap while the dialog is hidden.
    void present(const std::shared_ptr<const Snapshot>& snapshot);

signals:
    /// Somebody chose an entry of the kind \p kind; \p pointer is empty where the document does not have it.
    void chosen(cluiedit::FindKind kind, const QString& name, const QString& pointer);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Starts with the whole query selected, so that typing replaces it.
    void showEvent(QShowEvent* event) override;

private:
    void collect();
    void search();
    void showBest();
    void choose(const QModelIndex& index);

    FindModel m_model;
    QLineEdit* m_line;
    QTableView* m_view;
    QLabel* m_count;
    std::shared_ptr<const Snapshot> m_snapshot;
    std::shared_ptr<const Snapshot> m_collected; // the snapshot of the entries
};

} // namespace cluiedit
