#pragma once

#include <cldatastorage_export.h>
#include <datastorage/DataArrayIdentifier.h>

namespace cl::datastorage {

/// A data array that the application knows beforehand, with the axes on which it appears when the user chose nothing.
///
/// The default axes are the state of the running program and no part of the archive form.
class CLDATASTORAGE_EXPORT ConfigDataArray : public DataArrayIdentifier
{
public:
    /// On no axis by default.
    ConfigDataArray();
    /// On no axis by default.
    ConfigDataArray(const QString& name, const QString& category);
    ConfigDataArray(const ConfigDataArray& other) = default;
    ConfigDataArray(ConfigDataArray&& other) noexcept = default;
    ConfigDataArray& operator=(const ConfigDataArray& other) = default;
    ConfigDataArray& operator=(ConfigDataArray&& other) noexcept = default;
    ~ConfigDataArray() override;

    /// \{
    /// Whether the array appears on the axis when the user chose nothing.
    bool isDefaultX() const { return m_defaultX; }
    bool isDefaultY1() const { return m_defaultY1; }
    bool isDefaultY2() const { return m_defaultY2; }
    void setDefaultX(bool isDefault) { m_defaultX = isDefault; }
    void setDefaultY1(bool isDefault) { m_defaultY1 = isDefault; }
    void setDefaultY2(bool isDefault) { m_defaultY2 = isDefault; }
    /// \}

private:
    bool m_defaultX = false;
    bool m_defaultY1 = false;
    bool m_defaultY2 = false;
};

} // namespace cl::datastorage
