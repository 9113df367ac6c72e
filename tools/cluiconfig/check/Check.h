#pragma once

#include "Findings.h"

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

/// What there is to say about one document.
struct Report
{
    QString file;
    Verdict verdict;
    bool couldBeRead = true; ///< false: nothing is known of the content
    QList<Finding> findings; ///< the error that the loader stumbles over first, then the others in document order
};

/// Severities that the user set instead of those of the rules.
using Severities = QHash<Rule, Severity>;

/// Checks the document \p file against the process's catalogue. The verdict is that of the application's own loader,
/// which this runs; afterwards the configuration singleton is as after deleteAll().
Report check(const QString& file, const Severities& severities = {});

/// The findings in \p bytes, which Qt has read as \p root, as the rules see them: an error wherever the application
/// should refuse the document.
QList<Finding> findingsIn(const QByteArray& bytes, const QJsonObject& root);

/// \p findings brought into line with \p verdict, which has the last word: a refusal that no error explains becomes
/// one, and no error contradicts a document that loads.
QList<Finding> reconciled(QList<Finding> findings, const Verdict& verdict);

} // namespace cluiconfig::check
