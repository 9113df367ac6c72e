#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>

namespace uiconfig {

bool readDebug(const QJsonValue& section, const Reading& with)
{
    const JsonFields fields(section.toObject());
    with.to.debugFlags = {fields.flag(keys::ImportDialogClIds), fields.flag(keys::ImportedParquetFiles),
                          fields.flag(keys::ZFitInputData)};
    return true;
}

} // namespace uiconfig

bool UIConfig::readDebugFlags(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Debug, root, error);
}
