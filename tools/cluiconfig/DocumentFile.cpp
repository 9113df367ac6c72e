#include "DocumentFile.h"

#include "Output.h"

#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
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
        fail(QString(CannotOpen).arg(path, u"it is a pipe or a device; save what it gives to a file first"_s));
    }
}

} // namespace

void requireReadableFile(const QString& path)
{
    refusePipe(path);
    if (QFileInfo(path).isDir()) {
        fail(QString(CannotOpen).arg(path, u"it is a directory"_s));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(QString(CannotOpen).arg(path, file.errorString()));
    }
}

bool readDocument(const QString& path, uiconfig::Configuration& configuration, QString& error)
{
    refusePipe(path);
    QJsonObject root;
    if (!cl::datastorage::JsonUtils::openJsonDocument(path, error, root)) {
        return false;
    }
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    uiconfig::readConfiguration(root, {catalogue, configuration, refusals});
    return refusals.isEmpty(error);
}

uiconfig::Configuration loadDocument(const QString& path)
{
    uiconfig::Configuration configuration;
    QString error;
    if (!readDocument(path, configuration, error)) {
        fail(error, ExitRefused);
    }
    return configuration;
}

} // namespace cluiconfig
