#pragma once

#include <QColor>
#include <QList>
#include <QString>

#include <array>

/// \file ColorVision.h
/// Colours as people see them: with each of the three kinds of colour blindness, and how far two of them are apart.

namespace cluiedit {

enum class Vision { Normal, Protanopia, Deuteranopia, Tritanopia };
inline constexpr std::array Visions{Vision::Normal, Vision::Protanopia, Vision::Deuteranopia, Vision::Tritanopia};

/// "Protanopia".
QString visionName(Vision vision);

/// A colour in CIELAB, with D65 as white.
struct Lab
{
    double lightness;
    double a;
    double b;
};

/// What \p color looks like with \p vision, by the matrices of Machado, Oliveira and Fernandes (2009) for linear RGB,
/// at full severity. An invalid colour stays invalid.
QColor seenAs(const QColor& color, Vision vision);
/// The same in CIELAB, without rounding to 8 bits in between. REQUIRES: \p color is valid.
Lab labSeenAs(const QColor& color, Vision vision);

/// The difference ΔE00 of two colours by CIEDE2000, as Sharma, Wu and Dalal (2005) write it down, with all weights 1.
double difference(const Lab& one, const Lab& other);

/// Two colours that differ by less than this look alike, as far as a palette is concerned. About 1 can just be told
/// apart when large patches touch; thin lines and small markers that stand apart need several times that. All colours
/// of the shipped palette are at least this far apart, with each kind of vision.
inline constexpr double LeastDifference = 6;

/// The contrast of two colours by WCAG 2, from 1 (none) to 21 (black on white).
double contrast(const QColor& one, const QColor& other);

/// Two colours of a palette, by their places, that look alike.
struct LookAlike
{
    qsizetype first;
    qsizetype second; ///< Behind the first.
    Vision vision;
    double difference;
};

/// All of \p palette that look alike, by the kinds of vision, the closest first. Invalid colours are passed over.
QList<LookAlike> lookAlikes(const QList<QColor>& palette);

} // namespace cluiedit
