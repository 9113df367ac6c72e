#include <data/ShippedFile.h>

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

// The shipped palette, as people with and without colour blindness see it.

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

// From linear RGB to linear RGB, at full severity (Machado, Oliveira and Fernandes 2009).
constexpr Matrix Normal = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix Protanopia = {{
    {0.152286, 1.052583, -0.204868},
    {0.114503, 0.786281, 0.099216},
    {-0.003882, -0.048116, 1.051998},
}};
constexpr Matrix Deuteranopia = {{
    {0.367322, 0.860646, -0.227968},
    {0.280085, 0.672501, 0.047413},
    {-0.011820, 0.042940, 0.968881},
}};
constexpr Matrix Tritanopia = {{
    {1.255528, -0.076749, -0.178779},
    {-0.078411, 0.930809, 0.147602},
    {0.004733, 0.691367, 0.303900},
}};

Triple multiply(const Matrix& matrix, const Triple& vector)
{
    Triple result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            result.at(row) += matrix.at(row).at(column) * vector.at(column);
        }
    }
    return result;
}

double linear(double component)
{
    const double share = component / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

Triple toLab(const Triple& linearRgb)
{
    constexpr Matrix ToXyz = {{
        {0.4124564, 0.3575761, 0.1804375},
        {0.2126729, 0.7151522, 0.0721750},
        {0.0193339, 0.1191920, 0.9503041},
    }};
    const auto f = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const Triple xyz = multiply(ToXyz, linearRgb);
    const double x = f(xyz[0] / 0.95047);
    const double y = f(xyz[1]);
    const double z = f(xyz[2] / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

Triple seen(const Matrix& vision, const Triple& rgb)
{
    Triple light = multiply(vision, {linear(rgb[0]), linear(rgb[1]), linear(rgb[2])});
    for (double& component : light) {
        component = std::clamp(component, 0.0, 1.0);
    }
    return toLab(light);
}

// CIEDE2000
double difference(const Triple& a, const Triple& b)
{
    constexpr double Degree = std::numbers::pi / 180;
    const auto sin = [](double angle) { return std::sin(angle * Degree); };
    const auto cos = [](double angle) { return std::cos(angle * Degree); };
    const auto chromaWeight = [](double chroma) {
        const double seventh = std::pow(chroma, 7);
        return std::sqrt(seventh / (seventh + std::pow(25, 7)));
    };
    const double g = 0.5 * (1 - chromaWeight((std::hypot(a[1], a[2]) + std::hypot(b[1], b[2])) / 2));
    const double c1 = std::hypot(a[1] * (1 + g), a[2]);
    const double c2 = std::hypot(b[1] * (1 + g), b[2]);
    const auto hue = [](double y, double x) { return std::fmod(std::atan2(y, x) / Degree + 360, 360); };
    const double h1 = hue(a[2], a[1] * (1 + g));
    const double h2 = hue(b[2], b[1] * (1 + g));

    const bool isGrey = c1 * c2 == 0;
    const double hueStep = isGrey ? 0 : std::fmod(h2 - h1 + 540, 360) - 180;
    double meanHue = isGrey ? h1 + h2 : (h1 + h2) / 2;
    if (!isGrey && std::abs(h1 - h2) > 180) {
        meanHue += h1 + h2 < 360 ? 180 : -180;
    }
    const double meanLightness = (a[0] + b[0]) / 2;
    const double meanChroma = (c1 + c2) / 2;
    const double t = 1 - 0.17 * cos(meanHue - 30) + 0.24 * cos(2 * meanHue) + 0.32 * cos(3 * meanHue + 6)
        - 0.20 * cos(4 * meanHue - 63);
    const double square = (meanLightness - 50) * (meanLightness - 50);
    const double lightness = (b[0] - a[0]) / (1 + 0.015 * square / std::sqrt(20 + square));
    const double chroma = (c2 - c1) / (1 + 0.045 * meanChroma);
    const double hueDifference = 2 * std::sqrt(c1 * c2) * sin(hueStep / 2) / (1 + 0.015 * meanChroma * t);
    const double turn = 30 * std::exp(-std::pow((meanHue - 275) / 25, 2));
    const double rotation = -sin(2 * turn) * 2 * chromaWeight(meanChroma);
    return std::sqrt(lightness * lightness + chroma * chroma + hueDifference * hueDifference
                     + rotation * chroma * hueDifference);
}

struct Colour
{
    QString name;
    Triple rgb;
};

std::vector<Colour> readPalette()
{
    const QJsonObject root = shippedObject(QStringLiteral("UIConfig.json"));
    std::vector<Colour> palette;
    const QJsonArray colors = root[u"Colors"][u"Custom colors"].toArray();
    for (const auto value : colors) {
        const QJsonArray rgb = value[u"RGB"].toArray();
        palette.push_back(
            {value[u"name"].toString(), {rgb.at(0).toDouble(-1), rgb.at(1).toDouble(-1), rgb.at(2).toDouble(-1)}});
    }
    return palette;
}

double leastDifference(const std::vector<Colour>& palette, const Matrix& vision)
{
    double least = 100;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        for (std::size_t j = i + 1; j < palette.size(); ++j) {
            least = std::min(least, difference(seen(vision, palette[i].rgb), seen(vision, palette[j].rgb)));
        }
    }
    return least;
}

} // namespace

// Pairs 1, 10, 17 and 25 of the data published with the formula (Sharma, Wu and Dalal 2005).
TEST(Palette, DifferencesAreMeasuredAsPublished)
{
    EXPECT_NEAR(difference({50, 2.6772, -79.7751}, {50, 0, -82.7485}), 2.0425, 5e-5);
    EXPECT_NEAR(difference({50, 2.49, -0.001}, {50, -2.49, 0.0011}), 7.2195, 5e-5);
    EXPECT_NEAR(difference({50, 2.5, 0}, {73, 25, -18}), 27.1492, 5e-5);
    EXPECT_NEAR(difference({60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}), 1.2644, 5e-5);
}

TEST(Palette, HasTwentyColours)
{
    EXPECT_EQ(readPalette().size(), 20U);
}

TEST(Palette, NoTwoColoursLookAlikeWithOrWithoutColourBlindness)
{
    const std::vector<Colour> palette = readPalette();
    EXPECT_GT(leastDifference(palette, Normal), 9);
    EXPECT_GT(leastDifference(palette, Protanopia), 6);
    EXPECT_GT(leastDifference(palette, Deuteranopia), 6);
    EXPECT_GT(leastDifference(palette, Tritanopia), 6);
}

TEST(Palette, NoColourIsLostOnAWhiteBackground)
{
    for (const Colour& colour : readPalette()) {
        for (const Matrix& vision : {Normal, Protanopia, Deuteranopia, Tritanopia}) {
            EXPECT_GT(difference(seen(vision, colour.rgb), seen(vision, {255, 255, 255})), 15)
                << qPrintable(colour.name);
        }
    }
}
