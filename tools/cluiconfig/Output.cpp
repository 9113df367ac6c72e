#include "Output.h"

#include <check/Text.h>

#include <QStringList>

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <csignal>
#include <sys/ioctl.h>
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

std::optional<qsizetype> terminalWidth()
{
    constexpr qsizetype UsualWidth = 80;
    if (!isTerminal(stdout)) {
        return std::nullopt;
    }
    if (const int wanted = qEnvironmentVariableIntValue("COLUMNS"); wanted > 0) {
        return wanted;
    }
#ifdef _WIN32
    CONSOLE_SCREEN_BUFFER_INFO screen;
    const bool isKnown = GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &screen) != 0;
    const qsizetype width = isKnown ? screen.srWindow.Right - screen.srWindow.Left + 1 : 0;
#else
    winsize screen{};
    const bool isKnown = ioctl(fileno(stdout), TIOCGWINSZ, &screen) == 0;
    const qsizetype width = isKnown ? screen.ws_col : 0;
#endif
    return width > 0 ? width : UsualWidth;
}

void prepareStreams()
{
    static std::array<char, 1U << 16> buffer; // stays until the last byte is written
    if (!isTerminal(stdout)) {
        std::setvbuf(stdout, buffer.data(), _IOFBF, buffer.size());
    }
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#else
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // Opened the wrong way round, they are as good as closed.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0) {
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
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
    if (std::ferror(stdout) == 0) { // otherwise its reader has gone
        const auto size = static_cast<std::size_t>(bytes.size());
        requireWritten(std::fwrite(bytes.constData(), 1, size, stdout) == size);
    }
}

void printJson(const QByteArray& json)
{
    const QByteArray text = check::withHalvesAsText(json);
    if (!isTerminal(stdout)) {
        print(text);
        return;
    }
    QStringList lines = QString::fromUtf8(text).split(u'\n');
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
    return QString::fromLocal8Bit(std::strerror(errno)); // NOLINT(concurrency-mt-unsafe): one thread at a time
}

void fail(const QString& message, int exitCode)
{
    std::fprintf(stderr, "%s\n", check::printable(message).toUtf8().constData());
    throw CLI::RuntimeError(exitCode);
}

} // namespace cluiconfig
