#include <config/MSVUnitsCombination.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnitOperator;

namespace {

constexpr auto PhysicalParameterKey = "physicalParameter"_L1;
constexpr auto OperatorKey = "operator"_L1;
constexpr auto MultiParametersKey = "multiParametersList"_L1;

} // namespace

MSVUnitsCombination::MSVUnitsCombination() = default;
MSVUnitsCombination::MSVUnitsCombination(const MSVUnitsCombination& other) = default;
MSVUnitsCombination& MSVUnitsCombination::operator=(const MSVUnitsCombination& other) = default;
MSVUnitsCombination::~MSVUnitsCombination() = default;

bool MSVUnitsCombination::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    m_physicalParameter = static_cast<PhysicalParameter>(object.value(PhysicalParameterKey).toInt());
    m_operator = static_cast<UsualUnitOperator>(object.value(OperatorKey).toInt());
    const QJsonArray parameters = object.value(MultiParametersKey).toArray();
    for (const auto& parameter : parameters) {
        m_multiParamsList.append(static_cast<PhysicalParameter>(parameter.toInt()));
    }
    return true;
}

bool MSVUnitsCombination::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(PhysicalParameterKey, static_cast<int>(m_physicalParameter));
    object.insert(OperatorKey, static_cast<int>(m_operator));
    QJsonArray parameters;
    for (const PhysicalParameter parameter : m_multiParamsList) {
        parameters.append(static_cast<int>(parameter));
    }
    object.insert(MultiParametersKey, parameters);
    return true;
}
