#include "CurveColors.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr double LeastContrast = 1.6;

/// From 0 for black to 1 for white, as bright as it looks.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor& color, const QColor& other, double share)
{
    const auto mix = [share](int one, int two) { return static_cast<int>(std::lround(one + (two - one) * share)); };
    return {mix(color.red(), other.red()), mix(color.green(), other.green()), mix(color.blue(), other.blue())};
}

QColor visible(const QColor& color, const QColor& ground, const QColor& text)
{
    constexpr double Step = 0.1;
    QColor result = color;
    for (double share = Step; contrast(result, ground) < LeastContrast && share <= 1; share += Step) {
        result = mixed(color, text, share);
    }
    return result;
}

} // namespace

double contrast(const QColor& color, const QColor& ground)
{
    const auto [dark, light] = std::minmax({luminance(color), luminance(ground)});
    return (light + 0.05) / (dark + 0.05);
}

std::optional<QColor> defaultColor(const uiconfig::Colors& colors, const QString& key)
{
    const QString name = colors.defaults.value(key);
    const auto found = std::find_if(colors.custom.cbegin(), colors.custom.cend(),
                                    [&name](const auto& custom) { return custom.first == name; });
    if (found == colors.custom.cend() || !found->second.isValid()) {
        return std::nullopt;
    }
    return found->second;
}

QList<QColor> curveColors(const uiconfig::Colors& colors, qsizetype count, const QColor& ground, const QColor& text)
{
    QList<QColor> others;
    for (const auto& [name, color] : colors.custom) {
        if (color.isValid() && contrast(color, ground) >= LeastContrast) {
            others.append(color);
        }
    }
    if (others.isEmpty()) {
        others.append(text);
    }
    QList<QColor> result;
    qsizetype next = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const auto own = defaultColor(colors, u"Curve %1"_s.arg(i + 1, 2, 10, QChar(u'0')));
        result.append(own ? visible(*own, ground, text) : others.at(next++ % others.size()));
    }
    return result;
}

} // namespace cluiedit
