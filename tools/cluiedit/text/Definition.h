#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace cluiedit {

/// Where that is defined which stands at the byte \p offset of \p text: the colour of the palette for a name of one,
/// the graph, curve or summary table for its title in a recipe, the first axes combination with a data array for its
/// name. At the definition itself: the next place that mentions it. In bytes; −1 when there is none, or \p text is no
/// JSON.
qsizetype definitionOf(const QByteArray& text, qsizetype offset);

} // namespace cluiedit
