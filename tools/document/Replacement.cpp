#include "Replacement.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#ifdef _WIN32
#include <io.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

QString lastError()
{
    return QString::fromLocal8Bit(std::strerror(errno)); // NOLINT(concurrency-mt-unsafe): of no thread but this one
}

#ifdef _WIN32

bool keepOwner(const QSaveFile& /*file*/, QString& /*error*/)
{
    return true;
}

bool isOnDisk(int descriptor)
{
    return _commit(descriptor) == 0;
}

#else

bool keepOwner(const QSaveFile& file, QString& error)
{
    struct stat before = {};
    struct stat now = {};
    if (stat(QFile::encodeName(file.fileName()).constData(), &before) != 0) {
        if (errno == ENOENT) {
            return true;
        }
        error = lastError();
        return false;
    }
    const int descriptor = file.handle();
    if (fstat(descriptor, &now) != 0) {
        error = lastError();
        return false;
    }
    if ((before.st_uid != now.st_uid || before.st_gid != now.st_gid)
        && fchown(descriptor, before.st_uid, before.st_gid) != 0) {
        error = u"the new file cannot have its owner and its group (%1:%2): %3"_s.arg(before.st_uid)
                    .arg(before.st_gid)
                    .arg(lastError());
        return false;
    }
    constexpr mode_t AllPermissions = 07777;
    if (fchmod(descriptor, before.st_mode & AllPermissions) != 0) {
        error = lastError();
        return false;
    }
    return true;
}

bool isOnDisk(int descriptor)
{
    int result = 0;
    do {
        result = fsync(descriptor);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL; // which a file system says that cannot wait for anything
}

#endif

} // namespace

bool prepareReplacement(QSaveFile& file, QString& error)
{
    if (!keepOwner(file, error)) {
        return false;
    }
    if (!isOnDisk(file.handle())) {
        error = lastError();
        return false;
    }
    return true;
}

bool commitReplacement(QSaveFile& file, QString& error)
{
    errno = 0;
    const bool isCommitted = file.commit();
    if (!isCommitted) {
        // Of a file that cannot get a name, Qt says "Unknown error".
        const bool isKnown = file.error() != QFileDevice::UnspecifiedError || errno == 0;
        error = isKnown ? file.errorString() : lastError();
    }
    return isCommitted;
}

} // namespace cluiconfig
