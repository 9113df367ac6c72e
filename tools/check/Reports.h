#pragma once

#include "Check.h"

#include <QByteArray>
#include <QList>

namespace cluiconfig::check {

/// How the report for people looks.
struct TextStyle
{
    bool isColored = false;
    bool quotesLines = false; ///< Below each finding, its line of the document, with a mark under the place.
};

/// The verdict, a line a finding and, if there are any, a line that counts them.
QByteArray asText(const Report& report, const TextStyle& style);

/// An array with one object a document: "file", "loads", "error" (null when it loads) and "findings".
QByteArray asJson(const QList<Report>& reports);

/// A SARIF 2.1.0 log with one run, for programs that show the findings of many tools.
QByteArray asSarif(const QList<Report>& reports);

} // namespace cluiconfig::check
