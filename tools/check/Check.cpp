#include "Check.h"

#include "Suggest.h"
#include "private/Sections.h"
#include "private/Structure.h"

#include <axes/AxesCombinationManager.h>
#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
#include <config/Configuration.h>
#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using cl::datastorage::JsonUtils;

namespace cluiconfig::check {

namespace {

Finding errorAboutTheFile(Rule rule, const QString& message)
{
    Finding finding;
    finding.rule = rule;
    finding.message = message;
    return finding;
}

Report unreadable(const QString& file, const QString& error)
{
    Report report;
    report.file = file;
    report.couldBeRead = false;
    report.verdict = {false, error};
    report.findings = {errorAboutTheFile(Rule::Unreadable, error + u'.')};
    return report;
}

/// A file that is no JSON object, with the place that the loader names in its message, if it names one.
Finding notJson(const QString& error)
{
    static const QRegularExpression place(u"is not valid JSON: line (\\d+), column (\\d+): "_s);
    Finding finding;
    finding.rule = Rule::NotJson;
    QString advice = u"Write one JSON object { … }, encoded in UTF-8."_s;
    QRegularExpressionMatchIterator matches = place.globalMatch(error);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        finding.line = match.captured(1).toLongLong();
        finding.column = match.captured(2).toLongLong();
        advice = u"Look there and just before for a comma, a quote or a bracket that is missing or too many, or for a "
                 "letter that is not encoded in UTF-8."_s;
    }
    finding.message = u"The application refuses the file: %1. %2"_s.arg(error, advice);
    return finding;
}

/// Fills in lines and columns.
void locate(QList<Finding>& findings, const QByteArray& bytes)
{
    std::vector<Finding*> byOffset;
    for (Finding& finding : findings) {
        byOffset.push_back(&finding);
    }
    std::sort(byOffset.begin(), byOffset.end(),
              [](const Finding* a, const Finding* b) { return a->offset < b->offset; });
    qsizetype line = 1;
    qsizetype column = 1;
    qsizetype offset = bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    for (Finding* finding : byOffset) {
        for (; offset < finding->offset; ++offset) {
            const char byte = bytes.at(offset);
            if (byte == '\n') {
                ++line;
                column = 1;
            } else if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) {
                ++column;
            }
        }
        finding->line = line;
        finding->column = column;
    }
}

void checkSpelling(const Document& document, Findings& findings)
{
    Finding finding;
    finding.rule = Rule::LaxJson;
    finding.severity = Severity::Warning;
    for (const qsizetype offset : document.laxPlaces()) {
        const auto byte = static_cast<unsigned char>(document.bytes().at(offset));
        const QString what = byte == '\\' ? u"The escape after this backslash is none of JSON's"_s
            : byte == '.'                 ? u"A number ends in a point"_s
                                          : u"A text holds a raw control character"_s;
        finding.offset = offset;
        finding.message = what + u": the application accepts it, other programs will not. Write it as JSON wants it."_s;
        findings.add(finding);
    }
    if (document.isGivenUp()) {
        finding.offset = 0;
        finding.message = u"The document breaks the rules of JSON in so many places that nothing else was looked at. "
                          "Correct those that are listed first."_s;
        findings.add(finding);
    }
    for (const Value& value : document.shadowedKeys()) {
        findings.warnAtKey(Rule::DuplicateKey, value, [&] {
            return u"The key %1 stands again further down in the same object: the application reads the last one and "
                   "ignores this one. Remove one of them."_s.arg(quoted(value.key()));
        });
    }
}

void checkSections(const Value& root, const Context& with)
{
    for (const uiconfig::Section& section : uiconfig::sections()) {
        const std::optional<Value> value = root.member(section.key);
        const auto row = std::ranges::find(SectionChecks, section.key, &SectionCheck::section);
        if (value && section.isTypeOf(value->json()) && row != SectionChecks.end()) {
            row->check(*value, with);
        }
    }
}

} // namespace

Result checkDocument(const QByteArray& bytes, const QJsonObject& root)
{
    const auto& arrays = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::GoOn);
    uiconfig::Configuration configuration;
    uiconfig::readConfiguration(root, {arrays, configuration, refusals});
    AxesCombinationManager axes;
    axes.appendAll(std::move(configuration.axesCombinations));

    const Document document(bytes, root);
    const Catalogue catalogue(arrays);
    Findings findings(refusals);
    checkSpelling(document, findings);
    checkStructure(document.root(), findings);
    checkSections(document.root(), {catalogue, axes, findings});
    findings.addUnexplained();

    Result result;
    result.verdict.loads = refusals.isEmpty(result.verdict.error);
    result.findings = findings.list();
    locate(result.findings, bytes);
    return result;
}

Report check(const QString& file, const Severities& severities)
{
    const QFileInfo info(file);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        return unreadable(file, u"\"%1\" is no regular file: save the document in one"_s.arg(file));
    }
    Report report;
    report.file = file;
    QJsonObject root;
    const bool isObject = JsonUtils::openJsonDocument(file, report.verdict.error, root);
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        return unreadable(file, report.verdict.error);
    }
    const QByteArray bytes = source.readAll();
    if (source.error() != QFileDevice::NoError) {
        return unreadable(file, report.verdict.error);
    }
    if (bytes.size() >= std::numeric_limits<quint32>::max()) {
        return unreadable(file, u"\"%1\" is too large to be checked"_s.arg(file));
    }
    if (isObject) {
        Result result = checkDocument(bytes, root);
        report.verdict = std::move(result.verdict);
        report.findings = std::move(result.findings);
    } else {
        report.findings = {notJson(report.verdict.error)};
    }
    for (Finding& finding : report.findings) {
        finding.severity = severities.value(finding.rule, finding.severity);
    }
    report.findings.removeIf([](const Finding& finding) { return finding.severity == Severity::Off; });
    return report;
}

} // namespace cluiconfig::check
