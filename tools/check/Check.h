#pragma once

#include "Finding.h"
#include "Subject.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

class QJsonObject;

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
    QString file;
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

/// The verdict on \p bytes, which Qt has read as \p root, and the findings in them.
struct Result
{
    Verdict verdict;
    QList<Finding> findings;
};
Result checkDocument(const QByteArray& bytes, const QJsonObject& root);
/// The same for the catalogue \p file, which holds \p bytes.
Result checkCatalogue(const QString& file, const QByteArray& bytes, const QJsonObject& root);

} // namespace cluiconfig::check
