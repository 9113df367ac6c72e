#pragma once

#include <clconfigui_export.h>

#include <QList>
#include <QString>

class ConfigRepresentation;

/// The representations that the configuration document offers, in file order.
///
/// The records live on the heap and are deleted by deleteAllAndClear() alone: the destructor and the assignments
/// release the list and leave the records. Copies share the records with the original, so only one of them may delete
/// them. Pointers handed out are valid until then.
///
/// Every lookup walks the list from the front, compares exactly and case-sensitively, and returns the first match, null
/// when there is none.
class CLCONFIGUI_EXPORT ConfigRepresentationManager
{
public:
    ConfigRepresentationManager();
    ConfigRepresentationManager(const ConfigRepresentationManager& other);
    ConfigRepresentationManager(ConfigRepresentationManager&& other) noexcept;
    ConfigRepresentationManager& operator=(const ConfigRepresentationManager& other);
    ConfigRepresentationManager& operator=(ConfigRepresentationManager&& other) noexcept;
    ~ConfigRepresentationManager();

    /// Adds \p representation at the end and takes it over; nothing is checked.
    ///
    /// REQUIRES: not null when a lookup is made later.
    void append(ConfigRepresentation* representation);

    /// Deletes every record in list order and empties the list.
    void deleteAllAndClear();

    /// A copy of the list; the records stay the manager's.
    QList<ConfigRepresentation*> getConfigRepresentationList() const;

    /// The representation of exactly these three names. An empty name matches only an empty name.
    ConfigRepresentation* getConfigRepresentationFromAxis(const QString& x, const QString& y1, const QString& y2) const;
    /// The first representation of exactly this name.
    ConfigRepresentation* getConfigRepresentationFromName(const QString& name) const;

    /// The first representation that is marked as default.
    ConfigRepresentation* getDefaultConfigRepresentation() const;

private:
    QList<ConfigRepresentation*> m_representations;
};
