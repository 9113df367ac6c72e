#pragma once

/// \file ColorDifference.h
/// How far two colours are apart: the difference ΔE00 of CIEDE2000, as Sharma, Wu and Dalal (2005) write it down, with
/// all weights 1.

namespace cluiedit {

/// A colour in CIELAB, with D65 as white.
struct Lab
{
    double lightness;
    double a;
    double b;
};

double difference(const Lab& one, const Lab& other);

/// \name The parts of difference()
/// \{

/// The direction of a hue, as a vector of length 1.
struct Direction
{
    double x;
    double y;
};

/// What two colours differ by, each weighed.
struct ColorSteps
{
    double lightness;
    double chroma;
    double hue;
    Direction meanHue;
    double meanChroma;
};

/// With L, C and H for the steps, the square of the difference is L² + C² + H² + R·C·H, where R, a correction for
/// blues, is from −√3 to 0.
ColorSteps stepsBetween(const Lab& one, const Lab& other);
double differenceBy(const ColorSteps& steps);

double chromaOf(const Lab& color);
/// What differences in lightness about \p mean are divided by.
double lightnessWeight(double mean);

/// \}

} // namespace cluiedit
