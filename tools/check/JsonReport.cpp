#include "Reports.h"
#include "Text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

QByteArray asJson(const QList<Report>& reports)
{
    QJsonArray documents;
    for (const Report& report : reports) {
        QJsonArray findings;
        for (const Finding& finding : report.findings) {
            findings.append(QJsonObject{
                {u"line"_s, finding.line},
                {u"column"_s, finding.column},
                {u"pointer"_s, finding.pointer},
                {u"severity"_s, toString(finding.severity)},
                {u"rule"_s, describe(finding.rule).name},
                {u"message"_s, finding.message},
            });
        }
        documents.append(QJsonObject{
            {u"file"_s, report.file},
            {u"loads"_s, report.verdict.loads},
            {u"error"_s, report.verdict.loads ? QJsonValue() : QJsonValue(report.verdict.error)},
            {u"findings"_s, findings},
        });
    }
    return withHalvesAsText(QJsonDocument(documents).toJson());
}

} // namespace cluiconfig::check
