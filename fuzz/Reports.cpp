#include "Reports.h"

#include "Fuzz.h"

#include <check/Reports.h>

#include <QStringConverter>

#include <rapidjson/document.h>
#include <rapidjson/reader.h>

#include <algorithm>

using cluiconfig::check::Finding;
using cluiconfig::check::Severity;

namespace fuzz {

namespace {

/// Whether \p text is JSON in UTF-8, in the word of a parser that is neither Qt's nor lenient.
bool isJson(const QByteArray& text)
{
    rapidjson::Document document;
    document.Parse<rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag>(
        text.constData(), static_cast<std::size_t>(text.size()));
    return !document.HasParseError();
}

void requirePlace(const Finding& finding, const QList<QByteArray>& lines, qsizetype size)
{
    require(finding.offset >= 0 && finding.offset <= size, "a place lies in the text");
    require(finding.line >= 1 && finding.line <= lines.size(), "a place is on a line of the text");
    require(finding.column >= 1 && finding.column <= lines.at(finding.line - 1).size() + 1,
            "a place is in a column of its line");
}

} // namespace

void requireSound(const cluiconfig::check::Report& report, const QByteArray& text)
{
    require(report.couldBeRead, "a file that is there is read");
    const auto isError = [](const Finding& finding) { return finding.severity == Severity::Error; };
    require(std::ranges::any_of(report.findings, isError) != report.verdict.loads,
            "there is an error exactly if the text is refused");
    require(report.verdict.loads || isError(report.findings.constFirst()), "the error comes first");
    const auto encoding = QStringConverter::encodingForData(text, u'{');
    const bool isUtf8 = !encoding || encoding == QStringConverter::Utf8; // otherwise they are places in its UTF-8
    const QList<QByteArray> lines = text.split('\n');
    for (const Finding& finding : report.findings) {
        require(!finding.message.isEmpty(), "a finding says something");
        if (isUtf8) {
            requirePlace(finding, lines, text.size());
        }
    }
    require(isJson(cluiconfig::check::asJson({report})), "the JSON report is JSON");
    require(isJson(cluiconfig::check::asSarif({report})), "the SARIF report is JSON");
    require(!cluiconfig::check::asText(report, {false, true}).isEmpty(), "the report for people is not empty");
}

} // namespace fuzz
