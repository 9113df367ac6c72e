#include "Suggest.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>
#include <config/Configuration.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

void checkNumbers(const Value& entry, Findings& findings)
{
    QLatin1StringView missing;
    for (const QLatin1StringView key : keys::Parameters) {
        const std::optional<Value> parameter = entry.member(key);
        if (parameter && !missing.isEmpty()) {
            findings.warnAtKey(Rule::ParameterGap, *parameter, [&] {
                return u"%1 is missing before %2, which moves up into the gap. Number the parameters without gaps."_s
                    .arg(quoted(missing), quoted(key));
            });
        }
        missing = parameter ? QLatin1StringView() : key;
    }
}

/// The parameters as the application numbers them: what is no text is left out, and the later ones move up.
std::vector<Value> parameters(const Value& entry)
{
    std::vector<Value> places;
    for (const QLatin1StringView key : keys::Parameters) {
        const std::optional<Value> parameter = entry.member(key);
        if (parameter && parameter->json().isString()) {
            places.push_back(*parameter);
        }
    }
    return places;
}

/// A category, and arrays of it for X, Y1 and Y2.
void checkGraph(const std::vector<Value>& given, const Context& with)
{
    const QString effect = u"the entry adds no graph"_s;
    const QString category = given.empty() ? QString() : given.front().text();
    if (category.isEmpty()) {
        return;
    }
    if (!with.catalogue.hasCategory(category)) {
        with.findings.warn(Rule::UnknownCategory, given.front(),
                           [&] { return with.catalogue.unknownCategory(category, effect); });
        return;
    }
    for (std::size_t i = 1; i < std::min<std::size_t>(given.size(), 4); ++i) {
        checkArray(given[i], category, effect, with);
    }
}

/// Adds a finding if \p place is none of the names \p known of \p what.
bool checkTitle(const Value& place, const QString& what, const QStringList& known, const Context& with)
{
    const bool isKnown = known.contains(place.text());
    if (!isKnown) {
        with.findings.warn(Rule::UnknownTitle, place, [&] {
            const Advice near = didYouMean(place.text(), known);
            return Advice(
                u"There is no %1 %2: the entry adds nothing.%3"_s.arg(
                    what, quoted(place.text()), near.text.isEmpty() ? u" `cluiconfig show` lists them."_s : near.text),
                near.instead);
        });
    }
    return isKnown;
}

template <typename Item>
QStringList titles(const QList<Item>& items)
{
    QStringList result;
    for (const Item& item : items) {
        result.append(item.getTitle());
    }
    return result;
}

void checkSummary(const std::vector<Value>& given, const Context& with)
{
    if (!given.empty()) {
        checkTitle(given.front(), u"kind of summary table"_s,
                   QStringList(keys::SummaryTableKinds.begin(), keys::SummaryTableKinds.end()), with);
    }
}

/// A graph and a curve of it.
void checkStatistics(const std::vector<Value>& given, const Context& with)
{
    const QList<StatisticsItem>& graphs = with.configuration.statistics;
    if (given.empty() || !checkTitle(given.front(), u"statistics graph"_s, titles(graphs), with) || given.size() < 2) {
        return;
    }
    const QString graph = given.front().text();
    const auto found = std::ranges::find(graphs, graph, &StatisticsItem::getTitle);
    checkTitle(given[1], u"curve of the statistics graph %1 called"_s.arg(quoted(graph)),
               found->getGraphItemsTitleList(), with);
}

void checkProcessedGraph(const std::vector<Value>& given, const Context& with)
{
    if (!given.empty()) {
        checkTitle(given.front(), u"graph of processed data"_s, titles(with.configuration.processedData), with);
    }
}

/// What the parameters of a command mean.
struct CommandCheck
{
    QLatin1StringView command;
    void (*check)(const std::vector<Value>& given, const Context& with) = nullptr;
};

constexpr std::array CommandChecks{
    CommandCheck{keys::GraphCommand, checkGraph},
    CommandCheck{keys::ToolSummaryCommand, checkSummary},
    CommandCheck{keys::ToolStatisticsCommand, checkStatistics},
    CommandCheck{keys::ToolProcessedDataCommand, checkProcessedGraph},
};

} // namespace

void checkRecipe(const Value& section, const Context& with)
{
    for (const CommandCheck& command : CommandChecks) {
        const std::optional<Value> entries = section.member(command.command);
        if (entries && entries->isArray()) {
            entries->forEach([&](const Value& entry) {
                checkNumbers(entry, with.findings);
                if (!entry.text(keys::Parameters.front()).isEmpty()) {
                    command.check(parameters(entry), with);
                }
            });
        }
    }
}

} // namespace cluiconfig::check
