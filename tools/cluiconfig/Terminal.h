#pragma once

#include <cstdio>

namespace cluiconfig {

/// Whether \p stream is a terminal that shows colours and whose user wants them: the variable NO_COLOR is unset or
/// empty, and TERM is not "dumb".
bool showsColors(std::FILE* stream);

} // namespace cluiconfig
