#include "Editor.h"

#include <Qsci/qscilexerjson.h>

#include <QEvent>
#include <QFontDatabase>
#include <QPalette>

using namespace Qt::StringLiterals;

/// \file EditorLook.cpp
/// How the editor looks: margins, colours, folding.

namespace cluiedit {

namespace {

constexpr int NumberColumn = 0;
constexpr int SignColumn = 1;
constexpr int FoldColumn = 2;
constexpr int FirstFoldSign = 25;
constexpr int LastFoldSign = 31;
constexpr int LeastDigits = 4;
constexpr int HiddenStyle = 60; // beyond those of the lexer
constexpr int HintStyle = 61;
constexpr qsizetype LongestLine = 100'000; // bytes; one that is longer takes too long to be measured and drawn
constexpr qsizetype ShownOfLongLine = 20'000;

/// \p share of \p a, the rest of \p b.
QColor mixed(const QColor& a, const QColor& b, float share)
{
    const auto mix = [share](float first, float second) { return first * share + second * (1 - share); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

} // namespace

void Editor::setUp()
{
    setAccessibleName(tr("Document"));
    setUtf8(true);
    setIndentationsUseTabs(false);
    setTabWidth(IndentWidth);
    setTabIndents(true);
    setBackspaceUnindents(true);
    setBraceMatching(SloppyBraceMatch);
    setCaretLineVisible(true);
    setMarginType(NumberColumn, NumberMargin);
    setMarginType(SignColumn, SymbolMargin);
    setMarginMarkerMask(SignColumn, (1 << FindingMarks::ErrorSign) | (1 << FindingMarks::WarningSign));
    setMarginWidth(SignColumn, fontMetrics().height());
    indicatorDefine(BoxIndicator, MatchIndicator);
    setIndicatorDrawUnder(true, MatchIndicator);
    setAnnotationDisplay(AnnotationStandard);
    SendScintilla(SCI_SETSCROLLWIDTH, 1UL);
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);
    // A byte-order mark has no shape of its own.
    SendScintilla(SCI_SETREPRESENTATION, reinterpret_cast<uintptr_t>("\xEF\xBB\xBF"), "BOM");
}

void Editor::setLook()
{
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    const bool isDark = base.lightness() < text.lightness();
    const QColor faint = mixed(text, base, 0.55F);
    const QColor margin = mixed(text, base, 0.05F);
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);

    setFont(font);
    setColor(text);
    setPaper(base);
    setMarginsFont(font);
    setMarginsForegroundColor(faint);
    setMarginsBackgroundColor(margin);
    setFoldMarginColors(margin, margin);
    for (int sign = FirstFoldSign; sign <= LastFoldSign; ++sign) {
        setMarkerForegroundColor(margin, sign);
        setMarkerBackgroundColor(faint, sign);
    }
    SendScintilla(SCI_STYLESETFORE, HintStyle, faint);
    SendScintilla(SCI_STYLESETBACK, HintStyle, margin);
    setCaretForegroundColor(text);
    setCaretLineBackgroundColor(mixed(text, base, 0.07F));
    setSelectionBackgroundColor(palette().color(QPalette::Highlight));
    setSelectionForegroundColor(palette().color(QPalette::HighlightedText));
    setMatchedBraceBackgroundColor(mixed(palette().color(QPalette::Highlight), base, 0.4F));
    setMatchedBraceForegroundColor(text);
    setUnmatchedBraceBackgroundColor(base);
    setUnmatchedBraceForegroundColor(text);
    setIndicatorForegroundColor(isDark ? QColor(240, 200, 70) : QColor(190, 130, 0), MatchIndicator);
    m_marks.setLook(isDark);
    setStyleOfTokens(isDark);
    adaptLineNumbers();
}

void Editor::setStyleOfTokens(bool isDark)
{
    const QColor text = palette().color(QPalette::Text);
    const auto color = [isDark](const QColor& light, const QColor& dark) { return isDark ? dark : light; };
    m_lexer->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_lexer->setDefaultColor(text);
    m_lexer->setDefaultPaper(palette().color(QPalette::Base));
    m_lexer->setPaper(palette().color(QPalette::Base));
    m_lexer->setColor(text);
    const QColor string = color({0, 95, 60}, {140, 210, 150});
    for (const int style : {QsciLexerJSON::String, QsciLexerJSON::IRI, QsciLexerJSON::IRICompact}) {
        m_lexer->setColor(string, style);
    }
    m_lexer->setColor(color({0, 70, 160}, {130, 185, 255}), QsciLexerJSON::Property);
    m_lexer->setColor(color({130, 60, 0}, {240, 180, 110}), QsciLexerJSON::Number);
    for (const int style : {QsciLexerJSON::Keyword, QsciLexerJSON::KeywordLD, QsciLexerJSON::EscapeSequence}) {
        m_lexer->setColor(color({120, 0, 130}, {220, 160, 240}), style);
    }
    for (const int style : {QsciLexerJSON::UnclosedString, QsciLexerJSON::Error}) {
        m_lexer->setColor(color({180, 0, 0}, {255, 120, 120}), style);
        m_lexer->setEolFill(false, style);
    }
}

void Editor::adaptToSize()
{
    const bool isPlain = isLarge() || hasLongLine();
    QsciLexer* const wanted = isPlain ? nullptr : m_lexer;
    if (lexer() != wanted) {
        setLexer(wanted);
        setLook();
    }
    hideLongLines();
    setFolding(isPlain ? NoFoldStyle : BoxedTreeFoldStyle, FoldColumn);
    adaptLineNumbers();
}

void Editor::hideLongLines()
{
    clearAnnotations();
    const QByteArray text = view();
    qsizetype end = 0;
    for (qsizetype begin = 0; begin < text.size(); begin = end + 1) {
        end = text.indexOf('\n', begin);
        end = end < 0 ? text.size() : end;
        if (end - begin <= LongestLine) {
            continue;
        }
        SendScintilla(SCI_STYLESETVISIBLE, HiddenStyle, 0L);
        SendScintilla(SCI_STARTSTYLING, static_cast<unsigned long>(begin + ShownOfLongLine), 0L);
        SendScintilla(SCI_SETSTYLING, static_cast<unsigned long>(end - begin - ShownOfLongLine),
                      static_cast<long>(HiddenStyle));
        const auto line = SendScintilla(SCI_LINEFROMPOSITION, static_cast<unsigned long>(begin));
        annotate(static_cast<int>(line), tr("Of this very long line only the beginning is shown."), HintStyle);
    }
}

bool Editor::hasLongLine() const
{
    const QByteArray text = view();
    qsizetype begin = 0;
    for (qsizetype end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n', begin)) {
        if (end - begin > LongestLine) {
            return true;
        }
        begin = end + 1;
    }
    return text.size() - begin > LongestLine;
}

void Editor::adaptLineNumbers()
{
    const auto digits = std::max<qsizetype>(LeastDigits, QString::number(lines()).size());
    setMarginWidth(NumberColumn, QString(digits + 1, u'0'));
}

void Editor::changeEvent(QEvent* event)
{
    QsciScintilla::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        setLook();
    }
}

} // namespace cluiedit
