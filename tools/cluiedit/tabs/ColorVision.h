#pragma once

#include "ColorDifference.h"

#include <QColor>
#include <QString>

#include <array>

/// \file ColorVision.h
/// Colours as people see them, with each of the three kinds of colour blindness.

namespace cluiedit {

enum class Vision { Normal, Protanopia, Deuteranopia, Tritanopia };
inline constexpr std::array Visions{Vision::Normal, Vision::Protanopia, Vision::Deuteranopia, Vision::Tritanopia};

/// "Protanopia".
QString visionName(Vision vision);

/// What \p color looks like with \p vision, by the matrices of Machado, Oliveira and Fernandes (2009) for linear RGB,
/// at full severity. An invalid colour stays invalid.
QColor seenAs(const QColor& color, Vision vision);
/// The same in CIELAB, without rounding to 8 bits in between. REQUIRES: \p color is valid.
Lab labSeenAs(const QColor& color, Vision vision);

/// The contrast of two colours by WCAG 2, from 1 (none) to 21 (black on white).
double contrast(const QColor& one, const QColor& other);

} // namespace cluiedit
