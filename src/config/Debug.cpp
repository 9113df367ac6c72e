#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>

namespace uiconfig {

bool readDebug(const QJsonObject& section, std::optional<DebugFlags>& flags)
{
    const JsonFields fields(section);
    flags = {fields.flag(keys::ImportDialogClIds), fields.flag(keys::ImportedParquetFiles),
             fields.flag(keys::ZFitInputData)};
    return true;
}

} // namespace uiconfig

bool UIConfig::readDebugFlags(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Debug, root, error);
}
