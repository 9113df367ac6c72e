#pragma once

#include "Finding.h"
#include "Subject.h"

#include <config/Configuration.h>

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <memory>
#include <stop_token>

class AxesCombinationManager;

namespace cluiconfig::check {

/// What the application does with a document.
struct Verdict
{
    bool loads = false;
    QString error; ///< the loader's message where it refuses
};

/// What there is to say about one document or catalogue.
struct Report
{
    QString file; ///< As people call it.
    QByteArray path; ///< The same for programs, which find files by the bytes of their names.
    Verdict verdict;
    bool couldBeRead = true; ///< false: nothing is known of the content
    QList<Finding> findings; ///< the error that the loader stumbles over first, then the others in document order
};

/// Severities that the user set instead of those of the rules.
using Severities = QHash<Rule, Severity>;

/// Checks \p file. It is read by the application's own readers, into a value of the check's own. A document is checked
/// against the process's catalogue, while the process-wide configuration plays no part; a catalogue has nothing to do
/// with the one of the process.
Report check(const QString& file, const Severities& severities = {}, Subject subject = Subject::Document);

/// The verdict on a text, the findings in it, and what was read for that.
struct Result
{
    Verdict verdict;
    QList<Finding> findings; ///< as in a report
    QJsonObject root; ///< the document, empty where the text is no JSON object
    uiconfig::Configuration configuration; ///< all of it where the document loads
    std::shared_ptr<const AxesCombinationManager> axes; ///< those of the configuration; never null
};

/// The same as for a file of the name \p name that holds \p text, and what it gives. A request by \p stop ends the
/// check early: then the result is of no use.
Result checkText(const QByteArray& text, const QString& name, const std::stop_token& stop = {});

/// The same for \p bytes, which Qt has read as \p root.
Result checkDocument(const QByteArray& bytes, const QJsonObject& root, const std::stop_token& stop = {});
/// The same for the catalogue \p file, which holds \p bytes.
Result checkCatalogue(const QString& file, const QByteArray& bytes, const QJsonObject& root);

} // namespace cluiconfig::check
