#pragma once

#include <check/Finding.h>

#include <QAbstractTableModel>
#include <QList>
#include <QWidget>

class QCheckBox;
class QSortFilterProxyModel;
class QTableView;

namespace cluiedit {

/// Findings as rows: severity, message, line, rule.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { SeverityColumn, MessageColumn, LineColumn, RuleColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setFindings(const QList<cluiconfig::check::Finding>& findings);
    const QList<cluiconfig::check::Finding>& findings() const { return m_findings; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<cluiconfig::check::Finding> m_findings;
};

/// The list of what the check found, with switches for the severities. Return leads to the place.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(QWidget* parent = nullptr);

    /// Shows \p findings, sorted as they come. The same ones again change nothing.
    void setFindings(const QList<cluiconfig::check::Finding>& findings);

    int errorCount() const { return m_errors; }
    int warningCount() const { return m_warnings; }

    /// Moves to the next finding (or the previous one) and leads to its place.
    void step(int by);

signals:
    void placeWanted(qsizetype offset);

private:
    void filter();
    void goTo(const QModelIndex& index);

    FindingsModel* m_model;
    QSortFilterProxyModel* m_sorted;
    QCheckBox* m_showsErrors;
    QCheckBox* m_showsWarnings;
    QTableView* m_table;
    int m_errors = 0;
    int m_warnings = 0;
};

} // namespace cluiedit
