#include "CurveColors.h"

#include <cluiedit/tabs/ColorVision.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr double LeastContrast = 1.6;

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
        result.append(own && own->isValid() ? visible(*own, ground, text) : others.at(next++ % others.size()));
    }
    return result;
}

} // namespace cluiedit
