#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>

namespace uiconfig {

bool readFilters(const QJsonValue& section, const Reading& with)
{
    // What is missing or has another type reads as empty on the way down and adds nothing.
    const QJsonValue tasks = section.toObject().value(keys::Tasks);
    with.to.skippedTasks.append(JsonFields(tasks.toObject()).texts(keys::Skipped));
    return true;
}

} // namespace uiconfig

bool UIConfig::readFilters(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Filters, root, error);
}
