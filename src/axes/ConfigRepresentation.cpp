#include <axes/ConfigRepresentation.h>

#include <utility>

ConfigRepresentation::ConfigRepresentation(QString name, QString x, QString y1, QString y2, QString category,
                                           bool isDefault)
    : m_name(std::move(name))
    , m_x(std::move(x))
    , m_y1(std::move(y1))
    , m_y2(std::move(y2))
    , m_category(std::move(category))
    , m_isDefault(isDefault)
{
}

ConfigRepresentation::ConfigRepresentation(const ConfigRepresentation& other) = default;
ConfigRepresentation::ConfigRepresentation(ConfigRepresentation&& other) noexcept = default;
ConfigRepresentation& ConfigRepresentation::operator=(const ConfigRepresentation& other) = default;
ConfigRepresentation& ConfigRepresentation::operator=(ConfigRepresentation&& other) noexcept = default;
ConfigRepresentation::~ConfigRepresentation() = default;
