#include "AxesPainting.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace cluiedit {

namespace {

constexpr int TallestHeading = 210; // pixels
constexpr int HeadingMargin = 4;

/// Where the ticks of a logarithmic axis stand, as shares of its length: log10 of 2, 4, 6, 8 and 10.
constexpr std::array LogarithmicTicks{0.301, 0.602, 0.778, 0.903, 1.0};

} // namespace

void paintMark(QPainter& painter, const QRect& square, const AxesMatrix::Pair& pair)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(square).adjusted(6.5, 3.5, -3.5, -6.5);
    const double tick = 3.5;
    painter.drawLine(frame.bottomLeft(), frame.bottomRight());
    painter.drawLine(frame.bottomLeft(), frame.topLeft());
    for (const double share : LogarithmicTicks) {
        if (pair.isLogarithmicX) {
            const QPointF at(frame.left() + share * frame.width(), frame.bottom());
            painter.drawLine(at, at + QPointF(0, tick));
        }
        if (pair.isLogarithmicY) {
            const QPointF at(frame.left(), frame.bottom() - share * frame.height());
            painter.drawLine(at, at - QPointF(tick, 0));
        }
    }
    painter.setBrush(painter.pen().color());
    const double radius = frame.width() / 5;
    const QRectF center(frame.center() - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    if (pair.isOrthonormal) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(painter.pen().color(), 1.5));
        painter.drawRect(center.adjusted(-1, -1, 1, 1));
    } else {
        painter.drawEllipse(center);
    }
    painter.restore();
}

void MarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto* matrix = qobject_cast<const AxesMatrix*>(index.model());
    if (const auto pair = matrix == nullptr ? std::nullopt : matrix->pairAt(index)) {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        const int side = std::min(option.rect.width(), option.rect.height());
        paintMark(*painter, {option.rect.topLeft(), QSize(side, side)}, *pair);
        painter->restore();
    }
}

UprightHeader::UprightHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setSectionResizeMode(QHeaderView::Fixed);
}

void UprightHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    option.section = section;
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    painter->restore();

    painter->save();
    const bool isCurrent = selectionModel() != nullptr && selectionModel()->currentIndex().column() == section;
    QFont font = painter->font();
    font.setBold(isCurrent);
    painter->setFont(font);
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->translate(rect.bottomLeft());
    painter->rotate(-90);
    const QRect upright(HeadingMargin, 0, rect.height() - 2 * HeadingMargin, rect.width());
    const QString name = model()->headerData(section, Qt::Horizontal).toString();
    painter->drawText(upright, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(font).elidedText(name, Qt::ElideMiddle, upright.width()));
    painter->restore();
}

QSize UprightHeader::sectionSizeFromContents(int section) const
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const QString name = model()->headerData(section, Qt::Horizontal).toString();
    return {metrics.height() + HeadingMargin,
            std::min(metrics.horizontalAdvance(name) + 2 * HeadingMargin + 2, TallestHeading)};
}

} // namespace cluiedit
