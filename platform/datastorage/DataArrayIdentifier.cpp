#include <datastorage/DataArrayIdentifier.h>

#include <QJsonObject>
#include <QJsonValue>

using namespace Qt::StringLiterals;

namespace cl::datastorage {

namespace {
constexpr auto NameKey = "name"_L1;
constexpr auto CategoryKey = "category"_L1;
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
