#include "DocumentFile.h"

#include "Output.h"

#include <config/UIConfig.h>
#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace cluiconfig {

void requireReadableFile(const QString& path)
{
    const QFileInfo info(path);
    const QString sentence = u"Cannot open \"%1\": %2"_s;
    if (info.isDir()) {
        fail(sentence.arg(path, u"it is a directory"_s).toStdString());
    }
    if (info.exists() && !info.isFile()) {
        fail(sentence.arg(path, u"it is a pipe or a device; save what it gives to a file first"_s).toStdString());
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(sentence.arg(path, file.errorString()).toStdString());
    }
}

QJsonObject loadDocument(const QString& path, UIConfig& config)
{
    requireReadableFile(path);
    QString error;
    QJsonObject root;
    if (!config.readUIConfiguration(path, error) || !cl::datastorage::JsonUtils::openJsonDocument(path, error, root)) {
        fail(error.toStdString(), ExitRefused);
    }
    return root;
}

} // namespace cluiconfig
