#include "Check.h"

#include "Suggest.h"
#include "private/CatalogueCheck.h"
#include "private/Sections.h"
#include "private/Structure.h"
#include "private/Syntax.h"

#include <axes/AxesCombinationManager.h>
#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryFile>

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
    report.path = file.toUtf8();
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

/// Fills in what stands around the place on its line.
void quote(Finding& finding, const QByteArray& bytes)
{
    constexpr qsizetype MostBefore = 60; // characters
    constexpr qsizetype MostAfter = 40;
    constexpr qsizetype LongestCharacter = 4; // bytes
    const qsizetype offset = std::min(finding.offset, bytes.size());
    const QByteArrayView near =
        QByteArrayView(bytes).sliced(std::max<qsizetype>(0, offset - MostBefore * LongestCharacter));
    const QByteArrayView before = near.first(offset - (bytes.size() - near.size()));
    const QByteArrayView after =
        QByteArrayView(bytes).sliced(offset).first(std::min(bytes.size() - offset, MostAfter * LongestCharacter));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    const qsizetype lineEnd = after.indexOf('\n');
    finding.before = QString::fromUtf8(before.sliced(lineStart));
    finding.after = QString::fromUtf8(lineEnd < 0 ? after : after.first(lineEnd)).trimmed();
    const bool isCut = lineStart == 0 && before.size() < offset;
    if (isCut || finding.before.size() > MostBefore) {
        finding.before = u'…' + finding.before.last(std::min(finding.before.size(), MostBefore));
    }
    const bool isLong = lineEnd < 0 && offset + after.size() < bytes.size();
    if (isLong || finding.after.size() > MostAfter) {
        finding.after = finding.after.first(std::min(finding.after.size(), MostAfter)) + u'…';
    }
}

/// Fills in lines and columns, and what stands there.
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
        quote(*finding, bytes);
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
            : byte < 0x20                 ? u"A text holds a raw control character"_s
                                          : u"This number is not written as in JSON"_s;
        finding.offset = offset;
        finding.message = what + u": the application accepts it, other programs will not. Write it as JSON wants it."_s;
        findings.add(finding);
    }
    for (const Value& value : document.shadowedKeys()) {
        findings.warnAtKey(Rule::DuplicateKey, value, [&] {
            return u"The key %1 stands again further down in the same object: the application reads the last one and "
                   "ignores this one. Remove one of them."_s.arg(quoted(value.key()));
        });
    }
}

void checkSections(const Value& root, const Context& with, const std::stop_token& stop)
{
    for (const uiconfig::Section& section : uiconfig::sections()) {
        if (stop.stop_requested()) {
            return;
        }
        const std::optional<Value> value = root.member(section.key);
        const auto row = std::ranges::find(SectionChecks, section.key, &SectionCheck::section);
        if (value && section.isTypeOf(value->json()) && row != SectionChecks.end()) {
            row->check(*value, with);
        }
    }
}

/// Whether \p root, which is to be a \p subject, has nothing of one and is the other.
bool isOther(const QJsonObject& root, Subject subject)
{
    const bool isCatalogue = root.contains(CategoriesKey);
    const auto has = [&](const uiconfig::Section& section) { return root.contains(section.key); };
    const bool isDocument = std::ranges::any_of(uiconfig::sections(), has);
    return subject == Subject::Document ? isCatalogue && !isDocument : isDocument && !isCatalogue;
}

/// What is found in \p bytes, of which the readers refuse what \p refusals tell. \p checkMeaning adds what goes beyond
/// their structure.
template <typename CheckMeaning>
Result inspect(const QByteArray& bytes, const QJsonObject& root, Subject subject, const uiconfig::Refusals& refusals,
               CheckMeaning checkMeaning)
{
    const Document document(bytes, root);
    Findings findings(refusals, document.root(), subject);
    checkSpelling(document, findings);
    if (isOther(root, subject)) {
        findings.reportWhole(Rule::WrongKind, document.root(), [&](bool /*isRefused*/) {
            return subject == Subject::Document
                ? u"This is a catalogue of data arrays, not a UIConfig.json: %1. `cluiconfig check-catalogue` checks it."_s
                      .arg(findings.refuses())
                : u"This is a UIConfig.json, not a catalogue of data arrays: %1. `cluiconfig check` checks it."_s.arg(
                    findings.refuses());
        });
    } else {
        checkStructure(document.root(), findings);
        checkMeaning(document.root(), findings);
    }
    findings.addUnexplained();

    Result result;
    result.verdict.loads = refusals.isEmpty(result.verdict.error);
    result.findings = findings.list();
    locate(result.findings, bytes);
    return result;
}

/// Checks a document, and takes its axes combinations only if \p takesAxesCombinations: a few lines can give millions.
Result checkDocument(const QByteArray& bytes, const QJsonObject& root, const std::stop_token& stop,
                     bool takesAxesCombinations)
{
    const auto& arrays = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::GoOn);
    uiconfig::Configuration configuration;
    uiconfig::readConfiguration(root, {arrays, configuration, refusals, takesAxesCombinations});

    Result result;
    if (!stop.stop_requested()) {
        const Catalogue catalogue(arrays);
        AxesCombinationManager pairs;
        result = inspect(bytes, root, Subject::Document, refusals, [&](const Value& document, Findings& findings) {
            checkSections(document, {catalogue, pairs, configuration, findings}, stop);
        });
    }
    const auto axes = std::make_shared<AxesCombinationManager>();
    axes->appendAll(configuration.axesCombinations);
    result.root = root;
    result.configuration = std::move(configuration);
    result.axes = axes;
    return result;
}

} // namespace

Result checkDocument(const QByteArray& bytes, const QJsonObject& root, const std::stop_token& stop)
{
    return checkDocument(bytes, root, stop, true);
}

Result checkCatalogue(const QString& file, const QByteArray& bytes, const QJsonObject& root)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    cl::batterydata::ClConfigDataArrayManager arrays;
    QString error;
    if (!arrays.readCatalogue(file, error)) {
        refusals.goOnAfter(error, placeOfRefusal(error, file));
    }
    return inspect(bytes, root, Subject::Catalogue, refusals, checkCategories);
}

namespace {

/// The findings in a text that the application refuses with \p error, since it is no JSON object.
QList<Finding> findingsInText(const QByteArray& bytes, const QString& error, Subject subject,
                              const std::stop_token& stop = {})
{
    const MendedText mended(bytes);
    QList<Finding> findings;
    for (const SyntaxError& each : mended.errors()) {
        findings.append({Rule::NotJson, Severity::Error, each.offset, QString(), each.message});
    }
    if (findings.isEmpty()) {
        return {notJson(error)};
    }
    const QJsonDocument document = QJsonDocument::fromJson(mended.json());
    if (document.isObject() && subject == Subject::Document) {
        QList<Finding> others = checkDocument(mended.json(), document.object(), stop, false).findings;
        others.removeIf([&](const Finding& finding) { return mended.isMissing(finding.offset); });
        for (Finding& finding : others) {
            finding.offset = mended.originalOffset(finding.offset);
        }
        findings += others;
    }
    locate(findings, mended.text());
    return findings;
}

} // namespace

namespace {

/// What the loader says of a file \p name with \p text, which is no JSON object.
QString refusal(const QByteArray& text, const QString& name)
{
    QTemporaryFile file;
    QString error;
    QJsonObject root;
    if (!file.open() || file.write(text) != text.size() || !file.flush()) {
        return u"Cannot write \"%1\": %2"_s.arg(file.fileName(), file.errorString());
    }
    JsonUtils::openJsonDocument(file.fileName(), error, root);
    return error.replace(file.fileName(), name);
}

bool isTooLarge(const QByteArray& bytes)
{
    return bytes.size() >= std::numeric_limits<quint32>::max();
}

QString tooLarge(const QString& name)
{
    return u"\"%1\" is too large to be checked"_s.arg(name);
}

} // namespace

Result checkText(const QByteArray& text, const QString& name, const std::stop_token& stop)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document.isObject() && !isTooLarge(text)) {
        return checkDocument(text, document.object(), stop);
    }
    Result result;
    result.axes = std::make_shared<AxesCombinationManager>();
    if (isTooLarge(text)) {
        result.verdict.error = tooLarge(name);
        result.findings = {errorAboutTheFile(Rule::Unreadable, result.verdict.error + u'.')};
    } else {
        result.verdict.error = refusal(text, name);
        result.findings = findingsInText(text, result.verdict.error, Subject::Document, stop);
    }
    return result;
}

Report check(const QString& file, const Severities& severities, Subject subject)
{
    const QFileInfo info(file);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        return unreadable(
            file,
            u"\"%1\" is no regular file: save the document in one, or write \"-\" for standard input"_s.arg(file));
    }
    Report report;
    report.file = file;
    report.path = file.toUtf8();
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
    if (isTooLarge(bytes)) {
        return unreadable(file, tooLarge(file));
    }
    if (isObject) {
        Result result =
            subject == Subject::Document ? checkDocument(bytes, root, {}, false) : checkCatalogue(file, bytes, root);
        report.verdict = std::move(result.verdict);
        report.findings = std::move(result.findings);
    } else {
        report.findings = findingsInText(bytes, report.verdict.error, subject);
    }
    for (Finding& finding : report.findings) {
        finding.severity = severities.value(finding.rule, finding.severity);
    }
    report.findings.removeIf([](const Finding& finding) { return finding.severity == Severity::Off; });
    return report;
}

} // namespace cluiconfig::check
