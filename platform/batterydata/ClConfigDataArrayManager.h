#pragma once

#include <batterydata/ClConfigDataArray.h>
#include <clbatterydata_export.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class QJsonObject;

namespace cl::batterydata {

/// The catalogue: every data array that the application knows, each under its name and category.
///
/// The manager owns its arrays; the pointers that it hands out are valid until clear(), read(), readCatalogue() or its
/// destruction. Arrays stand in the order in which they were appended, and every list keeps that order. Lookups go
/// through an index, so their cost does not depend on the number of arrays, and they do not allocate.
///
/// REQUIRES: name and category of an array that was appended do not change any more; the index would still find it
/// under the old ones. Its default axes and export category may change.
///
/// Const operations may run in several threads at once, as long as nothing changes the manager meanwhile.
class CLBATTERYDATA_EXPORT ClConfigDataArrayManager
{
public:
    /// An empty catalogue.
    ClConfigDataArrayManager();
    ClConfigDataArrayManager(const ClConfigDataArrayManager&) = delete;
    ClConfigDataArrayManager& operator=(const ClConfigDataArrayManager&) = delete;
    virtual ~ClConfigDataArrayManager();

    /// Replaces the arrays by those of the array "dataArrays" of \p object; true on success. If one of them cannot be
    /// read, the result is false and the catalogue stays as it was.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);
    /// Stores the arrays under "dataArrays" in \p object; always true.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;
    /// The array of that name in that category, both compared exactly and case-sensitively; null if there is none.
    virtual cl::datastorage::ConfigDataArray* getConfigDataArray(const QString& name, const QString& category) const;

    /// The arrays of that name in all categories, in catalogue order; empty if there is none. The result shares
    /// a ready-made list.
    QList<cl::datastorage::ConfigDataArray*> getConfigDataArrays(const QString& name) const;

    /// All arrays in catalogue order.
    const QList<ClConfigDataArray*>& getAll() const;
    /// The categories in the order of their first arrays, each once.
    const QStringList& getCategories() const;

    /// Takes \p array over at the end of the catalogue and returns it. If there already is an array of this name in
    /// this category, the earlier one stays, \p array is deleted, and the earlier one is returned.
    /// REQUIRES: \p array is not null.
    ClConfigDataArray* append(std::unique_ptr<ClConfigDataArray> array);

    /// Deletes all arrays.
    void clear();

    /// Replaces the arrays by those of the catalogue file \p path (docs/catalogue.md has its form); true on success.
    /// Of arrays that repeat a name in one category the first counts. On failure the catalogue stays as it was, and
    /// \p error names the path and what is wrong: line and column of what is no JSON, the JSON pointer of a bad entry.
    bool readCatalogue(const QString& path, QString& error);

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};

} // namespace cl::batterydata
