#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

void checkArray(const Value& name, const QString& category, const QString& effect, const Context& with)
{
    if (!name.text().isEmpty() && !with.catalogue.has(name.text(), category)) {
        with.findings.warn(Rule::UnknownArray, name,
                           [&] { return with.catalogue.unknownNameIn(category, name.text(), effect); });
    }
}

void checkPlot(const Value& plot, std::initializer_list<QLatin1StringView> axes,
               std::initializer_list<QLatin1StringView> others, const Context& with)
{
    const QString noAxes = u"it has no axes to be plotted on"_s;
    const QString category = plot.text(keys::Category);
    if (category.isEmpty()) {
        return;
    }
    if (!with.catalogue.hasCategory(category)) {
        with.findings.warn(Rule::UnknownCategory, *plot.member(keys::Category),
                           [&] { return with.catalogue.unknownCategory(category, noAxes); });
        return;
    }
    for (const QLatin1StringView key : axes) {
        if (const std::optional<Value> place = plot.member(key)) {
            checkArray(*place, category, noAxes, with);
        }
    }
    const QString nothing = u"there is nothing to show for it"_s;
    for (const QLatin1StringView key : others) {
        const std::optional<Value> place = plot.member(key);
        if (place && place->isArray()) {
            place->forEach([&](const Value& name) { checkArray(name, category, nothing, with); });
        } else if (place) {
            checkArray(*place, category, nothing, with);
        }
    }
}

namespace {

/// Adds a finding if the application, which walks through the titles of \p graphs and looks each of them up, does not
/// come back to \p graph.
void checkTitle(const Value& graph, const QJsonObject& graphs, Findings& findings)
{
    const auto found = graphs.constFind(graph.key());
    if (found == graphs.constEnd()) {
        findings.warnAtKey(Rule::LostCurves, graph, [] {
            return u"The application does not find this graph by its title, and loses its curves: titles of the "
                   "section hold rare letters, some as they are and some as escapes. Write all of them as they are."_s;
        });
    } else if (found.key() != graph.key()) {
        findings.warnAtKey(Rule::LostCurves, graph, [] {
            return u"The title begins with a byte-order mark, which nobody sees: the application drops the mark, does "
                   "not find the graph without it, and loses its curves. Remove the mark."_s;
        });
    }
}

} // namespace

void checkCurves(const Value& section, const Context& with)
{
    const QJsonObject graphs = section.json().toObject();
    section.forEach([&](const Value& graph) {
        if (graph.isArray()) {
            if (!graph.json().toArray().isEmpty()) {
                checkTitle(graph, graphs, with.findings);
            }
            RepeatedNames titles(u"curve of the graph"_s, with.findings);
            graph.forEach([&](const Value& curve) {
                titles.add(curve, keys::Title);
                checkPlot(curve, {keys::X, keys::Y}, {}, with);
            });
        }
    });
}

} // namespace cluiconfig::check
