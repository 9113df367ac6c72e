#pragma once

#include "DenseGraph.h"

#include <QColor>
#include <QList>
#include <QStringList>

#include <qcustomplot.h>

#include <array>
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
    const QStringList& notices() const { return m_notices; }

    /// For the first and the second Y axis: how much of its range is as long as one of the X axis's; nothing for any.
    using Aspects = std::array<std::optional<double>, 2>;
    void setAspects(const Aspects& aspects) { m_aspects = aspects; }

    void setLegendShown(bool isShown);
    /// How wide a name in the legend may be.
    int roomInLegend() const;

    void setGridColor(const std::optional<QColor>& color);
    void setLogarithmic(QCPAxis* axis, bool isLogarithmic);

    /// Shows all points of all curves.
    void fit();
    /// Whether the ranges are those that fit() gave them.
    bool isFitted() const;
    /// By \p factor, which is above 1 to see more.
    void zoom(double factor);
    /// By shares of the frame.
    void move(double right, double up);
    void setZoomsToRectangle(bool zooms) { m_zoomsToRectangle = zooms; }

    /// Draws at once. Axes keep their aspect.
    void draw() { replot(rpImmediateRefresh); }

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
    class Notices;

    void applyPalette();
    void keepAspects();
    void fitAxis(QCPAxis* axis);
    QList<QCPAxis*> shownAxes() const;
    void point(double right);
    void keepRange(QCPAxis* axis, const QCPRange& range, const QCPRange& before);

    QList<DenseGraph*> m_graphs;
    QStringList m_notices;
    Aspects m_aspects;
    std::optional<QColor> m_gridColor;
    QList<QCPRange> m_fitted; // ranges as fit() left them
    std::optional<QPointF> m_cursor; // the place that is read out
    bool m_isFitting = false; // until the next layout
    bool m_zoomsToRectangle = false;
};

} // namespace cluiedit
