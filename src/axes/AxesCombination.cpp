#include <axes/AxesCombination.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FirstKey = "axesCombinationFirst"_L1;
constexpr auto SecondKey = "axesCombinationSecond"_L1;

} // namespace

AxesCombination::AxesCombination() = default;

AxesCombination::AxesCombination(const cl::datastorage::DataArrayIdentifier& configX,
                                 const cl::datastorage::DataArrayIdentifier& configY, QCPAxis::ScaleType defaultScaleX,
                                 QCPAxis::ScaleType defaultScaleY, bool orthonormal)
    : m_configX(configX)
    , m_configY(configY)
    , m_defaultScaleX(defaultScaleX)
    , m_defaultScaleY(defaultScaleY)
    , m_orthonormal(orthonormal)
{
}

AxesCombination::AxesCombination(const AxesCombination& other) = default;
AxesCombination& AxesCombination::operator=(const AxesCombination& other) = default;
AxesCombination::~AxesCombination() = default;

bool AxesCombination::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    return m_configX.read(object.value(FirstKey).toObject(), version, context)
        && m_configY.read(object.value(SecondKey).toObject(), version, context);
}

bool AxesCombination::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    QJsonObject x;
    if (!m_configX.write(x, version, context)) {
        return false;
    }
    object.insert(FirstKey, x);

    QJsonObject y;
    if (!m_configY.write(y, version, context)) {
        return false;
    }
    object.insert(SecondKey, y);
    return true;
}

DataStreamCombination AxesCombination::getDataStreamCombination() const
{
    return {m_configX.getCategory(), m_configX.getName(), m_configY.getCategory(), m_configY.getName()};
}

bool AxesCombination::isValid() const
{
    return !m_configX.getCategory().isEmpty() && !m_configX.getName().isEmpty() && !m_configY.getCategory().isEmpty()
        && !m_configY.getName().isEmpty();
}

bool AxesCombination::operator==(const AxesCombination& other) const
{
    return m_configX.getCategory() == other.m_configX.getCategory() && m_configX.getName() == other.m_configX.getName()
        && m_configY.getCategory() == other.m_configY.getCategory() && m_configY.getName() == other.m_configY.getName();
}
