#include <axes/AxesCombination.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FirstKey = "axesCombinationFirst"_L1;
constexpr auto SecondKey = "axesCombinationSecond"_L1;

} // namespace

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

bool AxesCombination::operator==(const AxesCombination& other) const
{
    return m_configX.getCategory() == other.m_configX.getCategory() && m_configX.getName() == other.m_configX.getName()
        && m_configY.getCategory() == other.m_configY.getCategory() && m_configY.getName() == other.m_configY.getName();
}
