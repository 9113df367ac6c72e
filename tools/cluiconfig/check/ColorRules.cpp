#include "RepeatedNames.h"
#include "Sections.h"
#include "Suggest.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

const QString SectionKey = u"Colors"_s;
const QString CustomColorsKey = u"Custom colors"_s;
const QString DefaultColorsKey = u"Default colors"_s;
const QString NameKey = u"name"_s;
const QString RgbKey = u"RGB"_s;

/// Adds a finding for each default that names no colour of the palette, and returns the names that the defaults use.
QSet<QString> checkDefaults(const Value& defaults, const QStringList& palette, Findings& findings)
{
    const QSet<QString> known(palette.begin(), palette.end());
    QSet<QString> used;
    defaults.forEach([&](const Value& element) {
        const QString name = element.text();
        used.insert(name);
        if (element.json().isString() && !known.contains(name)) {
            findings.add(Rule::UnknownColor, Severity::Warning, element, [&] {
                return u"The palette has no colour %1: %2 gets no colour.%3"_s.arg(quoted(name), quoted(element.key()),
                                                                                   didYouMean(name, palette));
            });
        }
    });
    return used;
}

QStringList readPalette(const Value& colors, Findings& findings)
{
    QStringList palette;
    RepeatedNames names(u"colour"_s, findings);
    QHash<QJsonArray, QString> nameByRgb;
    colors.forEach([&](const Value& color) {
        const QString name = color.text(NameKey);
        palette.append(name);
        names.add(color, NameKey);
        const std::optional<Value> rgb = color.member(RgbKey);
        if (!rgb || rgb->json().toArray().size() != 3) {
            return;
        }
        const QJsonArray triple = rgb->json().toArray();
        const auto earlier = nameByRgb.constFind(triple);
        if (earlier == nameByRgb.constEnd()) {
            nameByRgb.insert(triple, name);
        } else {
            findings.add(Rule::RepeatedColor, Severity::Warning, *rgb, [&] {
                return u"%1 is the same colour as %2: nobody can tell them apart. Change or remove one of them."_s.arg(
                    quoted(name), quoted(*earlier));
            });
        }
    });
    return palette;
}

} // namespace

void checkColors(const Value& root, Findings& findings)
{
    const std::optional<Value> section = root.member(SectionKey);
    const std::optional<Value> colors = section ? section->member(CustomColorsKey) : std::nullopt;
    const std::optional<Value> defaults = section ? section->member(DefaultColorsKey) : std::nullopt;
    if (!colors || !colors->isArray()) {
        return;
    }
    const QStringList palette = readPalette(*colors, findings);
    if (!defaults || !defaults->isObject()) {
        return;
    }
    const QSet<QString> used = checkDefaults(*defaults, palette, findings);
    colors->forEach([&](const Value& color) {
        const QString name = color.text(NameKey);
        if (!name.isEmpty() && !used.contains(name)) {
            findings.add(Rule::UnusedColor, Severity::Warning, color, [&] {
                return u"No default uses the colour %1: nothing is drawn in it unless the user chooses it. Give it to "
                       "an element in \"Default colors\", or remove it."_s.arg(quoted(name));
            });
        }
    });
}

} // namespace cluiconfig::check
