#pragma once

#include <clconfigui_export.h>
#include <datastorage/Units.h>

#include <QList>

class MSVUnitsCombination;

/// The compound units that the configuration document describes, in file order.
///
/// The records live on the heap and are deleted by deleteAllAndClear() alone: the destructor and the assignment release
/// the list and leave the records. Copies share the records with the original, so only one of them may delete them.
/// Pointers handed out are valid until then.
class CLCONFIGUI_EXPORT MSVUnitsCombinationManager
{
public:
    MSVUnitsCombinationManager();
    MSVUnitsCombinationManager(const MSVUnitsCombinationManager& other);
    MSVUnitsCombinationManager& operator=(const MSVUnitsCombinationManager& other);
    virtual ~MSVUnitsCombinationManager();

    /// Adds \p combination at the end and takes it over; nothing is checked.
    ///
    /// REQUIRES: not null when a lookup is made later.
    void append(MSVUnitsCombination* combination);

    /// Deletes every record in list order and empties the list.
    void deleteAllAndClear();

    /// The list itself; the records stay the manager's. Not const: the interface is meant that way.
    // NOLINTNEXTLINE(readability-make-member-function-const)
    const QList<MSVUnitsCombination*>& getMSVUnitsCombinationsList() { return m_combinations; }

    /// The first record of \p parameter, null when there is none.
    const MSVUnitsCombination*
    getMSVUnitsCombinationsFromParam(const cl::datastorage::PhysicalParameter& parameter) const;

private:
    QList<MSVUnitsCombination*> m_combinations;
};
