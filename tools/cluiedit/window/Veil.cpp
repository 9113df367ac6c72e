#include "Veil.h"

#include <QEvent>
#include <QPainter>

namespace cluiedit {

Veil::Veil(QWidget* veiled)
    : QWidget(veiled)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    veiled->installEventFilter(this);
    hide();
}

void Veil::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int Opacity = 150; // of 255
    QColor color = palette().color(QPalette::Window);
    color.setAlpha(Opacity);
    QPainter(this).fillRect(rect(), color);
}

bool Veil::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::ChildAdded) {
        resize(parentWidget()->size());
        raise();
    }
    return QWidget::eventFilter(watched, event);
}

void Veil::showEvent(QShowEvent* event)
{
    resize(parentWidget()->size());
    raise();
    QWidget::showEvent(event);
}

} // namespace cluiedit
