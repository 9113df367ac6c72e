// Any bytes as a document: the check has the loader's verdict, its first error is the loader's refusal at its place,
// every place lies in the text, and every report can be read.

#include "Fuzz.h"
#include "Reports.h"

#include <check/Check.h>

using cluiconfig::check::Finding;
using cluiconfig::check::Report;
using cluiconfig::check::Rule;
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

    uiconfig::Configuration configuration;
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    const QString error = fuzz::load(path, configuration, refusals);
    const bool isObject = error.isEmpty() || !refusals.isEmpty();

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
