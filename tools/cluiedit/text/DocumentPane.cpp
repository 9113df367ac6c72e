#include "DocumentPane.h"

#include "Editor.h"
#include "FindBar.h"

#include <QAction>
#include <QVBoxLayout>

namespace cluiedit {

DocumentPane::DocumentPane(QWidget* parent)
    : QWidget(parent)
    , m_editor(new Editor(this))
    , m_findBar(new FindBar(*m_editor, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_editor, 1);
    layout->addWidget(m_findBar);
    setFocusProxy(m_editor);
    addCommand(tr("&Find…"), Qt::CTRL | Qt::Key_F, [this] { m_findBar->openToFind(); });
    addCommand(tr("&Replace…"), Qt::CTRL | Qt::Key_H, [this] { m_findBar->openToReplace(); });
    addCommand(tr("Find &next"), Qt::Key_F3, [this] { m_findBar->findNext(); });
    addCommand(tr("Find &previous"), Qt::SHIFT | Qt::Key_F3, [this] { m_findBar->findPrevious(); });
}

template <typename Slot>
void DocumentPane::addCommand(const QString& text, const QKeySequence& shortcut, Slot slot)
{
    auto* const action = new QAction(text, this);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    addAction(action);
}

} // namespace cluiedit
