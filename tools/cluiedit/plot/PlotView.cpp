#include "PlotView.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiedit {

PlotView::PlotView(QWidget* parent)
    : QCustomPlot(parent)
    , m_ranges(*this)
    , m_noticeBox(new NoticeBox(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(200, 150);
    setAccessibleName(tr("Plot"));
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    const QList<QCPAxis*> axes{xAxis, yAxis, yAxis2};
    axisRect()->setRangeDragAxes(axes);
    axisRect()->setRangeZoomAxes(axes);
    selectionRect()->setBrush(Qt::NoBrush);
    constexpr int Digits = 10; // of numbers that differ late, such as points in time
    for (QCPAxis* axis : axes) {
        axis->setNumberPrecision(Digits);
        setLogarithmic(axis, false);
    }
    axisRect()->insetLayout()->take(legend);
    plotLayout()->setRowSpacing(0);
    legend->setLayer(u"legend"_s);
    legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
    legend->setWrap(2);
    legend->setBorderPen(Qt::NoPen);
    legend->setBrush(Qt::NoBrush);
    legend->setMargins({4, 4, 4, 0});
    setLegendShown(false);
    connect(this, &QCustomPlot::afterLayout, this, [this] { m_ranges.keepAspects(); });
    connect(this, &QCustomPlot::mouseDoubleClick, this, [this] {
        fit();
        drawNow();
    });
    connect(this, &QCustomPlot::mousePress, this, [this](const QMouseEvent* event) {
        const bool isRectangle = m_zoomsToRectangle != event->modifiers().testFlag(Qt::ShiftModifier);
        setSelectionRectMode(isRectangle && event->button() == Qt::LeftButton ? QCP::srmZoom : QCP::srmNone);
    });
    applyPalette();
}

void PlotView::setGraphs(const QList<DenseGraph*>& graphs)
{
    for (DenseGraph* graph : std::as_const(m_graphs)) {
        if (!graphs.contains(graph)) {
            removePlottable(graph);
        }
    }
    m_graphs = graphs;
}

void PlotView::setNotices(const QStringList& notices)
{
    m_noticeBox->setNotices(notices);
    setAccessibleDescription(notices.join(u'\n'));
}

void PlotView::setLegendShown(bool isShown)
{
    const bool wasShown = legend->layout() != nullptr;
    legend->setVisible(isShown);
    if (isShown && !wasShown) { // above the frame, where it hides nothing
        constexpr double LeastStretch = 0.001;
        plotLayout()->insertRow(0);
        plotLayout()->addElement(0, 0, legend);
        plotLayout()->setRowStretchFactor(0, LeastStretch);
    } else if (!isShown && wasShown) {
        plotLayout()->take(legend);
        plotLayout()->simplify();
    }
}

int PlotView::roomInLegend() const
{
    constexpr int Icons = 130; // and the space about them
    constexpr int Least = 60;
    return std::max((width() - Icons) / 2, Least);
}

void PlotView::setGridColor(const std::optional<QColor>& color)
{
    m_gridColor = color && color->isValid() ? color : std::nullopt;
    applyPalette();
}

void PlotView::setLogarithmic(QCPAxis* axis, bool isLogarithmic)
{
    axis->setScaleType(isLogarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
    axis->setNumberFormat(u"gb"_s);
    axis->grid()->setSubGridVisible(isLogarithmic);
    if (isLogarithmic) {
        axis->setTicker(QSharedPointer<QCPAxisTickerLog>::create());
    } else {
        axis->setTicker(QSharedPointer<QCPAxisTicker>::create());
    }
}

QCPAxis* PlotView::axisOf(PlotAxis axis) const
{
    return axis == PlotAxis::X ? xAxis : axis == PlotAxis::Y1 ? yAxis : yAxis2;
}

/// At the place \p right of the one before, or in the middle.
void PlotView::point(double right)
{
    const QRectF frame = axisRect()->rect();
    const QPointF before = m_cursor.value_or(frame.center());
    m_cursor = QPointF(std::clamp(before.x() + right, frame.left(), frame.right()), before.y());
    emit pointed(*m_cursor);
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    constexpr double PointStep = 4;
    const bool isLeft = event->key() == Qt::Key_Left;
    if (event->modifiers().testFlag(Qt::ControlModifier) && (isLeft || event->key() == Qt::Key_Right)) {
        point(isLeft ? -PointStep : PointStep);
        return;
    }
    constexpr double ZoomStep = 1.25;
    constexpr double MoveStep = 0.1;
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift on many keyboards
        zoom(1 / ZoomStep);
        break;
    case Qt::Key_Minus:
        zoom(ZoomStep);
        break;
    case Qt::Key_Left:
        move(-MoveStep, 0);
        break;
    case Qt::Key_Right:
        move(MoveStep, 0);
        break;
    case Qt::Key_Up:
        move(0, MoveStep);
        break;
    case Qt::Key_Down:
        move(0, -MoveStep);
        break;
    case Qt::Key_Home:
        fit();
        break;
    default:
        QCustomPlot::keyPressEvent(event);
        return;
    }
    drawNow();
}

void PlotView::mouseMoveEvent(QMouseEvent* event)
{
    QCustomPlot::mouseMoveEvent(event);
    if (axisRect()->rect().contains(event->pos())) {
        m_cursor = event->position();
        emit pointed(*m_cursor);
    } else {
        m_cursor.reset();
        emit left();
    }
}

void PlotView::leaveEvent(QEvent* event)
{
    QCustomPlot::leaveEvent(event);
    m_cursor.reset();
    emit left();
}

void PlotView::focusInEvent(QFocusEvent* event)
{
    QCustomPlot::focusInEvent(event);
    update();
}

void PlotView::focusOutEvent(QFocusEvent* event)
{
    QCustomPlot::focusOutEvent(event);
    update();
}

void PlotView::paintEvent(QPaintEvent* event)
{
    QCustomPlot::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void PlotView::changeEvent(QEvent* event)
{
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        applyPalette();
        replot(rpQueuedReplot);
    }
}

void PlotView::applyPalette()
{
    constexpr int GridOpacity = 110;
    constexpr int SubGridOpacity = 50;
    const QColor text = palette().color(QPalette::Text);
    setBackground(palette().brush(QPalette::Base));
    QColor grid = m_gridColor.value_or(palette().color(QPalette::Mid));
    for (QCPAxis* axis : {xAxis, yAxis, yAxis2}) {
        for (const auto& setPen : {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen}) {
            (axis->*setPen)(QPen(text));
        }
        axis->setTickLabelColor(text);
        axis->setLabelColor(text);
        axis->setLabelFont(font());
        axis->setTickLabelFont(font());
        grid.setAlpha(GridOpacity);
        axis->grid()->setPen(QPen(grid, 1, Qt::DotLine));
        axis->grid()->setZeroLinePen(QPen(grid));
        grid.setAlpha(SubGridOpacity);
        axis->grid()->setSubGridPen(QPen(grid, 1, Qt::DotLine));
    }
    selectionRect()->setPen(QPen(palette().color(QPalette::Highlight)));
    legend->setTextColor(text);
    legend->setFont(font());
}

} // namespace cluiedit
