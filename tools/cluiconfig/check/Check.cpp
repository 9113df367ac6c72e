#include "Check.h"

#include "Catalogue.h"
#include "Sections.h"
#include "Structure.h"
#include "Suggest.h"

#include <config/UIConfig.h>
#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

Verdict loadAsTheApplicationDoes(const QString& file)
{
    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    config.deleteAll();
    Verdict verdict;
    verdict.loads = config.readUIConfiguration(file, verdict.error);
    config.deleteAll();
    return verdict;
}

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
    for (const qsizetype offset : document.laxPlaces()) {
        const auto byte = static_cast<unsigned char>(document.bytes().at(offset));
        const QString what = byte == '\\' ? u"The escape after this backslash is none of JSON's"_s
            : byte == '.'                 ? u"A number ends in a point"_s
                                          : u"A text holds a raw control character"_s;
        Finding finding;
        finding.rule = Rule::LaxJson;
        finding.severity = Severity::Warning;
        finding.offset = offset;
        finding.message = what + u": the application accepts it, other programs will not. Write it as JSON wants it."_s;
        findings.add(finding);
    }
    if (document.isGivenUp()) {
        Finding finding;
        finding.rule = Rule::LaxJson;
        finding.severity = Severity::Warning;
        finding.message = u"The document breaks the rules of JSON in so many places that nothing else was looked at. "
                          "Correct those that are listed first."_s;
        findings.add(finding);
    }
    for (const Value& value : document.shadowedKeys()) {
        findings.addAtKey(Rule::DuplicateKey, Severity::Warning, value, [&] {
            return u"The key %1 stands again further down in the same object: the application reads the last one and "
                   "ignores this one. Remove one of them."_s.arg(quoted(value.key()));
        });
    }
}

} // namespace

QList<Finding> findingsIn(const QByteArray& bytes, const QJsonObject& root)
{
    const Document document(bytes, root);
    const Catalogue catalogue;
    AxesCombinationManager manager;
    Findings findings;
    checkSpelling(document, findings);
    // These two know what the loader never reads, which the structure has to know.
    checkAxesCombinations(document.root(), catalogue, manager, findings);
    checkColumns(document.root(), catalogue, findings);
    checkStructure(document.root(), findings);
    checkRepresentations(document.root(), catalogue, manager, findings);
    checkCompoundUnits(document.root(), findings);
    checkColors(document.root(), findings);
    checkGraphs(document.root(), catalogue, findings);
    checkRecipe(document.root(), findings);
    checkFormulas(document.root(), findings);
    QList<Finding> list = findings.list();
    locate(list, bytes);
    return list;
}

QList<Finding> reconciled(QList<Finding> findings, const Verdict& verdict)
{
    const auto isError = [](const Finding& finding) { return finding.severity == Severity::Error; };
    if (verdict.loads) {
        for (Finding& finding : findings) {
            finding.severity = Severity::Warning;
        }
    } else if (std::none_of(findings.begin(), findings.end(), isError)) {
        findings.prepend(
            errorAboutTheFile(Rule::Refused, u"The application refuses the document: %1."_s.arg(verdict.error)));
    }
    return findings;
}

Report check(const QString& file, const Severities& severities)
{
    const QFileInfo info(file);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        return unreadable(file, u"\"%1\" is no regular file: save the document in one"_s.arg(file));
    }
    Report report;
    report.file = file;
    report.verdict = loadAsTheApplicationDoes(file);
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
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (document.isObject()) {
        report.findings = reconciled(findingsIn(bytes, document.object()), report.verdict);
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
