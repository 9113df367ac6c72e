#include "TablePanel.h"

#include "TableText.h"
#include "TableWords.h"
#include "Texts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr int RowsToMeasure = 100; // for the width of the columns
constexpr int WidestColumn = 320; // pixels

void copy(const QString& text)
{
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

} // namespace

TablePanel::TablePanel(const QString& textWithoutRows, Filter filter, QWidget* parent)
    : QWidget(parent)
    , m_textWithoutRows(textWithoutRows)
    , m_filter(new QLineEdit)
    , m_view(new QTableView)
    , m_count(new QLabel)
{
    m_filter->setPlaceholderText(tr("Words that a row must have"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    auto* label = new QLabel(tr("Fi&lter:"));
    label->setBuddy(m_filter);
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_filter);

    m_view->setModel(&m_rows);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->setSortingEnabled(true);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(m_view->verticalHeader()->minimumSectionSize());
    QHeaderView* headings = m_view->horizontalHeader();
    headings->setSortIndicatorClearable(true);
    headings->setSortIndicator(-1, Qt::AscendingOrder);
    headings->setResizeContentsPrecision(RowsToMeasure);
    headings->setStretchLastSection(true);
    headings->setHighlightSections(false);
    addActions();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    label->setHidden(filter == Filter::Hidden);
    m_filter->setHidden(filter == Filter::Hidden);
    layout->addWidget(m_view);
    layout->addWidget(m_count);

    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_rows.setWords(filterWords(text));
        tellRows();
    });
    connect(m_filter, &QLineEdit::returnPressed, this, &TablePanel::focusRows);
    connect(m_view, &QTableView::activated, this,
            [this](const QModelIndex& index) { emit rowActivated(rowOf(index)); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid()) {
                    emit currentRowChanged(rowOf(current));
                }
            });
}

void TablePanel::show(const cluiconfig::Table& table)
{
    const bool isNew = table.columns != m_model.table().columns || (m_model.rowCount() == 0 && !table.rows.isEmpty());
    m_model.show(table);
    m_view->setAccessibleName(tableWord(table.name));
    if (isNew) {
        fitColumns();
    }
    tellRows();
}

void TablePanel::fitColumns()
{
    m_view->resizeColumnsToContents();
    for (int column = 0; column < m_model.columnCount(); ++column) {
        m_view->setColumnWidth(column, std::min(m_view->columnWidth(column), WidestColumn));
    }
}

void TablePanel::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

bool TablePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Down) {
            focusRows();
            return true;
        }
        if (key->key() == Qt::Key_Escape && !m_filter->text().isEmpty()) {
            m_filter->clear();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TablePanel::addActions()
{
    const auto add = [this](const QString& text, const QKeySequence& shortcut, const auto& act) {
        auto* action = new QAction(text, m_view);
        action->setShortcut(shortcut);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, act);
        m_view->addAction(action);
    };
    add(tr("&Copy"), QKeySequence::Copy, [this] { copy(asTsv(selectedRows(false))); });
    add(tr("Copy with &headings"), {}, [this] { copy(asTsv(selectedRows(true))); });
    add(tr("Copy as CS&V with headings"), {}, [this] { copy(asCsv(selectedRows(true))); });
    add(tr("Copy c&ell"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { copyCell(); });
    add(tr("&Show in the document"), {}, [this] {
        if (m_view->currentIndex().isValid()) {
            emit rowActivated(rowOf(m_view->currentIndex()));
        }
    });
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QList<QStringList> TablePanel::selectedRows(bool hasHeadings) const
{
    QModelIndexList selected = m_view->selectionModel()->selectedRows();
    std::ranges::sort(selected, {}, &QModelIndex::row);
    QList<QStringList> rows;
    if (hasHeadings && !selected.isEmpty()) {
        QStringList& headings = rows.emplaceBack();
        std::ranges::transform(m_model.table().columns, std::back_inserter(headings), tableWord);
    }
    for (const QModelIndex& index : selected) {
        const qsizetype row = rowOf(index);
        QStringList& cells = rows.emplaceBack();
        for (int column = 0; column < m_model.columnCount(); ++column) {
            cells.append(m_model.text(row, column));
        }
    }
    return rows;
}

void TablePanel::copyCell()
{
    copy(m_view->currentIndex().data().toString());
}

void TablePanel::tellRows()
{
    m_count->setText(m_model.rowCount() == 0
                         ? m_textWithoutRows
                         : tr("Rows shown: %1 of %2").arg(m_rows.rowCount()).arg(m_model.rowCount()));
}

void TablePanel::focusRows()
{
    if (m_rows.rowCount() == 0) {
        return;
    }
    if (!m_view->currentIndex().isValid()) {
        m_view->selectRow(0);
    }
    m_view->scrollTo(m_view->currentIndex());
    m_view->setFocus(Qt::OtherFocusReason);
}

qsizetype TablePanel::rowOf(const QModelIndex& index) const
{
    return m_rows.mapToSource(index).row();
}

} // namespace cluiedit
