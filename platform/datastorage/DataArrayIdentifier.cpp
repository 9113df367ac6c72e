#include <datastorage/DataArrayIdentifier.h>

#include <QJsonObject>
#include <QJsonValue>

namespace cl::datastorage {

namespace {
constexpr QLatin1String NameKey("name");
constexpr QLatin1String CategoryKey("category");
} // namespace

bool DataArrayIdentifier::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const QJsonValue name = object.value(NameKey);
    const QJsonValue category = object.value(CategoryKey);
    if (!name.isString() || !category.isString()) {
        return false;
    }
    m_name = name.toString();
    m_category = category.toString();
    return true;
}

bool DataArrayIdentifier::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(NameKey, m_name);
    object.insert(CategoryKey, m_category);
    return true;
}

} // namespace cl::datastorage
