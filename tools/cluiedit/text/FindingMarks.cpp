#include "FindingMarks.h"

#include "Position.h"

#include <Qsci/qsciscintilla.h>

#include <QByteArrayView>
#include <QColor>
#include <QStringList>

#include <algorithm>

using cluiconfig::check::Finding;
using cluiconfig::check::Severity;

namespace cluiedit {

namespace {

using Base = QsciScintillaBase;

qsizetype length(const QsciScintilla& view)
{
    return view.SendScintilla(Base::SCI_GETLENGTH);
}

char letterAt(const QsciScintilla& view, qsizetype offset)
{
    return static_cast<char>(view.SendScintilla(Base::SCI_GETCHARAT, position(offset)));
}

/// The end of the string or word that begins at \p offset; behind the character there if there is none.
qsizetype endOfToken(const QsciScintilla& view, qsizetype offset)
{
    const qsizetype size = length(view);
    const bool isString = letterAt(view, offset) == '"';
    qsizetype end = offset + (isString ? 1 : 0);
    const QByteArrayView stops = isString ? "\"\r\n" : " \t\r\n,:{}[]\"";
    while (end < size && !stops.contains(letterAt(view, end))) {
        end += isString && letterAt(view, end) == '\\' ? 2 : 1;
    }
    if (isString && end < size && letterAt(view, end) == '"') {
        ++end;
    }
    end = std::min(end, size);
    return end > offset ? end : view.SendScintilla(Base::SCI_POSITIONAFTER, position(offset));
}

} // namespace

FindingMarks::FindingMarks(QsciScintilla& view)
    : m_view(view)
{
    m_view.indicatorDefine(QsciScintilla::SquiggleIndicator, ErrorIndicator);
    m_view.indicatorDefine(QsciScintilla::DashesIndicator, WarningIndicator);
    m_view.markerDefine(QsciScintilla::Circle, ErrorSign);
    m_view.markerDefine(QsciScintilla::RightTriangle, WarningSign);
}

void FindingMarks::setLook(bool isDark)
{
    const QColor error = isDark ? QColor(255, 110, 110) : QColor(205, 0, 0);
    const QColor warning = isDark ? QColor(255, 183, 77) : QColor(190, 110, 0);
    m_view.setIndicatorForegroundColor(error, ErrorIndicator);
    m_view.setIndicatorForegroundColor(warning, WarningIndicator);
    for (const auto& [sign, color] : {std::pair(ErrorSign, error), std::pair(WarningSign, warning)}) {
        m_view.setMarkerBackgroundColor(color, sign);
        m_view.setMarkerForegroundColor(color, sign);
    }
}

void FindingMarks::show(const QList<Finding>& findings)
{
    if (!m_isMoved && std::ranges::equal(findings, m_shown, &Finding::saysTheSameAs)) {
        return;
    }
    m_shown = findings;
    m_isMoved = false;
    m_marks.clear();
    for (const int indicator : {ErrorIndicator, WarningIndicator}) {
        m_view.SendScintilla(Base::SCI_SETINDICATORCURRENT, indicator);
        m_view.SendScintilla(Base::SCI_INDICATORCLEARRANGE, 0UL, static_cast<long>(length(m_view)));
    }
    m_view.markerDeleteAll(ErrorSign);
    m_view.markerDeleteAll(WarningSign);
    for (const Finding& finding : findings) {
        Mark mark{finding};
        mark.finding.offset = std::clamp<qsizetype>(finding.offset, 0, length(m_view));
        mark.end = mark.finding.offset < length(m_view) ? endOfToken(m_view, mark.finding.offset) : mark.finding.offset;
        draw(mark);
        m_marks.push_back(mark);
    }
}

void FindingMarks::draw(const Mark& mark)
{
    const bool isError = mark.finding.severity == Severity::Error;
    qsizetype begin = mark.finding.offset;
    const char letter = begin < length(m_view) ? letterAt(m_view, begin) : '\n';
    if (letter == '\n' || letter == '\r') { // where nothing could be seen
        begin = m_view.SendScintilla(Base::SCI_POSITIONBEFORE, position(begin));
    }
    m_view.SendScintilla(Base::SCI_SETINDICATORCURRENT, isError ? ErrorIndicator : WarningIndicator);
    m_view.SendScintilla(Base::SCI_INDICATORFILLRANGE, position(begin), static_cast<long>(mark.end - begin));
    const auto line = static_cast<int>(m_view.SendScintilla(Base::SCI_LINEFROMPOSITION, position(mark.finding.offset)));
    const int sign = isError ? ErrorSign : WarningSign;
    if ((m_view.markersAtLine(line) & (1U << static_cast<unsigned>(sign))) == 0) {
        m_view.markerAdd(line, sign);
    }
}

void FindingMarks::shift(qsizetype offset, qsizetype count)
{
    m_isMoved = true;
    const auto moved = [&](qsizetype place) { return place < offset ? place : std::max(offset, place + count); };
    for (Mark& mark : m_marks) {
        mark.finding.offset = moved(mark.finding.offset);
        mark.end = moved(mark.end);
    }
    // What is gone with its text has nothing more to say.
    std::erase_if(m_marks,
                  [&](const Mark& mark) { return count < 0 && mark.finding.offset == offset && mark.end == offset; });
}

QString FindingMarks::messagesAt(qsizetype offset) const
{
    QStringList messages;
    for (const Mark& mark : m_marks) {
        if (mark.finding.offset == offset || (mark.finding.offset < offset && offset < mark.end)) {
            messages.append(mark.finding.message);
        }
    }
    return messages.join(u'\n');
}

QString FindingMarks::messagesWithin(qsizetype begin, qsizetype end) const
{
    QStringList messages;
    for (const Mark& mark : m_marks) {
        if (begin <= mark.finding.offset && mark.finding.offset <= end) {
            messages.append(mark.finding.message);
        }
    }
    return messages.join(u'\n');
}

const Finding* FindingMarks::mendable(qsizetype offset, qsizetype begin, qsizetype end) const
{
    const Mark* best = nullptr;
    for (const Mark& mark : m_marks) {
        const qsizetype from = mark.finding.offset;
        if (mark.finding.instead.isEmpty() || letterAt(m_view, from) != '"') {
            continue;
        }
        if (from <= offset && offset <= mark.end) {
            return &mark.finding;
        }
        if (best == nullptr && begin <= from && from <= end) {
            best = &mark;
        }
    }
    return best == nullptr ? nullptr : &best->finding;
}

} // namespace cluiedit
