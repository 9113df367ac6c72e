#include "Rules.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr bool MayBeError = true;
constexpr bool MayBeWarning = true;

const std::array SeverityWords{
    std::pair{Severity::Off, u"off"_s},
    std::pair{Severity::Warning, u"warning"_s},
    std::pair{Severity::Error, u"error"_s},
};

} // namespace

QString toString(Severity severity)
{
    return SeverityWords.at(static_cast<size_t>(severity)).second;
}

std::optional<Severity> severityFromString(const QString& word)
{
    const auto found =
        std::find_if(SeverityWords.begin(), SeverityWords.end(), [&](const auto& each) { return each.second == word; });
    return found == SeverityWords.end() ? std::nullopt : std::optional(found->first);
}

const QList<RuleDescription>& rules()
{
    static const QList<RuleDescription> all{
        {Rule::Unreadable, u"unreadable"_s, MayBeError, !MayBeWarning, u"The file cannot be opened or read."_s},
        {Rule::NotJson, u"not-json"_s, MayBeError, !MayBeWarning, u"The file does not hold a JSON object."_s},
        {Rule::LaxJson, u"lax-json"_s, !MayBeError, MayBeWarning,
         u"The application accepts this although JSON does not allow it; other programs will not."_s},
        {Rule::DuplicateKey, u"duplicate-key"_s, !MayBeError, MayBeWarning,
         u"A key stands twice in an object: only the last one counts."_s},
        {Rule::Refused, u"refused"_s, MayBeError, !MayBeWarning,
         u"The application refuses the document for a reason that no other rule explains."_s},
        {Rule::WrongKind, u"wrong-kind"_s, MayBeError, !MayBeWarning,
         u"The file is a catalogue where a document belongs, or the other way round."_s},
        {Rule::WrongVersion, u"wrong-version"_s, MayBeError, !MayBeWarning,
         u"The document has another format version than the application reads."_s},
        {Rule::MissingKey, u"missing-key"_s, MayBeError, MayBeWarning, u"An object lacks a key that belongs there."_s},
        {Rule::WrongType, u"wrong-type"_s, MayBeError, MayBeWarning,
         u"A value has another JSON type than the application reads there."_s},
        {Rule::UnknownKey, u"unknown-key"_s, !MayBeError, MayBeWarning,
         u"The application does not know a key and ignores it."_s},
        {Rule::UnknownWord, u"unknown-word"_s, MayBeError, MayBeWarning,
         u"A text is none of the words that mean something there."_s},
        {Rule::EmptyText, u"empty-text"_s, MayBeError, MayBeWarning, u"A text that should say something is empty."_s},
        {Rule::WrongLength, u"wrong-length"_s, MayBeError, !MayBeWarning,
         u"A list has more or fewer elements than the application reads there."_s},
        {Rule::OutOfRange, u"out-of-range"_s, !MayBeError, MayBeWarning,
         u"A number is too small or too large to mean something."_s},
        {Rule::UnknownCategory, u"unknown-category"_s, MayBeError, MayBeWarning,
         u"The catalogue has no such category."_s},
        {Rule::UnknownArray, u"unknown-array"_s, MayBeError, MayBeWarning,
         u"The catalogue has no such data array, or not in that category."_s},
        {Rule::NoCombination, u"no-combination"_s, !MayBeError, MayBeWarning,
         u"An axes combination pairs no arrays: it offers nothing to plot."_s},
        {Rule::UnpairedArray, u"unpaired-array"_s, !MayBeError, MayBeWarning,
         u"An X or Y of an axes combination pairs with none of the other side, as others do."_s},
        {Rule::TooManyCombinations, u"too-many-combinations"_s, !MayBeError, MayBeWarning,
         u"An axes combination pairs more arrays than anybody can choose from."_s},
        {Rule::RepeatedCombination, u"repeated-combination"_s, !MayBeError, MayBeWarning,
         u"Two arrays are paired a second time: the scales of the first pairing count."_s},
        {Rule::MissingY, u"missing-y"_s, MayBeError, !MayBeWarning, u"A representation has neither Y1 nor Y2."_s},
        {Rule::InvalidRepresentation, u"invalid-representation"_s, !MayBeError, MayBeWarning,
         u"No axes combination offers what a representation shows, or one of its two Y."_s},
        {Rule::NoDefault, u"no-default"_s, !MayBeError, MayBeWarning, u"No representation is marked as default."_s},
        {Rule::SecondDefault, u"second-default"_s, !MayBeError, MayBeWarning,
         u"A second representation is marked as default: the first one is used."_s},
        {Rule::RepeatedName, u"repeated-name"_s, !MayBeError, MayBeWarning,
         u"A name or title stands twice in a list: the later one is never found."_s},
        {Rule::LostCurves, u"lost-curves"_s, !MayBeError, MayBeWarning,
         u"The application does not find the curves of a graph by its title."_s},
        {Rule::HiddenKind, u"hidden-kind"_s, !MayBeError, MayBeWarning,
         u"A kind of summary table is not read because one before it is missing."_s},
        {Rule::RepeatedColor, u"repeated-color"_s, !MayBeError, MayBeWarning,
         u"Two colours of the palette are the same."_s},
        {Rule::UnusedColor, u"unused-color"_s, !MayBeError, MayBeWarning,
         u"No default uses a colour of the palette."_s},
        {Rule::UnknownColor, u"unknown-color"_s, !MayBeError, MayBeWarning,
         u"A default names a colour that the palette lacks."_s},
        {Rule::ParameterGap, u"parameter-gap"_s, !MayBeError, MayBeWarning,
         u"A parameter of a recipe entry is left out: the later ones move up."_s},
        {Rule::UnknownTitle, u"unknown-title"_s, !MayBeError, MayBeWarning,
         u"A recipe entry names a graph, a curve or a kind of table that the document lacks."_s},
        {Rule::FormulaGroup, u"formula-group"_s, !MayBeError, MayBeWarning,
         u"A group of formulas has a name of its own: the second Y axis offers it."_s},
        {Rule::UnknownUnit, u"unknown-unit"_s, MayBeError, !MayBeWarning,
         u"A text is no unit that the application knows."_s},
        {Rule::WrongUnit, u"wrong-unit"_s, MayBeError, !MayBeWarning,
         u"A unit does not measure the quantity of its array."_s},
        {Rule::RepeatedCategory, u"repeated-category"_s, !MayBeError, MayBeWarning,
         u"A category stands twice in a catalogue: its arrays are put together."_s},
        {Rule::EmptyCatalogue, u"empty-catalogue"_s, !MayBeError, MayBeWarning,
         u"A catalogue has no categories, or a category no arrays."_s},
    };
    return all;
}

const RuleDescription& describe(Rule rule)
{
    return rules().at(static_cast<qsizetype>(rule));
}

std::optional<Rule> ruleFromName(const QString& name)
{
    const auto found =
        std::find_if(rules().begin(), rules().end(), [&](const RuleDescription& each) { return each.name == name; });
    return found == rules().end() ? std::nullopt : std::optional(found->rule);
}

} // namespace cluiconfig::check
