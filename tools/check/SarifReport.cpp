#include "Reports.h"
#include "Text.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

QJsonObject message(const QString& text)
{
    return {{u"text"_s, text}};
}

/// The URI of an absolute path; a relative reference for a relative path, so that logs may move together with the
/// documents.
QJsonObject artifactLocation(const Report& report)
{
    QByteArray path = report.path;
#ifdef Q_OS_WIN
    path.replace('\\', '/');
    const char* const root = path.startsWith("//") ? "file:" : path.startsWith('/') ? "file://" : "file:///";
#else
    const char* const root = "file://";
#endif
    QByteArray uri = path.toPercentEncoding("/:@!$&'()*+,;=");
    if (QDir::isAbsolutePath(report.file)) {
        uri.prepend(root);
    } else if (uri.split('/').constFirst().contains(':')) {
        uri.prepend("./"); // or what stands before the colon would be a scheme
    }
    return {{u"uri"_s, QString::fromLatin1(uri)}};
}

QJsonArray ruleDescriptors()
{
    QJsonArray descriptors;
    for (const RuleDescription& rule : rules()) {
        descriptors.append(QJsonObject{
            {u"id"_s, rule.name},
            {u"shortDescription"_s, message(rule.meaning)},
            {u"defaultConfiguration"_s,
             QJsonObject{{u"level"_s, toString(rule.mayBeWarning ? Severity::Warning : Severity::Error)}}},
        });
    }
    return descriptors;
}

QJsonObject location(const Report& report, const Finding& finding)
{
    QJsonObject physical{{u"artifactLocation"_s, artifactLocation(report)}};
    if (report.couldBeRead) {
        physical.insert(u"region"_s, QJsonObject{{u"startLine"_s, finding.line}, {u"startColumn"_s, finding.column}});
    }
    QJsonObject result{{u"physicalLocation"_s, physical}};
    if (!finding.pointer.isEmpty()) {
        result.insert(u"logicalLocations"_s, QJsonArray{QJsonObject{{u"fullyQualifiedName"_s, finding.pointer}}});
    }
    return result;
}

} // namespace

QByteArray asSarif(const QList<Report>& reports)
{
    QJsonArray results;
    QJsonArray artifacts;
    bool couldReadAll = true;
    for (const Report& report : reports) {
        couldReadAll = couldReadAll && report.couldBeRead;
        QJsonObject properties{{u"loads"_s, report.verdict.loads}};
        if (!report.verdict.loads) {
            properties.insert(u"error"_s, report.verdict.error);
        }
        artifacts.append(QJsonObject{{u"location"_s, artifactLocation(report)}, {u"properties"_s, properties}});
        for (const Finding& finding : report.findings) {
            results.append(QJsonObject{
                {u"ruleId"_s, describe(finding.rule).name},
                {u"ruleIndex"_s, static_cast<int>(finding.rule)},
                {u"level"_s, toString(finding.severity)},
                {u"message"_s, message(finding.message)},
                {u"locations"_s, QJsonArray{location(report, finding)}},
            });
        }
    }
    const QJsonObject driver{
        {u"name"_s, u"cluiconfig"_s},
        {u"version"_s, QString::fromUtf8(CLCONFIGUI_VERSION)},
        {u"rules"_s, ruleDescriptors()},
    };
    const QJsonObject run{
        {u"tool"_s, QJsonObject{{u"driver"_s, driver}}},
        {u"columnKind"_s, u"unicodeCodePoints"_s},
        {u"invocations"_s, QJsonArray{QJsonObject{{u"executionSuccessful"_s, couldReadAll}}}},
        {u"artifacts"_s, artifacts},
        {u"results"_s, results},
    };
    const QJsonObject log{
        {u"$schema"_s, u"https://json.schemastore.org/sarif-2.1.0.json"_s},
        {u"version"_s, u"2.1.0"_s},
        {u"runs"_s, QJsonArray{run}},
    };
    return withHalvesAsText(QJsonDocument(log).toJson());
}

} // namespace cluiconfig::check
