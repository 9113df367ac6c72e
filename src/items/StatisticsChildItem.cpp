#include <items/StatisticsChildItem.h>

#include <base/JsonFields.h>
#include <items/private/CatalogueLookup.h>
#include <items/private/Curves.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto EnvelopeKey = "isStatisticsEnvelope"_L1;
constexpr auto ErrorBarsKey = "isStatisticsErrorBars"_L1;

} // namespace

StatisticsChildItem::StatisticsChildItem() = default;
StatisticsChildItem::StatisticsChildItem(const StatisticsChildItem& other) = default;
StatisticsChildItem& StatisticsChildItem::operator=(const StatisticsChildItem& other) = default;
StatisticsChildItem::~StatisticsChildItem() = default;

bool StatisticsChildItem::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const JsonFields fields(object);
    curves::readTexts(*this, fields, curves::ArchiveKeys);
    m_isStatisticsEnvelope = fields.flag(EnvelopeKey);
    m_isStatisticsErrorBars = fields.flag(ErrorBarsKey);
    return true;
}

bool StatisticsChildItem::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    curves::writeTexts(*this, object);
    object.insert(EnvelopeKey, m_isStatisticsEnvelope);
    object.insert(ErrorBarsKey, m_isStatisticsErrorBars);
    return true;
}

AxesCombination StatisticsChildItem::getAxesCombination() const
{
    return linearCombinationFromCatalogue(m_category, m_streamX, m_streamY);
}
