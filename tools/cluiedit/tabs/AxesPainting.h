#pragma once

#include "AxesMatrix.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

/// \file AxesPainting.h
/// How the matrix of axes looks.

namespace cluiedit {

/// Paints the mark of \p pair into \p square: its axes left and below, a logarithmic one with ticks that close up, and
/// between them a dot, or a square where the axes are orthonormal.
void paintMark(QPainter& painter, const QRect& square, const AxesMatrix::Pair& pair);

/// Paints the marks of the pairs of an AxesMatrix.
class MarkDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// Column headings that read from bottom to top, so that narrow columns can have long names.
class UprightHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit UprightHeader(QWidget* parent = nullptr);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    QSize sectionSizeFromContents(int section) const override;
};

} // namespace cluiedit
