#pragma once

#include "Findings.h"

#include <check/Suggest.h>

#include <QSet>

namespace cluiconfig::check {

/// Finds names that stand a second time in a list, where a lookup by name gives the first.
class RepeatedNames
{
public:
    /// \p what is what the list holds: "representation".
    RepeatedNames(QString what, Findings& findings)
        : m_what(std::move(what))
        , m_findings(findings)
    {
    }

    /// The member \p key of \p entry is the entry's name; passed over if it is no text or empty.
    void add(const Value& entry, QLatin1StringView key)
    {
        const std::optional<Value> place = entry.member(key);
        const QString name = entry.text(key);
        if (!place || name.isEmpty()) {
            return;
        }
        if (!m_seen.contains(name)) {
            m_seen.insert(name);
            return;
        }
        m_findings.warn(Rule::RepeatedName, *place, [&] {
            return QStringLiteral("Another %1 before this one is called %2: asked for that name, the application finds "
                                  "only the first. Give this one another name.")
                .arg(m_what, quoted(name));
        });
    }

private:
    QString m_what;
    Findings& m_findings;
    QSet<QString> m_seen;
};

} // namespace cluiconfig::check
