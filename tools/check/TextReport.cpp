#include "Reports.h"

#include "Cells.h"
#include "Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr auto Bold = "1"_L1;
constexpr auto Red = "1;31"_L1;
constexpr auto Green = "1;32"_L1;
constexpr auto Magenta = "1;35"_L1;

class Painter
{
public:
    explicit Painter(bool isColored)
        : m_isColored(isColored)
    {
    }
    QString operator()(QLatin1StringView color, const QString& text) const
    {
        return m_isColored ? u"\033[%1m%2\033[0m"_s.arg(color, text) : text;
    }

private:
    bool m_isColored;
};

QString counted(qsizetype count, const QString& what)
{
    return QString::number(count) + u' ' + what + (count == 1 ? QString() : u"s"_s);
}

/// \p pointer with its long keys cut off: it shall be read.
QString readable(const QString& pointer)
{
    constexpr qsizetype LongestKey = 80;
    QStringList steps = pointer.split(u'/');
    for (QString& step : steps) {
        if (step.size() > LongestKey) {
            step = step.first(step.at(LongestKey - 1).isHighSurrogate() ? LongestKey - 1 : LongestKey) + u'…';
        }
    }
    return printable(steps.join(u'/'));
}

/// The line of a finding, and a second one with a mark under the place.
QString quotation(const Finding& finding, const Painter& paint)
{
    const auto shown = [](QString part) { return printable(part.replace(u'\t', u' ')); };
    const QString number = QString::number(finding.line).rightJustified(5) + u" | "_s;
    const QString before = shown(finding.before);
    return number + before + shown(finding.after) + u'\n' + u"| "_s.rightJustified(number.size())
        + QString(cellCount(before), u' ') + paint(Green, u"^"_s) + u'\n';
}

} // namespace

QByteArray asText(const Report& report, const TextStyle& style)
{
    const Painter paint(style.isColored);
    const QString file = printable(report.file);
    QString text = paint(Bold, file) + u": "_s;
    text +=
        report.verdict.loads ? paint(Green, u"loads"_s) : paint(Red, u"refused: "_s) + printable(report.verdict.error);
    text += u'\n';
    for (const Finding& finding : report.findings) {
        const bool isError = finding.severity == Severity::Error;
        text += u"%1:%2:%3: "_s.arg(file, QString::number(finding.line), QString::number(finding.column));
        text += paint(isError ? Red : Magenta, toString(finding.severity) + u':') + u' ' + printable(finding.message);
        const QString where = finding.pointer.isEmpty() ? QString() : u" at "_s + readable(finding.pointer);
        text += u" ["_s + describe(finding.rule).name + where + u"]\n"_s;
        if (style.quotesLines && !(finding.before.isEmpty() && finding.after.isEmpty())) {
            text += quotation(finding, paint);
        }
    }
    if (!report.findings.isEmpty()) {
        const auto errors = std::count_if(report.findings.begin(), report.findings.end(),
                                          [](const Finding& each) { return each.severity == Severity::Error; });
        text += file + u": "_s + counted(errors, u"error"_s) + u", "_s
            + counted(report.findings.size() - errors, u"warning"_s) + u'\n';
    }
    return text.toUtf8();
}

} // namespace cluiconfig::check
