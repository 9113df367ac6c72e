#include "Suggest.h"
#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <axes/AxesCombinationManager.h>
#include <axes/ConfigRepresentation.h>
#include <base/DocumentKeys.h>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

bool namesArrays(const ConfigRepresentation& representation, const Catalogue& catalogue)
{
    const auto isNothingOrKnown = [&](const QString& name) { return name.isEmpty() || catalogue.has(name); };
    return catalogue.has(representation.x()) && isNothingOrKnown(representation.y1())
        && isNothingOrKnown(representation.y2());
}

void checkAxes(const Value& entry, const Context& with)
{
    for (const QLatin1StringView key : {keys::X, keys::Y1, keys::Y2}) {
        const QString name = entry.text(key);
        if (!name.isEmpty() && !with.catalogue.has(name)) {
            with.findings.report(Rule::UnknownArray, *entry.member(key),
                                 [&](bool /*isRefused*/) { return with.catalogue.unknownName(name, Refuses); });
        }
    }
    const ConfigRepresentation representation(entry.text(keys::Name), entry.text(keys::X), entry.text(keys::Y1),
                                              entry.text(keys::Y2), QString(), false);
    if (entry.isObject() && representation.y1().isEmpty() && representation.y2().isEmpty()) {
        with.findings.report(Rule::MissingY, entry, [](bool /*isRefused*/) {
            return u"The representation has neither \"Y1\" nor \"Y2\": %1. Name an array for one of them."_s.arg(
                Refuses);
        });
    } else if (namesArrays(representation, with.catalogue) && !with.axes.isRepresentationValid(&representation)) {
        with.findings.warn(Rule::InvalidRepresentation, entry, [&] {
            const QString y = representation.y1().isEmpty() ? representation.y2() : representation.y1();
            return u"No axes combination pairs the X array %1 with a Y array of this representation: it cannot be "
                   "plotted. Add a pair such as %1 and %2 to \"Axes combinations\"."_s.arg(quoted(representation.x()),
                                                                                           quoted(y));
        });
    }
}

} // namespace

void checkRepresentations(const Value& section, const Context& with)
{
    RepeatedNames names(u"representation"_s, with.findings);
    bool hasDefault = false;
    section.forEach([&](const Value& entry) {
        names.add(entry, keys::Name);
        checkAxes(entry, with);
        const std::optional<Value> isDefault = entry.member(keys::Default);
        if (isDefault && isDefault->json().toBool()) {
            if (hasDefault) {
                with.findings.warn(Rule::SecondDefault, *isDefault, [] {
                    return u"Another representation before this one is the default: this one is not used, but its "
                           "arrays become default axes, too. Leave \"Default\": true at one of them."_s;
                });
            }
            hasDefault = true;
        }
    });
}

} // namespace cluiconfig::check
