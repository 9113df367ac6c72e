#include "TablesTab.h"

#include "RowPlaces.h"
#include "TableWords.h"

#include <document/DocumentTables.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using cluiconfig::Table;

namespace cluiedit {

TablesTab::TablesTab(const QStringList& headings, QWidget* parent)
    : Tab(parent)
    , m_chooser(new QComboBox)
    , m_choice(new QWidget)
    , m_pages(new QStackedWidget)
{
    auto* label = new QLabel(tr("Ta&ble:"));
    label->setBuddy(m_chooser);
    auto* choice = new QHBoxLayout(m_choice);
    choice->setContentsMargins(0, 0, 0, 0);
    choice->addWidget(label);
    choice->addWidget(m_chooser, 1);
    m_choice->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_choice);
    layout->addWidget(m_pages);
    connect(m_chooser, &QComboBox::currentIndexChanged, m_pages, &QStackedWidget::setCurrentIndex);
    const auto* filter = new QShortcut(Qt::CTRL | Qt::Key_L, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(filter, &QShortcut::activated, this, [this] {
        if (m_pages->currentIndex() >= 0) {
            m_panels.at(m_pages->currentIndex())->focusFilter();
        }
    });

    for (const Table& table : cluiconfig::documentTables({}, headings)) {
        m_headings.append(table.name);
        auto* panel = new TablePanel(tr("The document gives none."));
        connect(panel, &TablePanel::rowActivated, this, [this, panel](qsizetype row) {
            if (m_snapshot) {
                emit placeWanted(placeOfRow(panel->table(), row, m_snapshot->root()));
            }
        });
        panel->show(table);
        addPage(tableWord(table.name), panel, panel);
    }
}

void TablesTab::present(const std::shared_ptr<const Snapshot>& snapshot)
{
    m_snapshot = snapshot;
    const QList<Table> tables = cluiconfig::documentTables(snapshot->configuration(), m_headings);
    for (int page = 0; page < m_headings.size(); ++page) {
        m_panels.at(page)->show(tables.at(page));
        tell(page, tables.at(page));
    }
}

void TablesTab::addPage(const QString& name, QWidget* page, TablePanel* filtered)
{
    m_panels.append(filtered);
    m_pages->addWidget(page);
    m_chooser->addItem(name);
    m_choice->setVisible(m_chooser->count() > 1);
}

void TablesTab::choosePage(int page)
{
    m_chooser->setCurrentIndex(page);
}

void TablesTab::tell(int page, const Table& table)
{
    const QString text = u"%1 (%2)"_s.arg(tableWord(table.name)).arg(table.rows.size());
    if (m_chooser->itemText(page) != text) {
        m_chooser->setItemText(page, text);
    }
}

TablesTab* makeColumnsTab(QWidget* parent)
{
    return new TablesTab({u"Summary table columns"_s, u"dQ/dU columns"_s}, parent);
}

TablesTab* makeGraphsTab(QWidget* parent)
{
    return new TablesTab({u"Statistics graphs"_s, u"Ragone plots"_s, u"Processed-data graphs"_s, u"dQ/dU graph"_s},
                         parent);
}

TablesTab* makeRecipesTab(QWidget* parent)
{
    return new TablesTab({u"Recipe entries"_s, u"Process formulas"_s}, parent);
}

TablesTab* makeOtherTab(QWidget* parent)
{
    return new TablesTab({u"Representations"_s, u"Skipped tasks"_s, u"Debug switches"_s}, parent);
}

} // namespace cluiedit
