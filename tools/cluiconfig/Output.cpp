#include "Output.h"

#include <check/Text.h>

#include <QStringList>

#include <cerrno>
#include <cstring>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <csignal>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

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

void requireWritten(bool isWritten)
{
    if (!isWritten && !isReaderGone(errno)) {
        fail(u"standard output: "_s + lastError());
    }
}

} // namespace

void print(const QByteArray& bytes)
{
    useBytes();
    if (std::ferror(stdout) == 0) { // otherwise its reader has gone
        const auto size = static_cast<std::size_t>(bytes.size());
        requireWritten(std::fwrite(bytes.constData(), 1, size, stdout) == size);
    }
}

void printJson(const QByteArray& json)
{
    if (!isTerminal(stdout)) {
        print(json);
        return;
    }
    QStringList lines = QString::fromUtf8(json).split(u'\n');
    for (QString& line : lines) {
        line = check::printable(line);
    }
    print(lines.join(u'\n').toUtf8());
}

void printRest()
{
    if (std::ferror(stdout) == 0) { // otherwise that has been said
        requireWritten(std::fflush(stdout) == 0);
    }
}

QString lastError()
{
    return QString::fromLocal8Bit(std::strerror(errno)); // NOLINT(concurrency-mt-unsafe): one thread
}

void fail(const QString& message, int exitCode)
{
    std::fprintf(stderr, "%s\n", check::printable(message).toUtf8().constData());
    throw CLI::RuntimeError(exitCode);
}

} // namespace cluiconfig
