#include <batterydata/ClConfigDataArray.h>

#include <datastorage/Converter.h>

#include <QJsonObject>
#include <QJsonValue>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace cl::batterydata {

using cl::datastorage::Converter;
using cl::datastorage::DataConfigType;
using cl::datastorage::DataType;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace {

constexpr auto PhysicalParameterKey = "physicalParameter"_L1;
constexpr auto DataTypeKey = "dataType"_L1;
constexpr auto UnitKey = "unit"_L1;
constexpr auto ConfigTypeKey = "configType"_L1;
constexpr auto DescriptionKey = "description"_L1;
constexpr auto MachineNameKey = "machineName"_L1;
constexpr auto RequiredKey = "required"_L1;
constexpr auto FormulaKey = "formula"_L1;
constexpr auto ExportCategoryKey = "exportCategory"_L1;

bool isEnumerator(PhysicalParameter value)
{
    return !Converter::toString(value).isEmpty();
}
bool isEnumerator(DataType value)
{
    return value >= DataType::Double && value <= DataType::Text;
}
bool isEnumerator(DataConfigType value)
{
    return value == DataConfigType::Measured || value == DataConfigType::Computed;
}
bool isEnumerator(ExportCategory value)
{
    return value >= ExportCategory::Never && value <= ExportCategory::Complete;
}

template <typename Enumeration>
bool readEnumeration(const QJsonObject& object, QLatin1StringView key, Enumeration& result)
{
    result = static_cast<Enumeration>(object.value(key).toInt(-1));
    return isEnumerator(result);
}

bool readText(const QJsonObject& object, QLatin1StringView key, QString& result)
{
    const QJsonValue value = object.value(key);
    result = value.toString();
    return value.isString();
}

} // namespace

ClConfigDataArray::ClConfigDataArray() = default;

ClConfigDataArray::ClConfigDataArray(const QString& name, const PhysicalParameter& physicalParameter,
                                     const DataType& dataType, const UsualUnit& unit, DataConfigType configType,
                                     const QString& description, const QString& machineName, const QString& category,
                                     bool required, const QString& formula)
    : ConfigDataArray(name, category)
    , m_physicalParameter(physicalParameter)
    , m_dataType(dataType)
    , m_unit(unit)
    , m_configType(configType)
    , m_description(description)
    , m_machineName(machineName)
    , m_required(required)
    , m_formula(formula)
{
}

ClConfigDataArray::~ClConfigDataArray() = default;

bool ClConfigDataArray::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    ClConfigDataArray array(*this);
    QString unit;
    const QJsonValue required = object.value(RequiredKey);
    const bool isRead = array.ConfigDataArray::read(object, version, context)
        && readEnumeration(object, PhysicalParameterKey, array.m_physicalParameter)
        && readEnumeration(object, DataTypeKey, array.m_dataType)
        && readEnumeration(object, ConfigTypeKey, array.m_configType)
        && readEnumeration(object, ExportCategoryKey, array.m_exportCategory) && readText(object, UnitKey, unit)
        && readText(object, DescriptionKey, array.m_description)
        && readText(object, MachineNameKey, array.m_machineName) && readText(object, FormulaKey, array.m_formula)
        && required.isBool();
    const std::optional<UsualUnit> knownUnit = Converter::getUnitFromString(unit);
    if (!isRead || !knownUnit) {
        return false;
    }
    array.m_unit = *knownUnit;
    array.m_required = required.toBool();
    *this = std::move(array);
    return true;
}

bool ClConfigDataArray::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    object.insert(PhysicalParameterKey, static_cast<int>(m_physicalParameter));
    object.insert(UnitKey, Converter::toString(m_unit));
    object.insert(DataTypeKey, static_cast<int>(m_dataType));
    object.insert(ConfigTypeKey, static_cast<int>(m_configType));
    object.insert(ExportCategoryKey, static_cast<int>(m_exportCategory));
    object.insert(DescriptionKey, m_description);
    object.insert(MachineNameKey, m_machineName);
    object.insert(FormulaKey, m_formula);
    object.insert(RequiredKey, m_required);
    return ConfigDataArray::write(object, version, context);
}

QString ClConfigDataArray::PotentiostatMeasure()
{
    return u"Potentiostat"_s;
}

} // namespace cl::batterydata
