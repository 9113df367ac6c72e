#pragma once

#include <config/Configuration.h>

#include <QColor>
#include <QList>

#include <optional>

namespace cluiedit {

/// How well \p color stands out from \p ground: 1 for not at all, 21 for black on white.
double contrast(const QColor& color, const QColor& ground);

/// The colour that the document gives to the element \p key; nothing if it has none, or one that is no colour.
std::optional<QColor> defaultColor(const uiconfig::Colors& colors, const QString& key);

/// The colours of \p count curves on \p ground: those of the elements "Curve 01" and so on, and where there is none the
/// palette's in turn, without those that would hardly be seen. A default colour that would hardly be seen is mixed with
/// \p text, the colour of texts on the ground, until it is.
QList<QColor> curveColors(const uiconfig::Colors& colors, qsizetype count, const QColor& ground, const QColor& text);

} // namespace cluiedit
