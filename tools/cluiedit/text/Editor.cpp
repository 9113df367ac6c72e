#include "Editor.h"

#include "Completion.h"
#include "CompletionPopup.h"
#include "Definition.h"
#include "JsonPlace.h"
#include "Position.h"

#include <Qsci/qscilexerjson.h>

#include <QKeyEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using cluiconfig::check::Finding;

namespace cluiedit {

namespace {

constexpr qsizetype MostMatchesShown = 10'000;

QsciScintilla::EolMode lineEndOf(const QByteArray& bytes)
{
    const qsizetype feed = bytes.indexOf('\n');
    if (feed < 0) {
        return bytes.contains('\r') ? QsciScintilla::EolMac : QsciScintilla::EolUnix;
    }
    return feed > 0 && bytes.at(feed - 1) == '\r' ? QsciScintilla::EolWindows : QsciScintilla::EolUnix;
}

} // namespace

Editor::Editor(QWidget* parent)
    : QsciScintilla(parent)
    , m_lexer(new QsciLexerJSON(this))
    , m_popup(new CompletionPopup(this))
    , m_marks(*this)
{
    setUp();
    setLook();
    adaptToSize();
    connect(this, &QsciScintilla::textChanged, this, &Editor::bytesChanged);
    connect(this, &QsciScintilla::linesChanged, this, &Editor::adaptLineNumbers);
    connect(this, &QsciScintilla::cursorPositionChanged, this, [this] { emit cursorMoved(cursorOffset()); });
    connect(this, &QsciScintillaBase::SCN_CHARADDED, this, &Editor::alignClosing);
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int at, int type, const char* /*text*/, int length) { noteChange(at, type, length); });
    connect(m_popup, &CompletionPopup::chosen, this, &Editor::putIn);
}

QByteArray Editor::view() const
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the component hands out everything as a number
    const auto* text = reinterpret_cast<const char*>(SendScintilla(SCI_GETCHARACTERPOINTER));
    return QByteArray::fromRawData(text, SendScintilla(SCI_GETLENGTH));
}

QByteArray Editor::bytes() const
{
    const QByteArray text = view();
    return {text.constData(), text.size()};
}

void Editor::open(const QByteArray& bytes)
{
    m_popup->hide();
    m_back.clear();
    m_forward.clear();
    m_marks.show({});
    SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
    clear();
    setLexer(nullptr); // what is large should not be styled before that is known
    setEolMode(lineEndOf(bytes));
    SendScintilla(SCI_ALLOCATE, position(bytes.size()));
    SendScintilla(SCI_APPENDTEXT, position(bytes.size()), bytes.constData());
    SendScintilla(SCI_SETUNDOCOLLECTION, 1UL);
    SendScintilla(SCI_EMPTYUNDOBUFFER);
    SendScintilla(SCI_SETSAVEPOINT);
    SendScintilla(SCI_SETXOFFSET, 0UL);
    adaptToSize();
    SendScintilla(SCI_GOTOPOS, 0UL);
}

void Editor::replaceRange(qsizetype begin, qsizetype end, const QByteArray& text)
{
    SendScintilla(SCI_SETTARGETRANGE, position(begin), static_cast<long>(end));
    SendScintilla(SCI_REPLACETARGET, position(text.size()), text.constData());
}

void Editor::replaceText(const QByteArray& bytes)
{
    const QByteArray old = view();
    const auto [oldBegin, newBegin] = std::ranges::mismatch(old, bytes);
    const qsizetype same = std::distance(old.begin(), oldBegin);
    if (same == old.size() && same == bytes.size()) {
        return;
    }
    const qsizetype mostSame = std::min(old.size(), bytes.size()) - same;
    qsizetype sameAtEnd = 0;
    while (sameAtEnd < mostSame && old.at(old.size() - 1 - sameAtEnd) == bytes.at(bytes.size() - 1 - sameAtEnd)) {
        ++sameAtEnd;
    }
    int line = 0;
    int column = 0;
    getCursorPosition(&line, &column);
    const int firstLine = firstVisibleLine();
    beginUndoAction();
    replaceRange(same, old.size() - sameAtEnd, bytes.sliced(same, bytes.size() - sameAtEnd - same));
    endUndoAction();
    adaptToSize();
    setCursorPosition(std::min(line, lines() - 1), column);
    setFirstVisibleLine(firstLine);
}

void Editor::replaceAll(const QList<Match>& matches)
{
    beginUndoAction();
    for (qsizetype i = matches.size(); i > 0; --i) { // from the end: the places of those before stay
        const Match& match = matches.at(i - 1);
        replaceRange(match.begin, match.end, match.replacement);
    }
    endUndoAction();
}

void Editor::showFindings(const QList<Finding>& findings)
{
    m_marks.show(findings);
}

QString Editor::findingsAt(qsizetype offset) const
{
    return m_marks.messagesAt(offset);
}

void Editor::showMatches(const QList<Match>& matches)
{
    SendScintilla(SCI_SETINDICATORCURRENT, MatchIndicator);
    SendScintilla(SCI_INDICATORCLEARRANGE, 0UL, static_cast<long>(length()));
    for (const Match& match : matches.first(std::min(matches.size(), MostMatchesShown))) {
        SendScintilla(SCI_INDICATORFILLRANGE, position(match.begin), static_cast<long>(match.end - match.begin));
    }
}

int Editor::lineOf(qsizetype offset) const
{
    return static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, position(offset)));
}

void Editor::goTo(qsizetype offset)
{
    const qsizetype place = std::clamp<qsizetype>(offset, 0, length());
    m_popup->hide();
    SendScintilla(SCI_ENSUREVISIBLE, position(lineOf(place)));
    SendScintilla(SCI_GOTOPOS, position(place));
    const long line = SendScintilla(SCI_VISIBLEFROMDOCLINE, position(lineOf(place)));
    setFirstVisibleLine(static_cast<int>(std::max(0L, line - SendScintilla(SCI_LINESONSCREEN) / 3)));
    setFocus();
}

qsizetype Editor::cursorOffset() const
{
    return SendScintilla(SCI_GETCURRENTPOS);
}

void Editor::select(qsizetype begin, qsizetype end)
{
    SendScintilla(SCI_ENSUREVISIBLE, position(lineOf(begin)));
    SendScintilla(SCI_SETSEL, position(begin), static_cast<long>(end));
}

bool Editor::mend()
{
    const int line = lineOf(cursorOffset());
    const qsizetype lineBegin = SendScintilla(SCI_POSITIONFROMLINE, position(line));
    const qsizetype lineEnd = SendScintilla(SCI_GETLINEENDPOSITION, position(line));
    const Finding* const finding = m_marks.mendable(cursorOffset(), lineBegin, lineEnd);
    if (finding == nullptr) {
        return false;
    }
    m_popup->hide();
    const qsizetype begin = finding->offset;
    const QByteArray text = jsonString(finding->instead);
    const JsonToken token = placeAt(view(), begin).token;
    if (token.begin != begin) {
        return false;
    }
    beginUndoAction();
    replaceRange(begin, token.end, QByteArray()); // so that the mark goes with what it was about
    replaceRange(begin, begin, text);
    endUndoAction();
    SendScintilla(SCI_GOTOPOS, position(begin + text.size()));
    return true;
}

void Editor::goToDefinition()
{
    const qsizetype from = cursorOffset();
    const qsizetype place = definitionOf(view(), from);
    if (place >= 0) {
        m_back.append(from);
        m_forward.clear();
        goTo(place);
    }
}

void Editor::goBack()
{
    goAlong(m_back, m_forward);
}

void Editor::goForward()
{
    goAlong(m_forward, m_back);
}

void Editor::goAlong(QList<qsizetype>& from, QList<qsizetype>& to)
{
    if (!from.isEmpty()) {
        to.append(cursorOffset());
        goTo(from.takeLast());
    }
}

void Editor::noteChange(int at, int type, int length)
{
    const bool isInserted = (type & SC_MOD_INSERTTEXT) != 0;
    if (!isInserted && (type & SC_MOD_DELETETEXT) == 0) {
        return;
    }
    m_marks.shift(at, isInserted ? length : -length);
    for (QList<qsizetype>* const places : {&m_back, &m_forward}) {
        for (qsizetype& place : *places) {
            place = place < at ? place : std::max<qsizetype>(at, place + (isInserted ? length : -length));
        }
    }
}

void Editor::complete()
{
    offer(true);
}

void Editor::offer(bool isAsked)
{
    static const uiconfig::Configuration nothing;
    const uiconfig::Configuration& lastGood = m_lastGood ? m_lastGood->configuration() : nothing;
    const qsizetype cursor = cursorOffset();
    Candidates found = candidates(view(), cursor, lastGood);
    const auto isTyped = [&](const Candidate& each) { return each.label == found.typed; };
    if (!isAsked && (!found.isOpen || std::ranges::any_of(found.list, isTyped))) {
        m_popup->hide();
        return;
    }
    qsizetype current = 0;
    if (isAsked && std::ranges::any_of(found.list, isTyped)) {
        // What stands there is complete: somebody wants to see the others.
        const QString typed = found.typed;
        found = candidates(view(), found.begin, lastGood);
        const auto chosen = std::ranges::find(found.list, typed, &Candidate::label);
        current = chosen == found.list.end() ? 0 : std::distance(found.list.begin(), chosen);
    }
    m_candidatesBegin = found.begin;
    m_candidatesEnd = found.end;
    const auto place = [&](qsizetype offset, unsigned message) {
        return static_cast<int>(SendScintilla(message, 0UL, static_cast<long>(offset)));
    };
    const QPoint corner(place(found.begin, SCI_POINTXFROMPOSITION), place(cursor, SCI_POINTYFROMPOSITION));
    const QSize size(1, textHeight(lineOf(cursor)));
    m_popup->present(found.list, current, QRect(viewport()->mapToGlobal(corner), size));
}

void Editor::putIn(const Candidate& candidate)
{
    const QByteArray text = candidate.text.toUtf8();
    const qsizetype end = std::min<qsizetype>(m_candidatesEnd, length());
    beginUndoAction();
    replaceRange(std::min(m_candidatesBegin, end), end, text);
    endUndoAction();
    SendScintilla(SCI_GOTOPOS, position(std::min(m_candidatesBegin, end) + text.size()));
}

} // namespace cluiedit
