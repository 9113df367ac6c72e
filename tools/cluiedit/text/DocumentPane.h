#pragma once

#include <QWidget>

class QAction;

namespace cluiedit {

class Editor;
class FindBar;

/// The text of a document with the bar to find and replace in it, and the actions for that, which a window puts into
/// its menus: actions().
class DocumentPane : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentPane(QWidget* parent = nullptr);

    Editor& editor() const { return *m_editor; }
    FindBar& findBar() const { return *m_findBar; }

private:
    template <typename Slot>
    void addCommand(const QString& text, const QKeySequence& shortcut, Slot slot);

    Editor* m_editor; // children
    FindBar* m_findBar;
};

} // namespace cluiedit
