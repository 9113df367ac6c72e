#pragma once

#include "Tab.h"
#include "TablePanel.h"

#include <QList>
#include <QStringList>

class QComboBox;
class QStackedWidget;

namespace cluiedit {

/// Tables of the document, one at a time. Somebody who chooses a row wants to see its place in the document.
class TablesTab : public Tab
{
    Q_OBJECT

public:
    /// \p headings are those of documentTables(); their order does not matter.
    explicit TablesTab(const QStringList& headings, QWidget* parent = nullptr);

    void present(const std::shared_ptr<const Snapshot>& snapshot) override;

protected:
    /// Adds \p page behind the tables, under \p name in the chooser. \p filtered, on the page, is the table whose
    /// filter line Ctrl+L goes to. Takes ownership.
    void addPage(const QString& name, QWidget* page, TablePanel* filtered);
    void choosePage(int page);
    /// Says in the chooser which table \p page shows, and of how many rows.
    void tell(int page, const cluiconfig::Table& table);
    /// What is presented; null before.
    const std::shared_ptr<const Snapshot>& snapshot() const { return m_snapshot; }

private:
    QStringList m_headings; // in the order of their pages
    QComboBox* m_chooser;
    QWidget* m_choice; // the chooser with its label
    QStackedWidget* m_pages;
    QList<TablePanel*> m_panels;
    std::shared_ptr<const Snapshot> m_snapshot;
};

/// The columns of the summary tables and of the dQ/dU table.
TablesTab* makeColumnsTab(QWidget* parent = nullptr);
/// The graphs: statistics, Ragone plots, processed data, dQ/dU.
TablesTab* makeGraphsTab(QWidget* parent = nullptr);
/// Recipe entries and process formulas.
TablesTab* makeRecipesTab(QWidget* parent = nullptr);
/// Representations, skipped tasks, debug switches.
TablesTab* makeOtherTab(QWidget* parent = nullptr);

} // namespace cluiedit
