#include "PlotView.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace cluiedit {

/// Draws the notices into the frame of the plot.
class PlotView::Notices : public QCPLayerable
{
public:
    explicit Notices(PlotView* view)
        : QCPLayerable(view, u"overlay"_s)
        , m_view(view)
    {
    }

protected:
    void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(true); }

    void draw(QCPPainter* painter) override
    {
        if (m_view->m_notices.isEmpty()) {
            return;
        }
        constexpr int Margin = 10;
        constexpr int Padding = 6;
        constexpr int Opacity = 225;
        constexpr int Flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere | Qt::TextWordWrap;
        const QRect frame = m_view->axisRect()->rect().adjusted(Margin, Margin, -Margin, -Margin);
        const QString text = m_view->m_notices.join(u'\n');
        painter->setFont(m_view->font());
        const QRect room =
            painter->fontMetrics().boundingRect(frame.adjusted(Padding, Padding, -Padding, -Padding), Flags, text);
        QColor ground = m_view->palette().color(QPalette::ToolTipBase);
        ground.setAlpha(Opacity);
        painter->setPen(m_view->palette().color(QPalette::Mid));
        painter->setBrush(ground);
        painter->drawRect(room.adjusted(-Padding, -Padding, Padding, Padding));
        painter->setPen(m_view->palette().color(QPalette::ToolTipText));
        painter->drawText(room, Flags, text);
    }

private:
    PlotView* m_view;
};

PlotView::PlotView(QWidget* parent)
    : QCustomPlot(parent)
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
        connect(axis, qOverload<const QCPRange&, const QCPRange&>(&QCPAxis::rangeChanged), this,
                [this, axis](const QCPRange& range, const QCPRange& before) { keepRange(axis, range, before); });
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
    new Notices(this); // the plot's
    connect(this, &QCustomPlot::afterLayout, this, &PlotView::keepAspects);
    connect(this, &QCustomPlot::mouseDoubleClick, this, [this] {
        fit();
        draw();
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
    m_notices = notices;
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

QList<QCPAxis*> PlotView::shownAxes() const
{
    QList<QCPAxis*> axes{xAxis};
    for (QCPAxis* axis : {yAxis, yAxis2}) {
        if (axis->visible()) {
            axes.append(axis);
        }
    }
    return axes;
}

void PlotView::fitAxis(QCPAxis* axis)
{
    const bool isLogarithmic = axis->scaleType() == QCPAxis::stLogarithmic;
    bool hasRange = false;
    QCPRange range;
    for (const DenseGraph* graph : std::as_const(m_graphs)) {
        bool isFound = false;
        const QCPRange part = axis == xAxis ? graph->getKeyRange(isFound)
            : graph->valueAxis() == axis    ? graph->getValueRange(isFound)
                                            : QCPRange();
        if (isFound) {
            range = hasRange ? range.expanded(part) : part;
            hasRange = true;
        }
    }
    axis->setTickLabels(hasRange);
    if (!hasRange) {
        axis->setRange(isLogarithmic ? QCPRange(0.1, 10) : QCPRange(0, 1));
        return;
    }
    constexpr double Margin = 0.04; // of the frame, on either side
    if (isLogarithmic) {
        const double factor = range.upper > range.lower ? std::pow(range.upper / range.lower, Margin) : 2;
        range = {range.lower / factor, range.upper * factor};
    } else {
        constexpr double Largest = 1e200; // QCustomPlot takes nothing much larger
        range = {std::clamp(range.lower, -Largest, Largest), std::clamp(range.upper, -Largest, Largest)};
        const double least = std::max(std::abs(range.lower), 1e-200) * 1e-9;
        const double room = range.size() > least ? range.size() * Margin
            : range.lower != 0                   ? std::abs(range.lower) * Margin
                                                 : 1;
        range = {range.lower - room, range.upper + room};
    }
    axis->setRange(range);
}

void PlotView::fit()
{
    for (QCPAxis* axis : {xAxis, yAxis, yAxis2}) {
        fitAxis(axis);
    }
    m_isFitting = true;
    m_fitted = {xAxis->range(), yAxis->range(), yAxis2->range()};
}

bool PlotView::isFitted() const
{
    return m_fitted == QList<QCPRange>{xAxis->range(), yAxis->range(), yAxis2->range()};
}

/// Axes with an aspect follow the X axis; when everything shall be seen, it first gives them what room they need.
void PlotView::keepAspects()
{
    const bool wasFitted = isFitted();
    const std::array axes{yAxis, yAxis2};
    for (std::size_t i = 0; i < axes.size(); ++i) {
        QCPAxis* axis = axes.at(i);
        if (!m_aspects.at(i) || !axis->visible() || axis->scaleType() != QCPAxis::stLinear
            || xAxis->scaleType() != QCPAxis::stLinear || axisRect()->height() <= 0 || axisRect()->width() <= 0) {
            continue;
        }
        const double aspect = *m_aspects.at(i);
        if (m_isFitting) {
            const double needed = axis->range().size() / aspect * axisRect()->width() / axisRect()->height();
            if (needed > xAxis->range().size()) {
                xAxis->setRange(xAxis->range().center(), needed, Qt::AlignCenter);
            }
        }
        axis->setScaleRatio(xAxis, aspect);
    }
    if (m_isFitting || wasFitted) {
        m_fitted = {xAxis->range(), yAxis->range(), yAxis2->range()};
    }
    m_isFitting = false;
}

/// Numbers that differ by less than a double can say would be all the same place.
void PlotView::keepRange(QCPAxis* axis, const QCPRange& range, const QCPRange& before)
{
    constexpr double Finest = 1e-12;
    const bool isTooFine = range.size() < Finest * std::max(std::abs(range.lower), std::abs(range.upper));
    if (isTooFine && before.size() > range.size()) {
        const QSignalBlocker blocker(axis);
        axis->setRange(before);
    }
}

void PlotView::zoom(double factor)
{
    for (QCPAxis* axis : shownAxes()) {
        const bool isLogarithmic = axis->scaleType() == QCPAxis::stLogarithmic;
        axis->scaleRange(factor,
                         isLogarithmic ? std::sqrt(axis->range().lower) * std::sqrt(axis->range().upper)
                                       : axis->range().center());
    }
}

void PlotView::move(double right, double up)
{
    for (QCPAxis* axis : shownAxes()) {
        const double share = axis == xAxis ? right : up;
        if (axis->scaleType() == QCPAxis::stLogarithmic) {
            axis->moveRange(std::pow(axis->range().upper / axis->range().lower, share));
        } else {
            axis->moveRange(axis->range().size() * share);
        }
    }
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
    draw();
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
