#include "RepeatedNames.h"
#include "Sections.h"
#include "Suggest.h"

#include <axes/AxesCombinationManager.h>
#include <config/ConfigRepresentation.h>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

const QString SectionKey = u"Representations"_s;
const QString NameKey = u"Name"_s;
const QString XKey = u"X"_s;
const QString Y1Key = u"Y1"_s;
const QString Y2Key = u"Y2"_s;
const QString DefaultKey = u"Default"_s;

bool namesArrays(const Value& entry, const Catalogue& catalogue)
{
    const auto isNothingOrKnown = [&](const QString& name) {
        return name.isEmpty() || !catalogue.categoriesOf(name).isEmpty();
    };
    const QString y1 = entry.text(Y1Key);
    const QString y2 = entry.text(Y2Key);
    return !catalogue.categoriesOf(entry.text(XKey)).isEmpty() && isNothingOrKnown(y1) && isNothingOrKnown(y2)
        && !(y1.isEmpty() && y2.isEmpty());
}

} // namespace

void checkRepresentations(const Value& root, const Catalogue& catalogue, const AxesCombinationManager& manager,
                          Findings& findings)
{
    const std::optional<Value> section = root.member(SectionKey);
    if (!section || !section->isArray()) {
        return;
    }
    RepeatedNames names(u"representation"_s, findings);
    bool hasDefault = false;
    section->forEach([&](const Value& entry) {
        names.add(entry, NameKey);
        for (const QString& key : {XKey, Y1Key, Y2Key}) {
            if (const QString name = entry.text(key); !name.isEmpty()) {
                catalogue.checkName(findings, *entry.member(key), name, Severity::Error,
                                    u"the application refuses the document"_s);
            }
        }
        const ConfigRepresentation representation(entry.text(NameKey), entry.text(XKey), entry.text(Y1Key),
                                                  entry.text(Y2Key), QString(), false);
        if (namesArrays(entry, catalogue) && !manager.isRepresentationValid(&representation)) {
            findings.add(Rule::InvalidRepresentation, Severity::Warning, entry, [&] {
                const QString y = representation.y1().isEmpty() ? representation.y2() : representation.y1();
                return u"No axes combination pairs the X array %1 with a Y array of this representation: it cannot be "
                       "plotted. Add a pair such as %1 and %2 to \"Axes combinations\"."_s.arg(
                           quoted(representation.x()), quoted(y));
            });
        }
        const std::optional<Value> isDefault = entry.member(DefaultKey);
        if (isDefault && isDefault->json().toBool()) {
            if (hasDefault) {
                findings.add(Rule::SecondDefault, Severity::Warning, *isDefault, [] {
                    return u"Another representation before this one is the default: this one is not used, but its "
                           "arrays become default axes, too. Leave \"Default\": true at one of them."_s;
                });
            }
            hasDefault = true;
        }
    });
}

} // namespace cluiconfig::check
