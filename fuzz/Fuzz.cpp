#include "Fuzz.h"

#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace fuzz {

const uiconfig::Catalogue& catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

QString load(const QString& path, uiconfig::Configuration& configuration, uiconfig::Refusals& refusals)
{
    QString error;
    if (QJsonObject root; cl::datastorage::JsonUtils::openJsonDocument(path, error, root)) {
        uiconfig::readConfiguration(root, {catalogue(), configuration, refusals});
        refusals.isEmpty(error);
    }
    return error;
}

QString fileWith(const QByteArray& content)
{
    static const QTemporaryDir directory;
    QFile file(directory.filePath(u"input"_s));
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "the temporary directory can be written");
    return file.fileName();
}

} // namespace fuzz
