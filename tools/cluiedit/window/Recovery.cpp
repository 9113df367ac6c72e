#include "Recovery.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr auto Suffix = ".unsaved"_L1; // a line of JSON, then the text
constexpr auto LockSuffix = ".lock"_L1;
constexpr auto PathKey = "path"_L1;
constexpr auto TimeKey = "time"_L1;

std::optional<LostText> read(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
    if (!head.contains(TimeKey)) {
        return {};
    }
    return LostText{.file = name,
                    .path = head.value(PathKey).toString(),
                    .time = QDateTime::fromString(head.value(TimeKey).toString(), Qt::ISODateWithMs),
                    .text = file.readAll()};
}

} // namespace

Recovery::Recovery(QString directory)
    : m_directory(std::move(directory))
{
}

Recovery::~Recovery()
{
    forget();
}

bool Recovery::keep(const QString& path, const QByteArray& text)
{
    if (!QDir().mkpath(m_directory)) {
        return false;
    }
    if (m_file.isEmpty()) {
        const QString file = m_directory + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces) + Suffix;
        m_lock = std::make_unique<QLockFile>(file + LockSuffix);
        m_lock->setStaleLockTime(0); // as long as the program runs
        if (!m_lock->tryLock(0)) {
            return false;
        }
        m_file = file;
    }
    const QJsonObject head{{PathKey, path}, {TimeKey, QDateTime::currentDateTime().toString(Qt::ISODateWithMs)}};
    QSaveFile file(m_file);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && file.write(QJsonDocument(head).toJson(QJsonDocument::Compact) + '\n') > 0 && file.write(text) == text.size()
        && file.commit();
}

void Recovery::forget()
{
    if (!m_file.isEmpty()) {
        QFile::remove(m_file);
        m_file.clear();
        m_lock.reset();
    }
}

QList<LostText> Recovery::lost() const
{
    QList<LostText> all;
    const QFileInfoList files = QDir(m_directory).entryInfoList({u'*' + Suffix}, QDir::Files);
    for (const QFileInfo& info : files) {
        QLockFile lock(info.filePath() + LockSuffix);
        lock.setStaleLockTime(0);
        if (!lock.tryLock(0)) {
            continue;
        }
        if (auto text = read(info.filePath())) {
            all.append(*std::move(text));
        }
    }
    std::ranges::sort(all, std::ranges::greater(), &LostText::time);
    return all;
}

void Recovery::discard(const LostText& text) const
{
    QFile::remove(text.file);
}

QString Recovery::usualDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + u"/unsaved"_s;
}

} // namespace cluiedit
