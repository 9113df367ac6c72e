// Replays the inputs that are kept, where the compiler has no libFuzzer: usage as with it, FOLDER..., and options are
// passed over.

#include "Fuzz.h"

#include <QDirIterator>
#include <QFile>
#include <QString>

#include <cstdio>
#include <cstdlib>

namespace {

/// Gives the target every file below \p folder; how many there are.
int replay(const QString& folder)
{
    int count = 0;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext(); ++count) {
        QFile file(files.next());
        fuzz::require(file.open(QIODevice::ReadOnly), "the inputs can be read");
        const QByteArray input = file.readAll();
        std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                               static_cast<std::size_t>(input.size()));
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        count += argument.startsWith(u'-') ? 0 : replay(argument);
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
