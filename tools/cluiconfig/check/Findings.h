#pragma once

#include "Document.h"
#include "Rules.h"

#include <QHash>
#include <QList>
#include <QString>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace cluiconfig::check {

/// Something that the check found in a document.
struct Finding
{
    Rule rule = Rule::Refused;
    Severity severity = Severity::Error;
    qsizetype offset = 0; ///< of the place, in bytes
    QString pointer;
    QString message; ///< what happens, and what to write instead
    qsizetype line = 1;
    qsizetype column = 1; ///< in characters
    qsizetype sequence = 0; ///< among the findings of its rule, as they were made
};

/// When the application's loader comes across something, compared to other things of the same document.
using LoadOrder = std::vector<std::pair<qint64, QString>>;

/// The findings of one document while it is being checked.
///
/// Of each rule the first two hundred of the document are kept, and the others only counted, so that a document full of
/// mistakes takes no more memory than any other.
class Findings
{
public:
    static constexpr qsizetype MostOfARule = 200;

    /// What the loader does with members whose reading depends on more than the member: it looks at them at a certain
    /// step of reading the entry that holds them, or never.
    static constexpr qint64 NeverRead = -1;
    void setStep(const Value& entry, const QString& key, qint64 step) { m_steps[{entry.number(), key}] = step; }
    /// The step set for the member \p key of \p entry, whether or not it exists; 0 if none was set.
    qint64 step(const Value& entry, const QString& key) const { return m_steps.value({entry.number(), key}, 0); }

    /// Adds a finding at \p place. \p message is called if the finding is kept. For errors, \p missingKey names the
    /// member of \p place that the loader misses, and \p step says when it comes across the error in the entry of a
    /// section in which it stands.
    template <typename Message>
    void add(Rule rule, Severity severity, const Value& place, Message message, const QString& missingKey = {},
             qint64 step = 0)
    {
        addAt(rule, severity, place, place.offset(), message, missingKey, step);
    }

    /// The same for the key of \p place.
    template <typename Message>
    void addAtKey(Rule rule, Severity severity, const Value& place, Message message)
    {
        addAt(rule, severity, place, place.keyOffset(), message, {}, 0);
    }

    /// Adds a finding about the whole document, or a place of it that is no value.
    void add(const Finding& finding);

    bool hasErrors() const { return m_firstError.has_value(); }

    /// First the error that the loader comes across first, then all others in document order. Where findings of a rule
    /// were only counted, one more says how many.
    QList<Finding> list() const;

private:
    struct OfRule
    {
        std::vector<Finding> kept;
        qsizetype count = 0;
        Severity worst = Severity::Off;
    };

    template <typename Message>
    void addAt(Rule rule, Severity severity, const Value& place, qsizetype offset, Message& message,
               const QString& missingKey, qint64 step)
    {
        const bool isFirstError = severity == Severity::Error && comesFirst(loadOrder(place, missingKey, step));
        if (isKept(rule, severity, offset) || isFirstError) {
            const Finding finding{rule, severity, offset, place.pointer(), message()};
            if (isFirstError) {
                m_firstError = finding;
            }
            keep(finding);
        }
    }

    static LoadOrder loadOrder(const Value& place, const QString& missingKey, qint64 step);
    bool comesFirst(LoadOrder order);
    bool isKept(Rule rule, Severity severity, qsizetype offset);
    void keep(const Finding& finding);

    QHash<std::pair<quint32, QString>, qint64> m_steps;
    std::map<Rule, OfRule> m_ofRule;
    std::optional<Finding> m_firstError;
    LoadOrder m_firstErrorOrder;
};

} // namespace cluiconfig::check
