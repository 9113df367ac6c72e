#pragma once

#include <config/Configuration.h>

#include <QColor>
#include <QList>

namespace cluiedit {

/// The colours of \p count curves on \p ground: those of the elements "Curve 01" and so on, and where there is none the
/// palette's in turn, without those that would hardly be seen. A default colour that would hardly be seen is mixed with
/// \p text, the colour of texts on the ground, until it is.
QList<QColor> curveColors(const uiconfig::Colors& colors, qsizetype count, const QColor& ground, const QColor& text);

} // namespace cluiedit
