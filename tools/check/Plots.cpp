#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

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

void checkCurves(const Value& section, const Context& with)
{
    section.forEach([&](const Value& graph) {
        if (graph.isArray()) {
            RepeatedNames titles(u"curve of the graph"_s, with.findings);
            graph.forEach([&](const Value& curve) {
                titles.add(curve, keys::Title);
                checkPlot(curve, {keys::X, keys::Y}, {}, with);
            });
        }
    });
}

} // namespace cluiconfig::check
