#include "ColorDifference.h"

#include <cmath>
#include <numbers>

namespace cluiedit {

namespace {

constexpr double Degree = std::numbers::pi / 180;

/// How much of the corrections for blue and for near-greys applies at \p chroma.
double chromaShare(double chroma)
{
    const double square = chroma * chroma;
    const double seventh = square * square * square * chroma;
    constexpr double Reference = 6103515625; // 25 to the power of 7
    return std::sqrt(seventh / (seventh + Reference));
}

/// By both angles together.
Direction turned(const Direction& one, const Direction& other)
{
    return {one.x * other.x - one.y * other.y, one.x * other.y + one.y * other.x};
}

/// The cosine when that is turned further by \p degrees.
double cosine(const Direction& direction, double degrees)
{
    return direction.x * std::cos(degrees * Degree) - direction.y * std::sin(degrees * Degree);
}

/// In the middle between the hues of two colours, on the shorter way. A grey has none: then that of the other one.
Direction meanHue(const Lab& one, double chroma1, const Lab& other, double chroma2)
{
    const Direction hue1 = chroma1 > 0 ? Direction{one.a / chroma1, one.b / chroma1} : Direction{0, 0};
    const Direction hue2 = chroma2 > 0 ? Direction{other.a / chroma2, other.b / chroma2} : Direction{0, 0};
    const Direction sum{hue1.x + hue2.x, hue1.y + hue2.y};
    const double length = std::sqrt(sum.x * sum.x + sum.y * sum.y);
    if (length > 0) {
        return {sum.x / length, sum.y / length};
    }
    if (chroma1 == 0) {
        return {1, 0};
    }
    // Opposite ones: a quarter further than the one in the half that begins at 0 degrees.
    const bool isFirst = hue1.y > 0 || (hue1.y == 0 && hue1.x > 0);
    return isFirst ? Direction{-hue1.y, hue1.x} : Direction{-hue2.y, hue2.x};
}

/// The correction for blues: this much of the product of the steps in chroma and hue is added to their squares. From
/// −√3 to 0, since it is twice a sine of at most 60 degrees.
double rotation(const Direction& meanHue, double meanChroma)
{
    const double angle = std::atan2(meanHue.y, meanHue.x) / Degree;
    const double blueness = ((angle < 0 ? angle + 360 : angle) - 275) / 25;
    return -2 * chromaShare(meanChroma) * std::sin(60 * Degree * std::exp(-blueness * blueness));
}

} // namespace

double lightnessWeight(double mean)
{
    const double square = (mean - 50) * (mean - 50);
    return 1 + 0.015 * square / std::sqrt(20 + square);
}

double chromaOf(const Lab& color)
{
    return std::sqrt(color.a * color.a + color.b * color.b);
}

// The angles of the formula are directions here, which takes a fraction of the time.
ColorSteps stepsBetween(const Lab& one, const Lab& other)
{
    const double stretch = 1.5 - 0.5 * chromaShare((chromaOf(one) + chromaOf(other)) / 2);
    const Lab first{one.lightness, one.a * stretch, one.b};
    const Lab second{other.lightness, other.a * stretch, other.b};
    const double chroma1 = chromaOf(first);
    const double chroma2 = chromaOf(second);
    const double meanChroma = (chroma1 + chroma2) / 2;

    const Direction hue = meanHue(first, chroma1, second, chroma2);
    const Direction twice = turned(hue, hue);
    const double t = 1 - 0.17 * cosine(hue, -30) + 0.24 * twice.x + 0.32 * cosine(turned(twice, hue), 6)
        - 0.20 * cosine(turned(twice, twice), -63);

    // 2 √(chroma1 · chroma2) · sin(half the angle between the hues), written so that nothing cancels out.
    const double product = chroma1 * chroma2;
    const double along = first.a * second.a + first.b * second.b;
    const double across = first.a * second.b - first.b * second.a;
    const double apart = product == 0 ? 0
        : along >= 0                  ? across / std::sqrt((product + along) / 2)
                                      : std::copysign(std::sqrt(2 * (product - along)), across);

    return {.lightness = (other.lightness - one.lightness) / lightnessWeight((one.lightness + other.lightness) / 2),
            .chroma = (chroma2 - chroma1) / (1 + 0.045 * meanChroma),
            .hue = apart / (1 + 0.015 * meanChroma * t),
            .meanHue = hue,
            .meanChroma = meanChroma};
}

double differenceBy(const ColorSteps& steps)
{
    return std::sqrt(steps.lightness * steps.lightness + steps.chroma * steps.chroma + steps.hue * steps.hue
                     + rotation(steps.meanHue, steps.meanChroma) * steps.chroma * steps.hue);
}

double difference(const Lab& one, const Lab& other)
{
    return differenceBy(stepsBetween(one, other));
}

} // namespace cluiedit
