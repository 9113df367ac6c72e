#pragma once

#include <QtGlobal>

namespace cluiedit {

/// \p offset, in bytes, as the text widget's messages take it.
inline unsigned long position(qsizetype offset)
{
    return static_cast<unsigned long>(offset);
}

} // namespace cluiedit
