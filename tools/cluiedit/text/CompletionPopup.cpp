#include "CompletionPopup.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace cluiedit {

namespace {

constexpr qsizetype MostListed = 300;
constexpr int MostRows = 10; // that are seen at once
constexpr int WidestNote = 320;
constexpr int Padding = 16;

} // namespace

CompletionPopup::CompletionPopup(QWidget* parent)
    : QTreeWidget(parent)
{
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(parent);
    setAccessibleName(tr("What may stand here"));
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAllColumnsShowFocus(true);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(0);
    connect(this, &QTreeWidget::itemClicked, this, &CompletionPopup::choose);
}

void CompletionPopup::present(const QList<Candidate>& list, qsizetype current, const QRect& place)
{
    m_list = list.first(std::min(list.size(), MostListed));
    if (m_list.isEmpty()) {
        hide();
        return;
    }
    clear();
    QList<QTreeWidgetItem*> items;
    for (const Candidate& candidate : m_list) {
        auto* const item = new QTreeWidgetItem({candidate.label, candidate.note});
        item->setForeground(1, palette().placeholderText());
        items.append(item);
    }
    addTopLevelItems(items);
    layOut(place);
    show();
    moveTo(static_cast<int>(std::clamp<qsizetype>(current, 0, m_list.size() - 1)));
}

void CompletionPopup::layOut(const QRect& place)
{
    int labelWidth = 0;
    int noteWidth = 0;
    for (const Candidate& candidate : std::as_const(m_list)) {
        labelWidth = std::max(labelWidth, fontMetrics().horizontalAdvance(candidate.label));
        noteWidth = std::max(noteWidth, fontMetrics().horizontalAdvance(candidate.note));
    }
    const bool hasNotes = noteWidth > 0;
    setColumnHidden(1, !hasNotes);
    labelWidth += Padding;
    setColumnWidth(0, labelWidth);
    const int frame = 2 * frameWidth();
    const int scrollBar = m_list.size() > MostRows ? verticalScrollBar()->sizeHint().width() : 0;
    const int notes = hasNotes ? std::min(noteWidth, WidestNote) + Padding : 0;
    const int rows = static_cast<int>(std::min<qsizetype>(m_list.size(), MostRows));
    QRect area(place.bottomLeft(), QSize(labelWidth + notes + scrollBar + frame, rows * sizeHintForRow(0) + frame));
    if (const QScreen* const screen = QGuiApplication::screenAt(place.topLeft())) {
        const QRect available = screen->availableGeometry();
        area.setWidth(std::min(area.width(), available.width()));
        if (area.bottom() > available.bottom()) {
            area.moveBottom(place.top() - 1);
        }
        area.moveLeft(std::max(available.left(), std::min(area.left(), available.right() - area.width())));
    }
    setGeometry(area);
}

bool CompletionPopup::handleKey(const QKeyEvent& event)
{
    const int row = indexOfTopLevelItem(currentItem());
    const int count = topLevelItemCount();
    switch (event.key()) {
    case Qt::Key_Up:
        moveTo((row + count - 1) % count);
        return true;
    case Qt::Key_Down:
        moveTo((row + 1) % count);
        return true;
    case Qt::Key_PageUp:
        moveTo(std::max(0, row - MostRows));
        return true;
    case Qt::Key_PageDown:
        moveTo(std::min(count - 1, row + MostRows));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        if (event.modifiers().testFlag(Qt::AltModifier) || event.modifiers().testFlag(Qt::ControlModifier)) {
            return false;
        }
        choose();
        return true;
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return false;
    }
}

void CompletionPopup::moveTo(int row)
{
    setCurrentItem(topLevelItem(row));
    scrollToItem(topLevelItem(row));
}

void CompletionPopup::choose()
{
    const int row = indexOfTopLevelItem(currentItem());
    hide();
    if (row >= 0) {
        const Candidate candidate = m_list.at(row);
        emit chosen(candidate);
    }
}

} // namespace cluiedit
