#include <batterydata/ClConfigDataArrayManager.h>

#include <batterydata/private/CatalogueReader.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QStringView>

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace cl::batterydata {

using cl::datastorage::ConfigDataArray;

namespace {

constexpr auto DataArraysKey = "dataArrays"_L1;

// Keys share the texts of the arrays. A lookup compares views, so that it neither copies nor allocates.
struct Identity
{
    QString name;
    QString category;
};

struct IdentityView
{
    QStringView name;
    QStringView category;
};

struct IdentityHash
{
    using is_transparent = void; // NOLINT(readability-identifier-naming): the standard library looks for it
    std::size_t operator()(const IdentityView& key) const { return qHash(key.category, qHash(key.name)); }
    std::size_t operator()(const Identity& key) const { return (*this)(IdentityView{key.name, key.category}); }
};

struct IdentityEqual
{
    using is_transparent = void; // NOLINT(readability-identifier-naming): the standard library looks for it
    bool operator()(const IdentityView& a, const Identity& b) const
    {
        return a.name == b.name && a.category == b.category;
    }
    bool operator()(const Identity& a, const IdentityView& b) const { return (*this)(b, a); }
    bool operator()(const Identity& a, const Identity& b) const { return (*this)(IdentityView{a.name, a.category}, b); }
};

} // namespace

struct ClConfigDataArrayManager::Content
{
    ClConfigDataArray* append(std::unique_ptr<ClConfigDataArray> array);

    std::vector<std::unique_ptr<ClConfigDataArray>> arrays;
    QList<ClConfigDataArray*> all;
    QStringList categories;
    std::unordered_map<Identity, ClConfigDataArray*, IdentityHash, IdentityEqual> byIdentity;
    QHash<QString, QList<ConfigDataArray*>> byName;
    QSet<QString> seenCategories;
};

ClConfigDataArray* ClConfigDataArrayManager::Content::append(std::unique_ptr<ClConfigDataArray> array)
{
    ClConfigDataArray* const added = array.get();
    const auto [earlier, isNew] = byIdentity.try_emplace({added->getName(), added->getCategory()}, added);
    if (!isNew) {
        return earlier->second;
    }
    arrays.push_back(std::move(array));
    all.append(added);
    byName[added->getName()].append(added);
    if (!seenCategories.contains(added->getCategory())) {
        seenCategories.insert(added->getCategory());
        categories.append(added->getCategory());
    }
    return added;
}

ClConfigDataArrayManager::ClConfigDataArrayManager()
    : m_content(std::make_unique<Content>())
{
}

ClConfigDataArrayManager::~ClConfigDataArrayManager() = default;

bool ClConfigDataArrayManager::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    auto content = std::make_unique<Content>();
    const QJsonArray dataArrays = object.value(DataArraysKey).toArray();
    for (const auto value : dataArrays) {
        auto array = std::make_unique<ClConfigDataArray>();
        if (!array->read(value.toObject(), version, context)) {
            return false;
        }
        content->append(std::move(array));
    }
    m_content = std::move(content);
    return true;
}

bool ClConfigDataArrayManager::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    QJsonArray dataArrays;
    for (const ClConfigDataArray* array : m_content->all) {
        QJsonObject child;
        array->write(child, version, context);
        dataArrays.append(child);
    }
    object.insert(DataArraysKey, dataArrays);
    return true;
}

ConfigDataArray* ClConfigDataArrayManager::getConfigDataArray(const QString& name, const QString& category) const
{
    const auto found = m_content->byIdentity.find(IdentityView{name, category});
    return found == m_content->byIdentity.end() ? nullptr : found->second;
}

QList<ConfigDataArray*> ClConfigDataArrayManager::getConfigDataArrays(const QString& name) const
{
    return m_content->byName.value(name);
}

const QList<ClConfigDataArray*>& ClConfigDataArrayManager::getAll() const
{
    return m_content->all;
}

const QStringList& ClConfigDataArrayManager::getCategories() const
{
    return m_content->categories;
}

ClConfigDataArray* ClConfigDataArrayManager::append(std::unique_ptr<ClConfigDataArray> array)
{
    return m_content->append(std::move(array));
}

void ClConfigDataArrayManager::clear()
{
    *m_content = Content();
}

bool ClConfigDataArrayManager::readCatalogue(const QString& path, QString& error)
{
    std::vector<std::unique_ptr<ClConfigDataArray>> arrays;
    if (!readCatalogueFile(path, error, arrays)) {
        return false;
    }
    auto content = std::make_unique<Content>();
    for (std::unique_ptr<ClConfigDataArray>& array : arrays) {
        content->append(std::move(array));
    }
    m_content = std::move(content);
    return true;
}

} // namespace cl::batterydata
