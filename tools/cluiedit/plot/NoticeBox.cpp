#include "NoticeBox.h"

using namespace Qt::StringLiterals;

namespace cluiedit {

NoticeBox::NoticeBox(QCustomPlot* plot)
    : QCPLayerable(plot, u"overlay"_s)
{
}

void NoticeBox::applyDefaultAntialiasingHint(QCPPainter* painter) const
{
    painter->setAntialiasing(true);
}

void NoticeBox::draw(QCPPainter* painter)
{
    if (m_notices.isEmpty()) {
        return;
    }
    constexpr int Margin = 10;
    constexpr int Padding = 6;
    constexpr int Opacity = 225;
    constexpr int Flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere | Qt::TextWordWrap;
    const QRect frame = mParentPlot->axisRect()->rect().adjusted(Margin, Margin, -Margin, -Margin);
    const QString text = m_notices.join(u'\n');
    painter->setFont(mParentPlot->font());
    const QRect room =
        painter->fontMetrics().boundingRect(frame.adjusted(Padding, Padding, -Padding, -Padding), Flags, text);
    QColor ground = mParentPlot->palette().color(QPalette::ToolTipBase);
    ground.setAlpha(Opacity);
    painter->setPen(mParentPlot->palette().color(QPalette::Mid));
    painter->setBrush(ground);
    painter->drawRect(room.adjusted(-Padding, -Padding, Padding, Padding));
    painter->setPen(mParentPlot->palette().color(QPalette::ToolTipText));
    painter->drawText(room, Flags, text);
}

} // namespace cluiedit
