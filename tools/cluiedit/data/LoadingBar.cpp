#include "LoadingBar.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace cluiedit {

namespace {

constexpr int Steps = 1000;

} // namespace

LoadingBar::LoadingBar(BackgroundLoad& load, QWidget* parent)
    : QWidget(parent)
    , m_load(load)
    , m_text(new QLabel)
    , m_bar(new QProgressBar)
{
    // The text gets what is left, and is shortened to it: a long name does not widen the window.
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_text->setTextFormat(Qt::PlainText);
    m_bar->setRange(0, Steps);
    m_bar->setFixedWidth(fontMetrics().averageCharWidth() * 24);
    auto* cancel = new QPushButton(tr("Ca&ncel"));
    cancel->setToolTip(tr("Stop loading measurements"));
    cancel->setAccessibleName(tr("Cancel loading"));
    connect(cancel, &QPushButton::clicked, &load, &BackgroundLoad::cancel);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_text, 1);
    layout->addWidget(m_bar);
    layout->addWidget(cancel);

    hide();
    connect(&load, &BackgroundLoad::progress, this, &LoadingBar::showProgress);
    connect(&load, &BackgroundLoad::finished, this, &QWidget::hide);
}

void LoadingBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showText();
}

void LoadingBar::showProgress(const QString& path, double fraction)
{
    const QString file = QFileInfo(path).fileName();
    const auto waiting = static_cast<int>(m_load.waiting());
    m_fullText = waiting == 0 ? tr("Loading %1").arg(file) : tr("Loading %1 (%2 more to come)").arg(file).arg(waiting);
    m_bar->setAccessibleName(m_fullText);
    m_text->setToolTip(path);
    m_bar->setValue(static_cast<int>(fraction * Steps));
    show();
    showText();
}

void LoadingBar::showText()
{
    m_text->setText(m_text->fontMetrics().elidedText(m_fullText, Qt::ElideMiddle, m_text->width()));
}

} // namespace cluiedit
