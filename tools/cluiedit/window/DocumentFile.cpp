#include "DocumentFile.h"

#include <document/Replacement.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

/// Whether \p path is that of a regular file, or of none yet.
bool mayBeFile(const QString& path, QString& error)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        error = DocumentFile::tr("“%1” is a directory. Choose a file in it.").arg(path);
        return false;
    }
    if (info.exists() && !info.isFile()) {
        error = DocumentFile::tr("“%1” is no regular file.").arg(path);
        return false;
    }
    return true;
}

/// The content of the file \p path.
std::optional<QByteArray> contentOf(const QString& path, QString& error)
{
    if (!mayBeFile(path, error)) {
        return {};
    }
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        error = DocumentFile::tr("“%1” cannot be read: %2").arg(path, file.errorString());
        return {};
    }
    return bytes;
}

/// The line, counted from 1, of the first byte that is not UTF-8; nothing if all of it is.
std::optional<qsizetype> lineThatIsNoUtf8(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const auto isUtf8 = [&](QByteArrayView part) {
        [[maybe_unused]] const QString text = decoder(part);
        return !decoder.hasError();
    };
    if (isUtf8(bytes)) {
        return {};
    }
    qsizetype line = 1;
    qsizetype begin = 0;
    for (qsizetype end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n', begin)) {
        decoder.resetState();
        if (!isUtf8(QByteArrayView(bytes).sliced(begin, end - begin))) {
            break;
        }
        begin = end + 1;
        ++line;
    }
    return line;
}

} // namespace

DocumentFile::DocumentFile(QObject* parent)
    : QObject(parent)
{
    constexpr int SettlingTime = 150; // ms
    m_settling.setSingleShot(true);
    m_settling.setInterval(SettlingTime);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settling, qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settling, qOverload<>(&QTimer::start));
    connect(&m_settling, &QTimer::timeout, this, &DocumentFile::look);
}

QString DocumentFile::name() const
{
    return m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).fileName();
}

std::optional<QByteArray> DocumentFile::open(const QString& path, QString& error)
{
    std::optional<QByteArray> bytes = contentOf(path, error);
    if (!bytes) {
        return {};
    }
    if (bytes->contains('\0')) {
        error = tr("“%1” is no text: it holds the byte 0.").arg(path);
        return {};
    }
    if (const auto line = lineThatIsNoUtf8(*bytes)) {
        error = tr("“%1” is no text in UTF-8: look at line %2. Convert the file first.").arg(path).arg(*line);
        return {};
    }
    m_path = QFileInfo(path).absoluteFilePath();
    m_known = *bytes;
    m_announced = m_known;
    watch();
    return bytes;
}

void DocumentFile::close()
{
    m_path.clear();
    m_known.clear();
    m_announced.clear();
    watch();
}

bool DocumentFile::save(const QString& path, const QByteArray& bytes, QString& error)
{
    // A device would be replaced by a file.
    if (!mayBeFile(path, error)) {
        return false;
    }
    // Unbuffered: otherwise commit() would not notice that the rest in a buffer has no place on the disk.
    QSaveFile file(path);
    QString reason;
    bool isSaved = false;
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size()) {
        isSaved = cluiconfig::prepareReplacement(file, reason) && cluiconfig::commitReplacement(file, reason);
    } else {
        reason = file.errorString();
    }
    if (!isSaved) {
        error = tr("“%1” cannot be written and stays as it is: %2").arg(path, reason);
        return false;
    }
    m_path = QFileInfo(path).absoluteFilePath();
    m_known = bytes;
    m_announced = bytes;
    watch();
    return true;
}

std::optional<QByteArray> DocumentFile::changeByOthers() const
{
    QString error;
    std::optional<QByteArray> bytes = m_path.isEmpty() ? std::nullopt : contentOf(m_path, error);
    if (bytes && *bytes == m_known) {
        bytes.reset();
    }
    return bytes;
}

/// Watches the file, and its directory as well: programs that replace a file take the watched one away.
void DocumentFile::watch()
{
    QStringList wanted;
    if (!m_path.isEmpty()) {
        wanted << m_path << QFileInfo(m_path).absolutePath();
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString& path : watched) {
        if (!wanted.contains(path)) {
            m_watcher.removePath(path);
        }
    }
    for (const QString& path : wanted) {
        if (!watched.contains(path) && QFileInfo::exists(path)) {
            m_watcher.addPath(path);
        }
    }
}

void DocumentFile::look()
{
    watch();
    const std::optional<QByteArray> change = changeByOthers();
    if (!change) {
        m_announced = m_known;
    } else if (*change != m_announced) {
        m_announced = *change;
        emit changedByOthers();
    }
}

} // namespace cluiedit
