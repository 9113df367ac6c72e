#include "ColorVision.h"

#include <QCoreApplication>

#include <algorithm>

#include <cmath>

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

double relativeLuminance(const QColor& color)
{
    return product(ToXyz, lightOf(color))[1];
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

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace cluiedit
