#include "FindAnything.h"

#include "Texts.h"

#include <check/Text.h>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTextLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using cluiconfig::check::printable;

namespace cluiedit {

namespace {

constexpr QSize UsualSize(520, 420); // pixels
constexpr int Margin = 4;
constexpr int KindColumn = 1;

/// Paints names with the letters of the query in bold.
class MatchDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem ground(option);
        initStyleOption(&ground, index);
        const QString text = std::exchange(ground.text, QString());
        const QStyle* style = option.widget == nullptr ? QApplication::style() : option.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);

        QTextLayout layout(text, ground.font);
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        QList<QTextLayout::FormatRange> formats;
        const auto* model = qobject_cast<const FindModel*>(index.model());
        const QList<qsizetype> places = model == nullptr ? QList<qsizetype>() : matchedPlaces(model->query(), text);
        for (const qsizetype place : places) {
            formats.append({static_cast<int>(place), 1, bold});
        }
        layout.setFormats(formats);
        QTextOption textOption;
        textOption.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(textOption);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        if (!line.isValid()) {
            return;
        }
        painter->save();
        painter->setClipRect(option.rect);
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        layout.draw(painter,
                    {static_cast<qreal>(option.rect.left() + Margin),
                     option.rect.top() + (option.rect.height() - line.height()) / 2});
        painter->restore();
    }
};

} // namespace

void FindModel::setEntries(const QList<FindEntry>& entries)
{
    beginResetModel();
    m_entries = entries;
    m_index = FindIndex(entries);
    m_found = m_index.find(m_query);
    endResetModel();
}

void FindModel::setQuery(const QString& query)
{
    beginResetModel();
    m_query = query;
    m_found = m_index.find(query);
    endResetModel();
}

int FindModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_found.size());
}

int FindModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : KindColumn + 1;
}

QVariant FindModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const FindEntry& found = entry(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == KindColumn ? kindName(found.kind) : printable(found.text);
    case Qt::AccessibleTextRole:
        return tr("%1, %2").arg(printable(found.text), kindName(found.kind));
    case Qt::ToolTipRole:
        return toolTipText(printable(found.text));
    default:
        return {};
    }
}

FindAnything::FindAnything(QWidget* parent)
    : QDialog(parent)
    , m_line(new QLineEdit)
    , m_view(new QTableView)
    , m_count(new QLabel)
{
    setWindowTitle(tr("Find anything"));
    resize(UsualSize);
    auto* label = new QLabel(tr("&Name of a data array, colour, graph, recipe entry or section:"));
    label->setBuddy(m_line);
    m_line->setPlaceholderText(tr("Some letters of it, in their order"));
    m_line->setClearButtonEnabled(true);
    m_line->installEventFilter(this);
    m_view->setModel(&m_model);
    m_view->setItemDelegateForColumn(0, new MatchDelegate(m_view));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setFocusPolicy(Qt::NoFocus); // the line has the keys
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setAccessibleName(tr("Matches"));
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(m_view->verticalHeader()->minimumSectionSize());
    m_view->horizontalHeader()->hide();
    m_view->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(KindColumn, QHeaderView::ResizeToContents);
    m_view->horizontalHeader()->setResizeContentsPrecision(0); // what is seen: all kinds are about as wide
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_line);
    layout->addWidget(m_view);
    layout->addWidget(m_count);
    connect(m_line, &QLineEdit::textChanged, this, &FindAnything::search);
    connect(m_line, &QLineEdit::returnPressed, this, [this] { choose(m_view->currentIndex()); });
    connect(m_view, &QTableView::clicked, this, &FindAnything::choose);
}

void FindAnything::present(const std::shared_ptr<const Snapshot>& snapshot)
{
    m_snapshot = snapshot;
    if (isVisible()) {
        collect();
    }
}

bool FindAnything::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_line && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_view, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FindAnything::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    collect();
    m_line->setFocus(Qt::PopupFocusReason);
    m_line->selectAll();
}

void FindAnything::collect()
{
    if (m_snapshot && m_snapshot != m_collected) {
        m_collected = m_snapshot;
        m_model.setEntries(findEntries(*m_snapshot));
        showBest();
    }
}

void FindAnything::search()
{
    m_model.setQuery(m_line->text());
    showBest();
}

void FindAnything::showBest()
{
    if (m_model.rowCount() > 0) {
        m_view->selectRow(0);
        m_view->scrollToTop();
    }
    m_count->setText(tr("Matches: %1 of %2").arg(m_model.rowCount()).arg(m_model.entryCount()));
}

void FindAnything::choose(const QModelIndex& index)
{
    if (index.isValid()) {
        const FindEntry entry = m_model.entry(index.row());
        accept();
        emit chosen(entry.kind, entry.text, entry.pointer);
    }
}

} // namespace cluiedit
