#include "AxesTab.h"

#include "AxesPainting.h"
#include "Texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr int CellSize = 28; // pixels
constexpr int WidestHeading = 230;

/// Marks with what they mean.
class Legend : public QWidget
{
public:
    explicit Legend(QWidget* parent = nullptr)
        : QWidget(parent)
    {
        auto* line = new QHBoxLayout(this);
        line->setContentsMargins(0, 0, 0, 0);
        add(*line, {}, AxesTab::tr("linear"));
        add(*line, {true, false, false}, AxesTab::tr("X logarithmic"));
        add(*line, {false, true, false}, AxesTab::tr("Y logarithmic"));
        add(*line, {false, false, true}, AxesTab::tr("orthonormal"));
        line->addStretch();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        for (const auto& [space, pair] : m_marks) {
            paintMark(painter, {space->geometry().left(), (height() - CellSize) / 2, CellSize, CellSize}, pair);
        }
    }

private:
    void add(QHBoxLayout& line, const AxesMatrix::Pair& pair, const QString& meaning)
    {
        auto* space = new QSpacerItem(CellSize, CellSize, QSizePolicy::Fixed, QSizePolicy::Fixed);
        line.addItem(space);
        line.addWidget(new QLabel(meaning));
        line.addSpacing(CellSize / 4);
        m_marks.append({space, pair});
    }

    QList<std::pair<QSpacerItem*, AxesMatrix::Pair>> m_marks;
};

} // namespace

AxesTab::AxesTab(QWidget* parent)
    : Tab(parent)
    , m_view(new QTableView)
    , m_order(new QComboBox)
    , m_hidesEmpty(new QCheckBox(tr("Hide axes without &a pair")))
    , m_count(new QLabel)
    , m_current(new QLabel)
{
    auto* filters = new QHBoxLayout;
    m_xFilter = addFilter(*filters, tr("&X axes:"), tr("Words that the name of an X axis must have"));
    m_yFilter = addFilter(*filters, tr("&Y axes:"), tr("Words that the name of a Y axis must have"));
    m_order->addItems({tr("As in the document"), tr("By name")});
    auto* orderLabel = new QLabel(tr("&Order:"));
    orderLabel->setBuddy(m_order);
    m_hidesEmpty->setChecked(true);
    auto* choices = new QHBoxLayout;
    choices->addWidget(orderLabel);
    choices->addWidget(m_order);
    choices->addWidget(m_hidesEmpty);
    choices->addStretch();
    makeView();
    m_current->setTextFormat(Qt::PlainText);
    m_current->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addLayout(choices);
    layout->addWidget(m_view);
    layout->addWidget(m_current);
    layout->addWidget(new Legend);
    layout->addWidget(m_count);

    connect(m_order, &QComboBox::currentIndexChanged, this, &AxesTab::arrange);
    connect(m_hidesEmpty, &QCheckBox::toggled, this, &AxesTab::arrange);
    const auto* filter = new QShortcut(Qt::CTRL | Qt::Key_L, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(filter, &QShortcut::activated, this, [this] {
        QLineEdit* next = m_xFilter->hasFocus() ? m_yFilter : m_xFilter;
        next->setFocus(Qt::ShortcutFocusReason);
        next->selectAll();
    });
    tell();
}

QLineEdit* AxesTab::addFilter(QLayout& line, const QString& label, const QString& accessibleName)
{
    auto* filter = new QLineEdit;
    filter->setPlaceholderText(tr("Words"));
    filter->setToolTip(accessibleName);
    filter->setAccessibleName(accessibleName);
    filter->setClearButtonEnabled(true);
    filter->installEventFilter(this);
    auto* text = new QLabel(label);
    text->setBuddy(filter);
    line.addWidget(text);
    line.addWidget(filter);
    connect(filter, &QLineEdit::textChanged, this, &AxesTab::arrange);
    return filter;
}

void AxesTab::makeView()
{
    auto* columns = new UprightHeader;
    m_view->setHorizontalHeader(columns);
    m_view->setModel(&m_matrix);
    m_view->setItemDelegate(new MarkDelegate(m_view));
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setTabKeyNavigation(false);
    m_view->setCornerButtonEnabled(false);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setAccessibleName(tr("Pairs of axes, X in columns and Y in rows"));
    m_view->installEventFilter(this);
    columns->setMinimumSectionSize(CellSize);
    columns->setDefaultSectionSize(CellSize);
    QHeaderView* rows = m_view->verticalHeader();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setMinimumSectionSize(CellSize);
    rows->setDefaultSectionSize(CellSize);
    rows->setMaximumWidth(WidestHeading);
    connect(m_view, &QTableView::clicked, this, &AxesTab::choose);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (current.isValid()) {
            m_chosen = {m_matrix.xName(current.column()), m_matrix.yName(current.row())};
        }
        tell();
        m_view->horizontalHeader()->viewport()->update();
    });
}

void AxesTab::present(const std::shared_ptr<const Snapshot>& snapshot)
{
    m_snapshot = snapshot;
    m_places.reset();
    keepingPlace([&] { m_matrix.show(snapshot->axes().getAxesCombinations()); });
}

bool AxesTab::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return Tab::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_view && isEnter) {
        choose(m_view->currentIndex());
        return true;
    }
    auto* filter = qobject_cast<QLineEdit*>(watched);
    if (filter != nullptr && key == Qt::Key_Escape && !filter->text().isEmpty()) {
        filter->clear();
        return true;
    }
    if (filter != nullptr && (isEnter || key == Qt::Key_Down)) {
        if (!m_view->currentIndex().isValid()) {
            m_view->setCurrentIndex(m_matrix.index(0, 0));
        }
        m_view->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return Tab::eventFilter(watched, event);
}

void AxesTab::arrange()
{
    keepingPlace([this] {
        m_matrix.setView({.xWords = filterWords(m_xFilter->text()),
                          .yWords = filterWords(m_yFilter->text()),
                          .order = m_order->currentIndex() == 0 ? AxesMatrix::Order::Document : AxesMatrix::Order::Name,
                          .hidesEmpty = m_hidesEmpty->isChecked()});
    });
}

template <typename Change>
void AxesTab::keepingPlace(const Change& change)
{
    const auto chosen = m_chosen;
    const int x = m_view->horizontalScrollBar()->value();
    const int y = m_view->verticalScrollBar()->value();
    change();
    if (const QModelIndex cell = m_matrix.cellOf(chosen.first, chosen.second); cell.isValid()) {
        m_view->selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect);
    }
    m_view->horizontalScrollBar()->setValue(x);
    m_view->verticalScrollBar()->setValue(y);
    tell();
}

void AxesTab::choose(const QModelIndex& index)
{
    if (!m_snapshot || !m_matrix.pairAt(index)) {
        return;
    }
    const QString x = m_matrix.xName(index.column());
    const QString y = m_matrix.yName(index.row());
    if (!m_places) {
        m_places.emplace(m_snapshot->root());
    }
    emit placeWanted(m_places->placeOf(x, y));
    emit plotWanted(x, y);
}

void AxesTab::tell()
{
    const QModelIndex current = m_view->currentIndex();
    m_current->setText(current.isValid() ? m_matrix.words(current)
                                         : tr("Columns are X axes, rows are Y axes. Choose a mark to see its plot."));
    m_count->setText(m_matrix.pairCount() == 0 ? tr("The document gives none.")
                                               : tr("Pairs shown: %1 of %2. X axes: %3 of %4. Y axes: %5 of %6.")
                                                     .arg(m_matrix.shownPairCount())
                                                     .arg(m_matrix.pairCount())
                                                     .arg(m_matrix.columnCount())
                                                     .arg(m_matrix.xCount())
                                                     .arg(m_matrix.rowCount())
                                                     .arg(m_matrix.yCount()));
}

} // namespace cluiedit
