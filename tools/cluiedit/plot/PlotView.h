#pragma once

#include "DenseGraph.h"
#include "NoticeBox.h"
#include "PlotRanges.h"

#include <QColor>
#include <QList>
#include <QStringList>

#include <qcustomplot.h>

#include <optional>

namespace cluiedit {

/// The picture of curves: zoomed and moved by mouse and keyboard, in the colours of the palette, with notices of what
/// cannot be drawn.
///
/// A drag moves it, the wheel and + and - zoom, the arrow keys move; a drag with Shift, or in the mode for it, zooms to
/// the rectangle; a double click and Home show everything. The mouse, or the arrow keys with Ctrl, point at a place to
/// be read out.
class PlotView : public QCustomPlot
{
    Q_OBJECT

public:
    explicit PlotView(QWidget* parent = nullptr);

    /// Puts \p graphs, which must be of this plot, in place of those that are there.
    void setGraphs(const QList<DenseGraph*>& graphs);
    const QList<DenseGraph*>& graphs() const { return m_graphs; }

    /// What stands in the picture instead of curves, a sentence each.
    void setNotices(const QStringList& notices);
    const QStringList& notices() const { return m_noticeBox->notices(); }

    using Aspects = PlotRanges::Aspects;
    void setAspects(const Aspects& aspects) { m_ranges.setAspects(aspects); }

    QCPAxis* axisOf(PlotAxis axis) const;

    void setLegendShown(bool isShown);
    /// How wide a name in the legend may be.
    int roomInLegend() const;

    void setGridColor(const std::optional<QColor>& color);
    void setLogarithmic(QCPAxis* axis, bool isLogarithmic);

    /// Shows all points of all curves.
    void fit() { m_ranges.fit(m_graphs); }
    /// Whether the ranges are those that fit() gave them.
    bool isFitted() const { return m_ranges.isFitted(); }
    /// By \p factor, which is above 1 to see more.
    void zoom(double factor) { m_ranges.zoom(factor); }
    /// By shares of the frame.
    void move(double right, double up) { m_ranges.move(right, up); }
    void setZoomsToRectangle(bool zooms) { m_zoomsToRectangle = zooms; }

    /// Axes keep their aspect.
    void drawNow() { replot(rpImmediateRefresh); }

signals:
    /// Somebody points at this place of the picture.
    void pointed(const QPointF& pixel);
    /// Nobody points at the picture any more.
    void left();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void applyPalette();
    void point(double right);

    QList<DenseGraph*> m_graphs;
    PlotRanges m_ranges;
    NoticeBox* m_noticeBox; // the plot's
    std::optional<QColor> m_gridColor;
    std::optional<QPointF> m_cursor; // the place that is read out
    bool m_zoomsToRectangle = false;
};

} // namespace cluiedit
