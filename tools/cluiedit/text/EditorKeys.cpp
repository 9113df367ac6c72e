#include "CompletionPopup.h"
#include "Editor.h"
#include "Position.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

/// \file EditorKeys.cpp
/// What the editor does with keys and the mouse.

namespace cluiedit {

void Editor::keyPressEvent(QKeyEvent* event)
{
    if ((m_popup->isVisible() && m_popup->handleKey(*event)) || runCommand(*event)) {
        event->accept();
        return;
    }
    const bool isBreak = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isBreak && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        breakLine(event);
        return;
    }
    const bool wasOffered = m_popup->isVisible();
    QsciScintilla::keyPressEvent(event);
    const bool isTyped = !event->text().isEmpty() && event->text().at(0).isPrint();
    const bool isErased = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    const bool isMove = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    const bool mayOffer = !isReadOnly() && !isLarge();
    if (mayOffer && (isTyped || (wasOffered && (isErased || isMove)))) {
        offer(false);
    } else if (!mayOffer || !event->text().isEmpty() || event->key() == Qt::Key_Home || event->key() == Qt::Key_End) {
        m_popup->hide();
    }
}

bool Editor::runCommand(const QKeyEvent& event)
{
    const QKeyCombination keys = event.keyCombination();
    if (keys == QKeyCombination(Qt::ControlModifier, Qt::Key_Space)) {
        complete();
    } else if (keys == QKeyCombination(Qt::AltModifier, Qt::Key_Return)) {
        mend();
    } else if (keys == QKeyCombination(Qt::Key_F12)) {
        goToDefinition();
    } else if (keys == QKeyCombination(Qt::AltModifier, Qt::Key_Left)) {
        goBack();
    } else if (keys == QKeyCombination(Qt::AltModifier, Qt::Key_Right)) {
        goForward();
    } else {
        return false;
    }
    return true;
}

/// A new line is set in as the one before it, and deeper behind what opens an object or a list.
void Editor::breakLine(QKeyEvent* event)
{
    m_popup->hide();
    beginUndoAction();
    QsciScintilla::keyPressEvent(event);
    const int line = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, position(cursorOffset())));
    if (line > 0) {
        const qsizetype end = SendScintilla(SCI_GETLINEENDPOSITION, position(line - 1));
        const qsizetype begin = SendScintilla(SCI_POSITIONFROMLINE, position(line - 1));
        char last = 0;
        for (qsizetype i = end - 1; i >= begin && last == 0; --i) {
            const auto letter = static_cast<char>(SendScintilla(SCI_GETCHARAT, position(i)));
            last = letter == ' ' || letter == '\t' ? '\0' : letter;
        }
        const auto next = static_cast<char>(SendScintilla(SCI_GETCHARAT, position(cursorOffset())));
        const bool isOpened = last == '{' || last == '[';
        const bool isClosed = next == '}' || next == ']';
        const int indent = indentation(line - 1);
        if (isOpened && isClosed) {
            SendScintilla(SCI_NEWLINE);
            setIndentation(line + 1, indent);
        }
        setIndentation(line, indent + (isOpened ? IndentWidth : 0));
        SendScintilla(SCI_GOTOPOS, position(SendScintilla(SCI_GETLINEINDENTPOSITION, position(line))));
    }
    endUndoAction();
}

/// What closes an object or a list on a line of its own stands below the line that opens it.
void Editor::alignClosing(int letter)
{
    const qsizetype at = cursorOffset() - 1;
    const int line = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, position(at)));
    if ((letter != '}' && letter != ']') || at != SendScintilla(SCI_GETLINEINDENTPOSITION, position(line))) {
        return;
    }
    // Only brackets of one style match.
    SendScintilla(SCI_COLOURISE, position(SendScintilla(SCI_GETENDSTYLED)), static_cast<long>(at + 1));
    const long opening = SendScintilla(SCI_BRACEMATCH, position(at), 0L);
    if (opening >= 0) {
        setIndentation(line, indentation(static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, position(opening)))));
        SendScintilla(SCI_GOTOPOS, position(SendScintilla(SCI_GETLINEINDENTPOSITION, position(line)) + 1));
    }
}

void Editor::focusOutEvent(QFocusEvent* event)
{
    m_popup->hide();
    QsciScintilla::focusOutEvent(event);
}

void Editor::mousePressEvent(QMouseEvent* event)
{
    m_popup->hide();
    QsciScintilla::mousePressEvent(event);
}

bool Editor::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        showToolTip(static_cast<QHelpEvent*>(event)->pos());
        return true;
    }
    if (event->type() == QEvent::Wheel) {
        m_popup->hide();
    }
    return QsciScintilla::viewportEvent(event);
}

void Editor::showToolTip(const QPoint& place)
{
    const auto x = static_cast<unsigned long>(std::max(0, place.x()));
    const long y = place.y();
    int margins = 0;
    for (int margin = 0; margin < 3; ++margin) {
        margins += marginWidth(margin);
    }
    QString text;
    if (place.x() < margins) {
        const qsizetype line =
            SendScintilla(SCI_LINEFROMPOSITION, position(SendScintilla(SCI_POSITIONFROMPOINT, x, y)));
        text = m_marks.messagesWithin(SendScintilla(SCI_POSITIONFROMLINE, position(line)),
                                      SendScintilla(SCI_GETLINEENDPOSITION, position(line)));
    } else if (const long offset = SendScintilla(SCI_POSITIONFROMPOINTCLOSE, x, y); offset >= 0) {
        text = m_marks.messagesAt(offset);
    }
    if (text.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    // As rich text, which is broken into lines.
    QToolTip::showText(viewport()->mapToGlobal(place),
                       u"<p>"_s + text.toHtmlEscaped().replace(u'\n', u"</p><p>"_s) + u"</p>"_s, viewport());
}

} // namespace cluiedit
