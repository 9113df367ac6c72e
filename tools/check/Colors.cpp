#include "Suggest.h"
#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

/// Adds a finding for each default that names no colour of the palette, and returns the names that the defaults use.
QSet<QString> checkDefaults(const Value& defaults, const QStringList& palette, Findings& findings)
{
    const QSet<QString> known(palette.begin(), palette.end());
    QSet<QString> used;
    defaults.forEach([&](const Value& element) {
        const QString name = element.text();
        used.insert(name);
        if (element.json().isString() && !known.contains(name)) {
            findings.warn(Rule::UnknownColor, element, [&] {
                const Advice advice = didYouMean(name, palette);
                return Advice(u"The palette has no colour %1: %2 gets no colour.%3"_s.arg(
                                  quoted(name), quoted(element.key()), advice.text),
                              advice.instead);
            });
        }
    });
    return used;
}

/// The names of the colours, also of those that are refused.
QStringList checkPalette(const Value& colors, Findings& findings)
{
    QStringList palette;
    RepeatedNames names(u"colour"_s, findings);
    QHash<QJsonArray, QString> nameByRgb;
    colors.forEach([&](const Value& color) {
        const QString name = color.text(keys::ColorName);
        palette.append(name);
        names.add(color, keys::ColorName);
        const std::optional<Value> rgb = color.member(keys::Rgb);
        if (!rgb || rgb->json().toArray().size() != 3) {
            return;
        }
        const QJsonArray triple = rgb->json().toArray();
        const auto earlier = nameByRgb.constFind(triple);
        if (earlier == nameByRgb.constEnd()) {
            nameByRgb.insert(triple, name);
        } else {
            findings.warn(Rule::RepeatedColor, *rgb, [&] {
                return u"%1 is the same colour as %2: nobody can tell them apart. Change or remove one of them."_s.arg(
                    quoted(name), quoted(*earlier));
            });
        }
    });
    return palette;
}

} // namespace

void checkColors(const Value& section, const Context& with)
{
    const std::optional<Value> colors = section.member(keys::CustomColors);
    const std::optional<Value> defaults = section.member(keys::DefaultColors);
    if (!colors || !colors->isArray()) {
        return;
    }
    const QStringList palette = checkPalette(*colors, with.findings);
    if (!defaults || !defaults->isObject()) {
        return;
    }
    const QSet<QString> used = checkDefaults(*defaults, palette, with.findings);
    colors->forEach([&](const Value& color) {
        const QString name = color.text(keys::ColorName);
        if (!name.isEmpty() && !used.contains(name)) {
            with.findings.warn(Rule::UnusedColor, color, [&] {
                return u"No default uses the colour %1: nothing is drawn in it unless the user chooses it. Give it to "
                       "an element in \"Default colors\", or remove it."_s.arg(quoted(name));
            });
        }
    });
}

} // namespace cluiconfig::check
