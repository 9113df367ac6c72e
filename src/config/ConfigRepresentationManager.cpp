#include <config/ConfigRepresentationManager.h>

#include <axes/ConfigRepresentation.h>

#include <algorithm>
#include <utility>

namespace {

template <typename Predicate>
ConfigRepresentation* firstOf(const QList<ConfigRepresentation*>& representations, Predicate predicate)
{
    const auto found = std::find_if(representations.cbegin(), representations.cend(), predicate);
    return found == representations.cend() ? nullptr : *found;
}

} // namespace

ConfigRepresentationManager::ConfigRepresentationManager() = default;
ConfigRepresentationManager::ConfigRepresentationManager(const ConfigRepresentationManager& other) = default;

ConfigRepresentationManager::ConfigRepresentationManager(ConfigRepresentationManager&& other) noexcept
    : m_representations(std::exchange(other.m_representations, {}))
{
}

ConfigRepresentationManager& ConfigRepresentationManager::operator=(const ConfigRepresentationManager& other) = default;

ConfigRepresentationManager& ConfigRepresentationManager::operator=(ConfigRepresentationManager&& other) noexcept
{
    m_representations = std::exchange(other.m_representations, {});
    return *this;
}

ConfigRepresentationManager::~ConfigRepresentationManager() = default;

void ConfigRepresentationManager::append(ConfigRepresentation* representation)
{
    m_representations.append(representation);
}

void ConfigRepresentationManager::deleteAllAndClear()
{
    qDeleteAll(m_representations);
    m_representations.clear();
}

QList<ConfigRepresentation*> ConfigRepresentationManager::getConfigRepresentationList() const
{
    return m_representations;
}

ConfigRepresentation* ConfigRepresentationManager::getConfigRepresentationFromAxis(const QString& x, const QString& y1,
                                                                                   const QString& y2) const
{
    return firstOf(m_representations, [&](const ConfigRepresentation* representation) {
        return representation->x() == x && representation->y1() == y1 && representation->y2() == y2;
    });
}

ConfigRepresentation* ConfigRepresentationManager::getConfigRepresentationFromName(const QString& name) const
{
    return firstOf(m_representations,
                   [&](const ConfigRepresentation* representation) { return representation->name() == name; });
}

ConfigRepresentation* ConfigRepresentationManager::getDefaultConfigRepresentation() const
{
    return firstOf(m_representations,
                   [](const ConfigRepresentation* representation) { return representation->isDefault(); });
}
