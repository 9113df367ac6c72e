#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace cluiconfig::check {

/// How much a finding matters.
enum class Severity {
    Off, ///< Not reported.
    Warning, ///< The application loads the document, but drops, ignores or changes what is written there.
    Error, ///< The application refuses the document.
};

/// "off", "warning" or "error".
QString toString(Severity severity);
std::optional<Severity> severityFromString(const QString& word);

/// What the check looks for.
enum class Rule {
    Unreadable,
    NotJson,
    LaxJson,
    DuplicateKey,
    Refused,
    WrongKind,
    WrongVersion,
    MissingKey,
    WrongType,
    UnknownKey,
    UnknownWord,
    EmptyText,
    WrongLength,
    OutOfRange,
    UnknownCategory,
    UnknownArray,
    NoCombination,
    UnpairedArray,
    TooManyCombinations,
    RepeatedCombination,
    MissingY,
    InvalidRepresentation,
    NoDefault,
    SecondDefault,
    RepeatedName,
    LostCurves,
    HiddenKind,
    RepeatedColor,
    UnusedColor,
    UnknownColor,
    ParameterGap,
    UnknownTitle,
    FormulaGroup,
    UnknownUnit,
    WrongUnit,
    RepeatedCategory,
    EmptyCatalogue,
};

struct RuleDescription
{
    Rule rule;
    QString name; ///< stable: people write it in scripts
    bool mayBeError;
    bool mayBeWarning;
    QString meaning; ///< one line
};

/// Every rule once, in the order of the enumerators.
const QList<RuleDescription>& rules();
const RuleDescription& describe(Rule rule);
std::optional<Rule> ruleFromName(const QString& name);

} // namespace cluiconfig::check
