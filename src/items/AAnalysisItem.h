#pragma once

#include <archive/ArchiveContext.h>
#include <clconfigui_export.h>

#include <QJsonObject>

/// The abstract base of the records that the analysis tools keep: each writes itself into a JSON object of a saved
/// project and reads itself back.
///
/// What every record of the library keeps to: `version` is the format version of the saved project and `context` the
/// archive's own business; a record looks at neither and passes both on to the records inside it. A key that is missing
/// or has the wrong JSON type reads as an empty text, false or an empty list; every field is overwritten, none is left
/// as it was. Writing overwrites the record's own keys and leaves all others in place.
class CLCONFIGUI_EXPORT AAnalysisItem
{
public:
    AAnalysisItem();
    AAnalysisItem(const AAnalysisItem& other);
    AAnalysisItem& operator=(const AAnalysisItem& other);
    virtual ~AAnalysisItem();

    /// Fills the record from its archive form. True on success; the library's own records always succeed.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) = 0;

    /// Stores the record's archive form in \p object. True on success; the library's own records always succeed.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const = 0;
};
