#include "Output.h"

#include <QtGlobal>

#include <cerrno>
#include <cstring>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <csignal>
#include <unistd.h>
#endif

namespace cluiconfig {

bool isTerminal(std::FILE* file)
{
#ifdef _WIN32
    return _isatty(_fileno(file)) != 0;
#else
    return isatty(fileno(file)) != 0;
#endif
}

ColorDepth colorDepth()
{
    if (!isTerminal(stdout) || !qEnvironmentVariableIsEmpty("NO_COLOR") || qgetenv("TERM") == "dumb") {
        return ColorDepth::None;
    }
    const QByteArray depth = qgetenv("COLORTERM");
    return depth == "truecolor" || depth == "24bit" ? ColorDepth::TrueColor : ColorDepth::Palette;
}

void useBytes()
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#else
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

namespace {

/// Whether writing failed because nobody reads any more, which the C library of Windows calls an invalid argument.
bool isReaderGone(int error)
{
#ifdef _WIN32
    return error == EPIPE || error == EINVAL;
#else
    return error == EPIPE;
#endif
}

} // namespace

void print(const QByteArray& bytes)
{
    useBytes();
    const auto size = static_cast<std::size_t>(bytes.size());
    const bool written = std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    if (!written && !isReaderGone(errno)) {
        fail(std::string("standard output: ") + std::strerror(errno)); // NOLINT(concurrency-mt-unsafe): one thread
    }
}

void fail(const std::string& message, int exitCode)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    throw CLI::RuntimeError(exitCode);
}

} // namespace cluiconfig
