#pragma once

#include "Document.h"
#include "RefusedPlaces.h"

#include <base/Refusals.h>
#include <check/Finding.h>
#include <check/Subject.h>
#include <check/Suggest.h>

#include <QList>
#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace cluiconfig::check {

/// What happens to what is refused, in a message.
inline const QString Refuses = QStringLiteral("the application refuses the document");

/// \p meant, in place of a key of \p object; empty where the object has it already.
inline QString insteadOfKey(const QString& meant, const Value& object)
{
    return object.json().toObject().contains(meant) ? QString() : meant;
}

/// The findings of one document while it is being checked.
///
/// What the readers of the application refuse is known from the start: a finding at such a place is an error, every
/// other one a warning. The reader of a catalogue, though, stops at its first refusal: what is reported behind that may
/// be refused as well, and is an error, too.
///
/// What a message says may come with what was meant: the functions that make one return a sentence or an Advice.
///
/// Of each rule the first two hundred of the document are kept, or as many as have pointers of a bearable length, and
/// the others only counted, so that a document full of mistakes takes no more memory than any other.
class Findings
{
public:
    static constexpr qsizetype MostOfARule = 200;
    static constexpr qsizetype LongestPointers = qsizetype{1} << 16; ///< altogether, of a rule

    /// \p root is that of the document; \p refusals live as long as the findings.
    Findings(const uiconfig::Refusals& refusals, const Value& root, Subject subject = Subject::Document);

    Subject subject() const { return m_subject; }
    /// What happens to what is refused, in a message.
    QString refuses() const;

    /// Whether \p object is refused since it lacks \p key.
    bool isRefused(const Value& object, const QString& key) const { return m_refused.at(object, key) != nullptr; }

    /// Adds a warning at \p place. \p message is called if it is kept.
    template <typename Message>
    void warn(Rule rule, const Value& place, Message message)
    {
        addWarning(rule, place, place.offset(), message);
    }

    /// The same for the key of \p place.
    template <typename Message>
    void warnAtKey(Rule rule, const Value& place, Message message)
    {
        addWarning(rule, place, place.keyOffset(), message);
    }

    /// Adds what explains a refusal of \p value if there is one, which makes it an error, and a warning otherwise.
    /// \p message is called with whether there is one.
    template <typename Message>
    void report(Rule rule, const Value& place, const Value& value, Message message)
    {
        reportRefused(rule, place, m_refused.at(value), message);
    }

    /// The same about the value at \p place itself.
    template <typename Message>
    void report(Rule rule, const Value& place, Message message)
    {
        report(rule, place, place, message);
    }

    /// The same about the member \p key that \p object lacks.
    template <typename Message>
    void reportMissing(const Value& object, const QString& key, Message message)
    {
        reportRefused(Rule::MissingKey, object, m_refused.at(object, key), message);
    }

    /// The same about a value that lacks everything which could be refused in it: it explains those refusals, too.
    template <typename Message>
    void reportWhole(Rule rule, const Value& place, Message message)
    {
        bool isError = mayBeRefusedAnywhere();
        bool isFirst = false;
        m_refused.forEachWithin(place, [&](RefusedPlaces::Refused& refused) {
            isError = true;
            isFirst = explain(refused) || isFirst;
        });
        if (isError) {
            addError(rule, place, isFirst, [&] { return message(true); });
        } else {
            warn(rule, place, [&] { return message(false); });
        }
    }

    /// Adds a finding about the whole document, or a place of it that is no value.
    void add(const Finding& finding);

    /// Adds an error for every refusal that no finding explains.
    void addUnexplained();

    /// First the error that the loader comes across first, then all others in document order. Where findings of a rule
    /// were only counted, one more says how many.
    QList<Finding> list() const;

private:
    struct Kept
    {
        Finding finding;
        qsizetype sequence = 0; // among those of its rule, as they were made
    };

    struct OfRule
    {
        std::vector<Kept> kept;
        bool isFull = false;
        qsizetype pointerSize = 0; // of all that are kept
        qsizetype count = 0;
        Severity worst = Severity::Off;
    };

    template <typename Message>
    void reportRefused(Rule rule, const Value& place, RefusedPlaces::Refused* refused, Message& message)
    {
        if (refused == nullptr && !mayBeRefusedAnywhere()) {
            warn(rule, place, [&] { return message(false); });
            return;
        }
        const bool isFirst = refused != nullptr && explain(*refused);
        addError(rule, place, isFirst, [&] { return message(true); });
    }

    template <typename Message>
    void addWarning(Rule rule, const Value& place, qsizetype offset, Message& message)
    {
        if (isKept(rule, Severity::Warning, offset)) {
            keep(made(rule, Severity::Warning, offset, place.pointer(), message()));
        }
    }

    template <typename Message>
    void addError(Rule rule, const Value& place, bool isFirst, Message message)
    {
        if (isKept(rule, Severity::Error, place.offset()) || isFirst) {
            const Finding finding = made(rule, Severity::Error, place.offset(), place.pointer(), message());
            if (isFirst) {
                m_firstError = finding;
            }
            keep(finding);
        }
    }

    static Finding made(Rule rule, Severity severity, qsizetype offset, const QString& pointer, const Advice& advice);
    bool mayBeRefusedAnywhere() const { return m_subject == Subject::Catalogue && !m_refused.isEmpty(); }
    /// Notes that a finding explains \p refused; true when it is the first that explains the first refusal.
    static bool explain(RefusedPlaces::Refused& refused);
    static bool isEarlier(const Kept& a, const Kept& b);
    bool isKept(Rule rule, Severity severity, qsizetype offset);
    void keep(const Finding& finding);

    const uiconfig::Refusals& m_refusals;
    Subject m_subject;
    RefusedPlaces m_refused;
    std::map<Rule, OfRule> m_ofRule;
    std::optional<Finding> m_firstError;
};

} // namespace cluiconfig::check
