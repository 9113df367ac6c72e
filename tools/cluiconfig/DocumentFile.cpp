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

[[noreturn]] void failToOpen(const InputFile& file, const QString& reason)
{
    fail(u"Cannot open \"%1\": %2"_s.arg(file.name(), reason));
}

/// Reading a pipe may never end.
void refusePipe(const InputFile& file)
{
    const QFileInfo info(file.path());
    if (info.exists() && !info.isFile() && !info.isDir()) {
        failToOpen(file,
                   u"it is a pipe or a device; write \"-\" for standard input, or save what it gives to a file"_s);
    }
}

} // namespace

void requireReadableFile(const InputFile& file)
{
    refusePipe(file);
    if (QFileInfo(file.path()).isDir()) {
        failToOpen(file, u"it is a directory"_s);
    }
    QFile opened(file.path());
    if (!opened.open(QIODevice::ReadOnly)) {
        failToOpen(file, opened.errorString());
    }
}

bool readDocument(const InputFile& file, uiconfig::Configuration& configuration, QString& error,
                  bool takesAxesCombinations)
{
    refusePipe(file);
    QJsonObject root;
    if (!cl::datastorage::JsonUtils::openJsonDocument(file.path(), error, root)) {
        error = file.named(error);
        return false;
    }
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    uiconfig::readConfiguration(root, {catalogue, configuration, refusals, takesAxesCombinations});
    return refusals.isEmpty(error);
}

uiconfig::Configuration loadDocument(const std::string& argument, bool takesAxesCombinations)
{
    uiconfig::Configuration configuration;
    QString error;
    if (!readDocument(InputFile(argument), configuration, error, takesAxesCombinations)) {
        fail(error, ExitRefused);
    }
    return configuration;
}

} // namespace cluiconfig
