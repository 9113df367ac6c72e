#include "ColorVision.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace cluiedit {

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

constexpr Matrix Unchanged{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix Protan{
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix Deutan{
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix Tritan{
    {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};

/// From linear sRGB to CIE XYZ (IEC 61966-2-1).
constexpr Matrix ToXyz{
    {{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}};
constexpr Triple White{0.95047, 1, 1.08883};

const Matrix& matrixOf(Vision vision)
{
    switch (vision) {
    case Vision::Protanopia:
        return Protan;
    case Vision::Deuteranopia:
        return Deutan;
    case Vision::Tritanopia:
        return Tritan;
    case Vision::Normal:
        break;
    }
    return Unchanged;
}

Triple product(const Matrix& matrix, const Triple& vector)
{
    Triple result{};
    for (std::size_t row = 0; row < result.size(); ++row) {
        for (std::size_t column = 0; column < vector.size(); ++column) {
            result.at(row) += matrix.at(row).at(column) * vector.at(column);
        }
    }
    return result;
}

double toLinear(double share)
{
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

float fromLinear(double light)
{
    return static_cast<float>(light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

Triple lightOf(const QColor& color)
{
    return {toLinear(color.red() / 255.0), toLinear(color.green() / 255.0), toLinear(color.blue() / 255.0)};
}

/// What of \p color a screen shows to somebody with that vision.
Triple lightSeen(const QColor& color, Vision vision)
{
    Triple light = product(matrixOf(vision), lightOf(color));
    for (double& component : light) {
        component = std::clamp(component, 0.0, 1.0);
    }
    return light;
}

constexpr double Degree = std::numbers::pi / 180;

double sine(double degrees)
{
    return std::sin(degrees * Degree);
}

double cosine(double degrees)
{
    return std::cos(degrees * Degree);
}

/// From 0 to below 360 degrees; 0 for grey.
double hueOf(double a, double b)
{
    return a == 0 && b == 0 ? 0 : std::fmod(std::atan2(b, a) / Degree + 360, 360);
}

/// How much of the corrections for blue and for near-greys applies at \p chroma.
double chromaShare(double chroma)
{
    const double square = chroma * chroma;
    const double seventh = square * square * square * chroma;
    constexpr double Reference = 6103515625; // 25 to the power of 7
    return std::sqrt(seventh / (seventh + Reference));
}

/// The weight of a difference in lightness is never more than this: S_L at the ends of the scale.
const double GreatestLightnessWeight = 1 + 0.015 * 2500 / std::sqrt(2520.0);

double relativeLuminance(const QColor& color)
{
    return product(ToXyz, lightOf(color))[1];
}

void appendLookAlikes(const QList<QColor>& palette, Vision vision, QList<LookAlike>& all)
{
    struct Seen
    {
        Lab lab;
        qsizetype place;
    };
    std::vector<Seen> colors;
    for (qsizetype place = 0; place < palette.size(); ++place) {
        if (palette.at(place).isValid()) {
            colors.push_back({labSeenAs(palette.at(place), vision), place});
        }
    }
    // Colours of different lightness cannot look alike, so only the next ones by lightness are compared.
    std::ranges::stable_sort(colors, {}, [](const Seen& color) { return color.lab.lightness; });
    const double farthest = LeastDifference * GreatestLightnessWeight;
    for (auto one = colors.begin(); one != colors.end(); ++one) {
        for (auto other = one + 1; other != colors.end(); ++other) {
            if (other->lab.lightness - one->lab.lightness > farthest) {
                break;
            }
            const double between = difference(one->lab, other->lab);
            if (between < LeastDifference) {
                const auto [first, second] = std::minmax(one->place, other->place);
                all.append({first, second, vision, between});
            }
        }
    }
}

} // namespace

QString visionName(Vision vision)
{
    switch (vision) {
    case Vision::Protanopia:
        return QCoreApplication::translate("cluiedit::ColorVision", "Protanopia");
    case Vision::Deuteranopia:
        return QCoreApplication::translate("cluiedit::ColorVision", "Deuteranopia");
    case Vision::Tritanopia:
        return QCoreApplication::translate("cluiedit::ColorVision", "Tritanopia");
    case Vision::Normal:
        break;
    }
    return QCoreApplication::translate("cluiedit::ColorVision", "Normal");
}

QColor seenAs(const QColor& color, Vision vision)
{
    if (!color.isValid() || vision == Vision::Normal) {
        return color;
    }
    const Triple light = lightSeen(color, vision);
    return QColor::fromRgbF(fromLinear(light[0]), fromLinear(light[1]), fromLinear(light[2])).toRgb();
}

Lab labSeenAs(const QColor& color, Vision vision)
{
    const Triple xyz = product(ToXyz, lightSeen(color, vision));
    const auto f = [&](std::size_t component) {
        const double share = xyz.at(component) / White.at(component);
        return share > 216.0 / 24389 ? std::cbrt(share) : (24389.0 / 27 * share + 16) / 116;
    };
    return {116 * f(1) - 16, 500 * (f(0) - f(1)), 200 * (f(1) - f(2))};
}

double difference(const Lab& one, const Lab& other)
{
    const double stretch = 1.5 - 0.5 * chromaShare((std::hypot(one.a, one.b) + std::hypot(other.a, other.b)) / 2);
    const double chroma1 = std::hypot(one.a * stretch, one.b);
    const double chroma2 = std::hypot(other.a * stretch, other.b);
    const double hue1 = hueOf(one.a * stretch, one.b);
    const double hue2 = hueOf(other.a * stretch, other.b);

    const bool hasGrey = chroma1 * chroma2 == 0;
    const double hueStep = hasGrey ? 0 : std::fmod(hue2 - hue1 + 540, 360) - 180;
    double meanHue = hasGrey ? hue1 + hue2 : (hue1 + hue2) / 2;
    if (!hasGrey && std::abs(hue1 - hue2) > 180) {
        meanHue += hue1 + hue2 < 360 ? 180 : -180;
    }
    const double meanChroma = (chroma1 + chroma2) / 2;
    const double offMiddle = (one.lightness + other.lightness) / 2 - 50;
    const double square = offMiddle * offMiddle;
    const double t = 1 - 0.17 * cosine(meanHue - 30) + 0.24 * cosine(2 * meanHue) + 0.32 * cosine(3 * meanHue + 6)
        - 0.20 * cosine(4 * meanHue - 63);

    const double lightness = (other.lightness - one.lightness) / (1 + 0.015 * square / std::sqrt(20 + square));
    const double chroma = (chroma2 - chroma1) / (1 + 0.045 * meanChroma);
    const double hue = 2 * std::sqrt(chroma1 * chroma2) * sine(hueStep / 2) / (1 + 0.015 * meanChroma * t);
    const double blueness = (meanHue - 275) / 25;
    const double rotation = -sine(60 * std::exp(-blueness * blueness)) * 2 * chromaShare(meanChroma);
    return std::sqrt(lightness * lightness + chroma * chroma + hue * hue + rotation * chroma * hue);
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

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
