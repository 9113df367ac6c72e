#pragma once

#include <cldatastorage_export.h>

#include <QString>

class QJsonObject;

namespace cl::archive {
class ArchiveContext;
}

namespace cl::datastorage {

/// Identifies a data array by its name and the category that the name belongs to. A plain value.
class CLDATASTORAGE_EXPORT DataArrayIdentifier
{
public:
    /// Name and category are empty.
    DataArrayIdentifier() = default;
    /// Takes both as they are.
    DataArrayIdentifier(const QString& name, const QString& category)
        : m_name(name)
        , m_category(category)
    {
    }
    DataArrayIdentifier(const DataArrayIdentifier& other) = default;
    DataArrayIdentifier(DataArrayIdentifier&& other) noexcept = default;
    DataArrayIdentifier& operator=(const DataArrayIdentifier& other) = default;
    DataArrayIdentifier& operator=(DataArrayIdentifier&& other) noexcept = default;
    virtual ~DataArrayIdentifier() = default;

    /// Takes name and category from the strings "name" and "category" of \p object; true on success. If one of them is
    /// missing or not a string, the result is false and the identifier keeps what it held.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);
    /// Stores "name" and "category" in \p object; always true.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;

    /// \{
    /// The name of the array, and the category that the name belongs to.
    const QString& getName() const { return m_name; }
    const QString& getCategory() const { return m_category; }
    void setName(const QString& name) { m_name = name; }
    void setCategory(const QString& category) { m_category = category; }
    /// \}

private:
    QString m_name;
    QString m_category;
};

} // namespace cl::datastorage
