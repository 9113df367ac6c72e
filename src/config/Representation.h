#pragma once

#include <clconfigui_export.h>

#include <memory>

class ConfigRepresentation;

/// A handle that owns a private copy of one representation, for callers outside the configuration. It can be moved but
/// not copied, and keeps no link to the record that it was made from.
class CLCONFIGUI_EXPORT Representation
{
public:
    /// Copies the record.
    ///
    /// REQUIRES: \p config is not null.
    explicit Representation(ConfigRepresentation* config);
    Representation(Representation&& other) noexcept;
    Representation& operator=(Representation&& other) noexcept;
    Representation(const Representation&) = delete;
    Representation& operator=(const Representation&) = delete;
    ~Representation();

    /// The handle's own copy, never the record it was made from; null after the handle was moved from. Valid as long as
    /// the handle holds it.
    ConfigRepresentation* getConfig() const { return m_config.get(); }

private:
    std::unique_ptr<ConfigRepresentation> m_config;
};
