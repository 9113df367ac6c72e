#pragma once

#include "ColorVision.h"

#include <QColor>
#include <QList>

namespace cluiedit {

/// Two colours that differ by less than this look alike, as far as a palette is concerned. About 1 can just be told
/// apart when large patches touch; thin lines and small markers that stand apart need several times that. All colours
/// of the shipped palette are at least this far apart, with each kind of vision.
inline constexpr double LeastDifference = 6;

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
