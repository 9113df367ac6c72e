#pragma once

#include <axes/AxesCombinationManager.h>
#include <check/Check.h>
#include <config/Configuration.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <memory>
#include <stop_token>

namespace cluiedit {

/// A text and what the application makes of it. Made once, beside the user interface, and never changed: shared by all
/// that show a part of it.
struct Snapshot
{
    QByteArray text; ///< UTF-8, as it would stand in the file
    cluiconfig::check::Result result; ///< Verdict, findings with their places, and what was read.

    /// Whether the application loads the text. Only then result.configuration is all that the document gives.
    bool loads() const { return result.verdict.loads; }
    /// The document; empty where the text is no JSON object.
    const QJsonObject& root() const { return result.root; }
    const uiconfig::Configuration& configuration() const { return result.configuration; }
    /// The pairs of axes of the configuration, with an index.
    const AxesCombinationManager& axes() const { return *result.axes; }
};

/// What is made of \p text, which people call \p name. Null when \p stop was requested meanwhile.
std::shared_ptr<const Snapshot> makeSnapshot(const QByteArray& text, const QString& name,
                                             const std::stop_token& stop = {});

} // namespace cluiedit
