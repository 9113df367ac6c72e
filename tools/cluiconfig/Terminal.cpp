#include "Terminal.h"

#include <QByteArray>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace cluiconfig {

bool showsColors(std::FILE* stream)
{
#ifdef Q_OS_WIN
    const bool isTerminal = _isatty(_fileno(stream)) != 0;
#else
    const bool isTerminal = isatty(fileno(stream)) != 0;
#endif
    return isTerminal && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

} // namespace cluiconfig
