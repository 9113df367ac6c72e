#include "DocumentFile.h"

#include "Output.h"

#include <config/UIConfig.h>
#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr auto CannotOpen = R"(Cannot open "%1": %2)"_L1;

/// Reading a pipe may never end.
void refusePipe(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        fail(QString(CannotOpen)
                 .arg(path, u"it is a pipe or a device; save what it gives to a file first"_s)
                 .toStdString());
    }
}

} // namespace

void requireReadableFile(const QString& path)
{
    refusePipe(path);
    if (QFileInfo(path).isDir()) {
        fail(QString(CannotOpen).arg(path, u"it is a directory"_s).toStdString());
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(QString(CannotOpen).arg(path, file.errorString()).toStdString());
    }
}

void loadDocument(const QString& path, UIConfig& config)
{
    refusePipe(path);
    QString error;
    if (!config.readUIConfiguration(path, error)) {
        fail(error.toStdString(), ExitRefused);
    }
}

QJsonObject openDocument(const QString& path)
{
    QString error;
    QJsonObject root;
    if (!cl::datastorage::JsonUtils::openJsonDocument(path, error, root)) {
        fail(error.toStdString(), ExitRefused);
    }
    return root;
}

} // namespace cluiconfig
