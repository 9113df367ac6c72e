#pragma once

#include "TableModel.h"
#include "TableRows.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTableView;

namespace cluiedit {

/// A table with a filter line above and the number of rows below. Its columns sort by a click on their headings; a
/// third click brings back the order of the document. What is selected is copied.
class TablePanel : public QWidget
{
    Q_OBJECT

public:
    enum class Filter { Shown, Hidden };

    /// \p textWithoutRows is what stands below a table without rows.
    explicit TablePanel(const QString& textWithoutRows, Filter filter = Filter::Shown, QWidget* parent = nullptr);

    void show(const cluiconfig::Table& table);
    using QWidget::show;

    const cluiconfig::Table& table() const { return m_model.table(); }
    void focusFilter();
    /// The view, for whoever wants its cells to look otherwise.
    QTableView& view() const { return *m_view; }
    /// Makes the columns as wide as their content, up to a limit.
    void fitColumns();

signals:
    /// Somebody chose the row number \p row of the table, by Enter or a double click.
    void rowActivated(qsizetype row);
    /// Another row of the table, \p row, is the current one.
    void currentRowChanged(qsizetype row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addActions();
    /// The selected rows from top to bottom, as they are seen.
    QList<QStringList> selectedRows(bool hasHeadings) const;
    void copyCell();
    void tellRows();
    void focusRows();
    qsizetype rowOf(const QModelIndex& index) const;

    const QString m_textWithoutRows;
    TableModel m_model;
    TableRows m_rows{m_model};
    QLineEdit* m_filter;
    QTableView* m_view;
    QLabel* m_count;
};

} // namespace cluiedit
