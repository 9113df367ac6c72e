#include <config/Representation.h>

#include <axes/ConfigRepresentation.h>

Representation::Representation(ConfigRepresentation* config)
    : m_config(std::make_unique<ConfigRepresentation>(*config))
{
}

Representation::Representation(Representation&& other) noexcept = default;
Representation& Representation::operator=(Representation&& other) noexcept = default;
Representation::~Representation() = default;
