// Any bytes as a document: the check has the loader's verdict, its first error is the loader's refusal at its place,
// every place lies in the text, and every report can be read.

#include "Fuzz.h"
#include "Reports.h"

#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
#include <check/Check.h>
#include <config/Configuration.h>
#include <datastorage/JsonUtils.h>

using cluiconfig::check::Finding;
using cluiconfig::check::Report;
using cluiconfig::check::Rule;
using cluiconfig::check::Severity;
using fuzz::require;

namespace {

/// Whether one of two places lies within the other.
bool areNested(const QString& one, const QString& other)
{
    return one.startsWith(other) || other.startsWith(one);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text = fuzz::bytes(data, size);
    const QString path = fuzz::fileWith(text);

    QString error;
    QJsonObject root;
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    const bool isObject = cl::datastorage::JsonUtils::openJsonDocument(path, error, root);
    if (isObject) {
        const auto& catalogue =
            lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
        uiconfig::Configuration configuration;
        uiconfig::readConfiguration(root, {catalogue, configuration, refusals});
        refusals.isEmpty(error);
    }

    const Report report = cluiconfig::check::check(path);
    fuzz::requireSound(report, text);
    require(report.verdict.loads == error.isEmpty() && report.verdict.error == error,
            "the verdict is the loader's, in its words");
    if (!report.verdict.loads) {
        const Finding& first = report.findings.constFirst();
        require(isObject == (first.rule != Rule::NotJson), "a text that is not JSON is said to be none");
        require(!isObject || areNested(first.pointer, refusals.all().constFirst().place),
                "the first error is where the loader refuses");
    }
    return 0;
}
