#include "RepeatedNames.h"
#include "Sections.h"

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

const QString StatisticsKey = u"Statistics"_s;
const QString RagonePlotKey = u"Ragone Plot"_s;
const QString ProcessedDataKey = u"Processed Data"_s;
const QString DQdUKey = u"dQ_dU"_s;
const QString GraphKey = u"Graph"_s;
const QString TitleKey = u"Title"_s;
const QString CategoryKey = u"Category"_s;
const QString XKey = u"X"_s;
const QString YKey = u"Y"_s;
const QString Y1Key = u"Y1"_s;
const QString Y2Key = u"Y2"_s;
const QString ProcessedKey = u"Y_processed"_s;

const QString NoAxes = u"it has no axes to be plotted on"_s;
const QString NothingToShow = u"there is nothing to show for it"_s;

/// The category and the arrays of a curve or a graph: those under \p axes make it what it is, those under \p others
/// come on top.
void checkAxes(const Value& plot, const QStringList& axes, const QStringList& others, const Catalogue& catalogue,
               Findings& findings)
{
    const QString category = plot.text(CategoryKey);
    if (category.isEmpty()) {
        return;
    }
    if (!catalogue.hasCategory(category)) {
        findings.add(Rule::UnknownCategory, Severity::Warning, *plot.member(CategoryKey),
                     [&] { return catalogue.unknownCategoryMessage(category, NoAxes); });
        return;
    }
    const auto check = [&](const Value& place, const QString& effect) {
        if (!place.text().isEmpty()) {
            catalogue.checkNameIn(category, findings, place, place.text(), Severity::Warning, effect);
        }
    };
    for (const QString& key : axes) {
        if (const std::optional<Value> place = plot.member(key)) {
            check(*place, NoAxes);
        }
    }
    for (const QString& key : others) {
        const std::optional<Value> place = plot.member(key);
        if (place && place->isArray()) {
            place->forEach([&](const Value& name) { check(name, NothingToShow); });
        } else if (place) {
            check(*place, NothingToShow);
        }
    }
}

/// A section whose members are graphs, each a list of curves.
void checkCurves(const Value& graphs, const Catalogue& catalogue, Findings& findings)
{
    graphs.forEach([&](const Value& graph) {
        if (graph.isArray()) {
            RepeatedNames titles(u"curve of the graph"_s, findings);
            graph.forEach([&](const Value& curve) {
                titles.add(curve, TitleKey);
                checkAxes(curve, {XKey, YKey}, {}, catalogue, findings);
            });
        }
    });
}

} // namespace

void checkGraphs(const Value& root, const Catalogue& catalogue, Findings& findings)
{
    for (const QString& key : {StatisticsKey, RagonePlotKey}) {
        const std::optional<Value> section = root.member(key);
        if (section && section->isObject()) {
            checkCurves(*section, catalogue, findings);
        }
    }
    const std::optional<Value> processedData = root.member(ProcessedDataKey);
    if (processedData && processedData->isArray()) {
        RepeatedNames titles(u"graph of processed data"_s, findings);
        processedData->forEach([&](const Value& graph) {
            titles.add(graph, TitleKey);
            checkAxes(graph, {XKey, Y1Key}, {Y2Key, ProcessedKey}, catalogue, findings);
        });
    }
    const std::optional<Value> dQdU = root.member(DQdUKey);
    const std::optional<Value> graph = dQdU ? dQdU->member(GraphKey) : std::nullopt;
    if (graph && graph->isObject()) {
        checkAxes(*graph, {XKey, Y1Key}, {}, catalogue, findings);
    }
}

} // namespace cluiconfig::check
