#pragma once

#include "FindingMarks.h"
#include "TextSearch.h"

#include <Qsci/qsciscintilla.h>
#include <check/Finding.h>
#include <cluiedit/reading/Snapshot.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

class QsciLexerJSON;

namespace cluiedit {

class CompletionPopup;
struct Candidate;

/// The text of a document, to be edited. All offsets are bytes of it.
class Editor : public QsciScintilla
{
    Q_OBJECT

public:
    /// Documents from this size on have no colours and cannot be folded, and completion comes only when it is asked
    /// for.
    /// Neither have those with lines of more than 100,000 bytes, of which only the beginning is shown.
    static constexpr qsizetype LargeSize = 5'000'000;

    explicit Editor(QWidget* parent = nullptr);

    /// The text as it would be saved: line ends and a byte-order mark as they are.
    QByteArray bytes() const;

    /// Takes \p bytes as a new document, unmodified, in which there is nothing to undo. New lines get the line end of
    /// its first line.
    void open(const QByteArray& bytes);

    /// Changes the text to \p bytes as one step to undo. The cursor stays in its line, and the view where it is, as far
    /// as the text goes.
    void replaceText(const QByteArray& bytes);

    /// Puts in each of \p matches its replacement, as one step to undo.
    ///
    /// REQUIRES: \p matches are in order and do not overlap.
    void replaceAll(const QList<Match>& matches);

    /// Underlines \p findings and marks their lines, in place of those that are shown.
    void showFindings(const QList<cluiconfig::check::Finding>& findings);
    /// The messages of the findings at \p offset, a line each; empty if there are none.
    QString findingsAt(qsizetype offset) const;

    /// Shows where \p matches are, in place of those that are shown.
    void showMatches(const QList<Match>& matches);

    /// The last text that the application loads: completion offers the names that it gives. Null gives none.
    void setLastGood(std::shared_ptr<const Snapshot> snapshot) { m_lastGood = std::move(snapshot); }

    /// Puts the cursor at \p offset, or at the end of a shorter text, where people see it, and takes the focus.
    void goTo(qsizetype offset);
    qsizetype cursorOffset() const;
    /// Selects from \p begin to \p end, and shows it.
    void select(qsizetype begin, qsizetype end);

    /// Writes what is meant at the finding at the cursor, or else at the first one of its line that knows it; false if
    /// none does.
    bool mend();

    /// Goes to where that is defined which stands at the cursor; stays where nothing defines it.
    void goToDefinition();
    /// Goes where the cursor was before it went to a definition, and back to that.
    void goBack();
    void goForward();

    /// Offers what may stand at the cursor.
    void complete();

signals:
    void bytesChanged();
    void cursorMoved(qsizetype offset);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    static constexpr int IndentWidth = 4;
    static constexpr int MatchIndicator = 10; // behind those of the findings

    void setUp();
    void setLook();
    void setStyleOfTokens(bool isDark);
    void adaptToSize();
    void hideLongLines();
    bool hasLongLine() const;
    void adaptLineNumbers();
    void noteChange(int position, int type, int length);
    bool runCommand(const QKeyEvent& event);
    void breakLine(QKeyEvent* event);
    void alignClosing(int letter);
    void showToolTip(const QPoint& place);
    void offer(bool isAsked);
    void putIn(const Candidate& candidate);
    void replaceRange(qsizetype begin, qsizetype end, const QByteArray& text);
    void goAlong(QList<qsizetype>& from, QList<qsizetype>& to);
    QByteArray view() const;
    int lineOf(qsizetype offset) const;
    bool isLarge() const { return length() >= LargeSize; }

    QsciLexerJSON* m_lexer; // owned as a child
    CompletionPopup* m_popup; // owned as a child
    FindingMarks m_marks;
    std::shared_ptr<const Snapshot> m_lastGood;
    QList<qsizetype> m_back; // places
    QList<qsizetype> m_forward;
    qsizetype m_candidatesBegin = 0; // what a candidate takes the place of
    qsizetype m_candidatesEnd = 0;
};

} // namespace cluiedit
