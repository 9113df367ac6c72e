#include "LookAlikes.h"

#include "ColorDifference.h"

#include <algorithm>
#include <vector>

namespace cluiedit {

namespace {

/// A colour of a palette.
struct Seen
{
    Lab lab;
    double lightnessWeight; ///< That of differences about this lightness.
    double planeWeight; ///< Half of what weighs no less than chroma and hue, if the other colour is like this.
    qsizetype place;
};

Seen seen(const Lab& lab, qsizetype place)
{
    return {lab, lightnessWeight(lab.lightness), (1 + 0.045 * 1.5 * chromaOf(lab)) / 2, place};
}

constexpr double FarSquare = LeastDifference * LeastDifference * (1 + 1e-9); // above what rounding may do

// The square of a difference is L² + C² + H² + R·C·H, by the steps between the colours. As |C·H| is at most
// (C² + H²) / 2, that is no less than L² + (1 − |R| / 2) · (C² + H²), and 1 − |R| / 2 no less than:
constexpr double LeastShare = 0.1339; // 1 − √3 / 2
/// The same where the mean hue lies between 0 and 180 degrees, at least 95 from the blue of the correction.
constexpr double LeastShareOffBlue = 0.9999;

/// Whether the colours are certainly no less than LeastDifference apart, by little arithmetic.
///
/// The weight of lightness grows away from the middle, so that about the mean it is at most the greater of the two.
/// Before they are weighed, the squares of the steps in chroma and in hue add up to that of the distance in the plane
/// of a and b, a stretched, which makes it no shorter. No weight is above that of chroma for the longest stretch, by
/// 1.5: hue's has 0.015 · 1.93 at most in place of 0.045.
bool areSurelyFar(const Seen& one, const Seen& other)
{
    const double lightness = other.lab.lightness - one.lab.lightness;
    const double a = other.lab.a - one.lab.a;
    const double b = other.lab.b - one.lab.b;
    const double lightnessWeight = std::max(one.lightnessWeight, other.lightnessWeight);
    const double planeWeight = one.planeWeight + other.planeWeight;
    const bool isOffBlue = one.lab.b >= 0 && other.lab.b >= 0; // both hues are, so the one between them is
    const double share = isOffBlue ? LeastShareOffBlue : LeastShare;
    const double lightnessSquare = lightnessWeight * lightnessWeight;
    const double planeSquare = planeWeight * planeWeight;
    // Multiplied by both weights, as divisions take long.
    return lightness * lightness * planeSquare + share * (a * a + b * b) * lightnessSquare
        > FarSquare * lightnessSquare * planeSquare;
}

bool areSurelyFar(const ColorSteps& steps)
{
    const double share = steps.meanHue.y >= 0 ? LeastShareOffBlue : LeastShare;
    return steps.lightness * steps.lightness + share * (steps.chroma * steps.chroma + steps.hue * steps.hue)
        > FarSquare;
}

void appendLookAlikes(const QList<QColor>& palette, Vision vision, QList<LookAlike>& all)
{
    std::vector<Seen> colors;
    for (qsizetype place = 0; place < palette.size(); ++place) {
        if (palette.at(place).isValid()) {
            colors.push_back(seen(labSeenAs(palette.at(place), vision), place));
        }
    }
    // Colours of different lightness cannot look alike, so only the next ones by lightness are compared.
    std::ranges::stable_sort(colors, {}, [](const Seen& color) { return color.lab.lightness; });
    const double farthest = LeastDifference * lightnessWeight(0);
    for (auto one = colors.begin(); one != colors.end(); ++one) {
        for (auto other = one + 1; other != colors.end(); ++other) {
            if (other->lab.lightness - one->lab.lightness > farthest) {
                break;
            }
            if (areSurelyFar(*one, *other)) {
                continue;
            }
            const ColorSteps steps = stepsBetween(one->lab, other->lab);
            if (areSurelyFar(steps)) {
                continue;
            }
            const double between = differenceBy(steps);
            if (between < LeastDifference) {
                const auto [first, second] = std::minmax(one->place, other->place);
                all.append({first, second, vision, between});
            }
        }
    }
}

} // namespace

QList<LookAlike> lookAlikes(const QList<QColor>& palette)
{
    QList<LookAlike> all;
    for (const Vision vision : Visions) {
        const qsizetype before = all.size();
        appendLookAlikes(palette, vision, all);
        std::stable_sort(all.begin() + before, all.end(),
                         [](const LookAlike& a, const LookAlike& b) { return a.difference < b.difference; });
    }
    return all;
}

} // namespace cluiedit
