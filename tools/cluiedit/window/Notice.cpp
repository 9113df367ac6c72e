#include "Notice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace cluiedit {

Notices::Notices(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
}

void Notices::show(const QString& kind, const Notice& notice)
{
    hide(kind);
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(QPalette::ToolTipBase);
    auto* icon = new QLabel(frame);
    const auto symbol = notice.isWarning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(symbol).pixmap(size));
    icon->setAccessibleName(notice.isWarning ? tr("Warning") : tr("Note"));
    auto* label = new QLabel(notice.text, frame);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addWidget(label, 1);
    auto* close = new QToolButton(frame);
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close this message"));
    close->setAccessibleName(close->toolTip());
    connect(close, &QToolButton::clicked, this, [this, kind] { hide(kind); });
    top->addWidget(close, 0, Qt::AlignTop);

    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(6, 4, 4, 4);
    layout->addLayout(top);
    if (!notice.answers.isEmpty()) {
        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        for (const Notice::Answer& answer : notice.answers) {
            auto* button = new QPushButton(answer.label, frame);
            button->setAutoDefault(true);
            connect(button, &QPushButton::clicked, this, [this, kind, action = answer.action] {
                hide(kind); // first: the action may show another one of the kind
                action();
            });
            buttons->addWidget(button);
        }
        layout->addLayout(buttons);
    }
    frame->setAccessibleName(notice.text);
    m_layout->addWidget(frame);
    frame->show();
    m_frames[kind] = frame;
}

void Notices::hide(const QString& kind)
{
    const auto found = m_frames.find(kind);
    if (found != m_frames.end()) {
        found->second->hide();
        found->second->deleteLater();
        m_frames.erase(found);
    }
}

QString Notices::text(const QString& kind) const
{
    const auto found = m_frames.find(kind);
    return found == m_frames.end() ? QString() : found->second->accessibleName();
}

} // namespace cluiedit
