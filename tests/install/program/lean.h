#pragma once

#include <CLConfigUI/axes/AxesCombination.h>

/// The scale that the X axis of a combination starts with, as a source with fewer includes than others sees it.
QCPAxis::ScaleType scaleOf(AxesCombination combination);
