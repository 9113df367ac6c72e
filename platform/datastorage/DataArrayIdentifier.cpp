#include <datastorage/DataArrayIdentifier.h>

#include <QJsonObject>
#include <QJsonValue>

namespace cl::datastorage {

namespace {
constexpr QLatin1String nameKey("name");
constexpr QLatin1String categoryKey("category");
} // namespace

bool DataArrayIdentifier::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const QJsonValue name = object.value(nameKey);
    const QJsonValue category = object.value(categoryKey);
    if (!name.isString() || !category.isString()) {
        return false;
    }
    m_name = name.toString();
    m_category = category.toString();
    return true;
}

bool DataArrayIdentifier::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(nameKey, m_name);
    object.insert(categoryKey, m_category);
    return true;
}

} // namespace cl::datastorage
