#pragma once

#include <batterydata/ExportCategory.h>
#include <clbatterydata_export.h>
#include <datastorage/ConfigDataArray.h>
#include <datastorage/DataType.h>
#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

namespace cl::batterydata {

/// A data array of the catalogue: what is measured or computed, in which unit, and how it is exported. A plain value.
class CLBATTERYDATA_EXPORT ClConfigDataArray : public cl::datastorage::ConfigDataArray
{
public:
    /// No name, no category, no quantity.
    ClConfigDataArray();

    /// An array of the name \p name in the category \p category, both taken as they are.
    /// \param name what people call it; unique in the category
    /// \param physicalParameter the quantity; None for counters, identifiers and texts
    /// \param dataType how a value is stored
    /// \param unit the unit of the values
    /// \param configType whether the values are measured or computed
    /// \param description one sentence for people
    /// \param machineName the name in exchanged files, such as "voltage_volt"
    /// \param category what the array belongs to, such as PotentiostatMeasure()
    /// \param required whether every record of the category holds the array
    /// \param formula how the values follow from other arrays; empty for measured ones
    /// The export category is ExportCategory::Complete until it is set.
    ClConfigDataArray(const QString& name, const cl::datastorage::PhysicalParameter& physicalParameter,
                      const cl::datastorage::DataType& dataType, const cl::datastorage::UsualUnit& unit,
                      cl::datastorage::DataConfigType configType, const QString& description,
                      const QString& machineName, const QString& category, bool required, const QString& formula);
    ClConfigDataArray(const ClConfigDataArray& other) = default;
    ClConfigDataArray(ClConfigDataArray&& other) noexcept = default;
    ClConfigDataArray& operator=(const ClConfigDataArray& other) = default;
    ClConfigDataArray& operator=(ClConfigDataArray&& other) noexcept = default;
    ~ClConfigDataArray() override;

    /// Takes the whole description from \p object; true on success. If a key is missing, of a wrong type or holds
    /// a value that is none, the result is false and the array keeps what it held.
    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    /// Stores the whole description in \p object; always true.
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// As the constructor was told, or as it was read.
    const cl::datastorage::PhysicalParameter& getPhysicalParameter() const { return m_physicalParameter; }
    cl::datastorage::DataType getDataType() const { return m_dataType; }
    cl::datastorage::UsualUnit getUsualUnit() const { return m_unit; }
    cl::datastorage::DataConfigType getDataConfigType() const { return m_configType; }
    const QString& getDescription() const { return m_description; }
    const QString& getMachineName() const { return m_machineName; }
    bool isRequired() const { return m_required; }
    const QString& getFormula() const { return m_formula; }
    /// \}

    /// \{
    /// When the array goes into an export.
    ExportCategory getExportCategory() const { return m_exportCategory; }
    void setExportCategory(ExportCategory exportCategory) { m_exportCategory = exportCategory; }
    /// \}

    /// The category of what a potentiostat measures: every array of a recorded data row.
    // NOLINTNEXTLINE(readability-identifier-naming): the application calls it so
    static QString PotentiostatMeasure();

private:
    cl::datastorage::PhysicalParameter m_physicalParameter = cl::datastorage::PhysicalParameter::None;
    cl::datastorage::DataType m_dataType = cl::datastorage::DataType::Double;
    cl::datastorage::UsualUnit m_unit;
    cl::datastorage::DataConfigType m_configType = cl::datastorage::DataConfigType::Measured;
    QString m_description;
    QString m_machineName;
    bool m_required = false;
    QString m_formula;
    ExportCategory m_exportCategory = ExportCategory::Complete;
};

} // namespace cl::batterydata
