#include <items/DQdUAnalysisItem.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <items/private/CatalogueLookup.h>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace {

constexpr auto TitleKey = "title"_L1;
constexpr auto CategoryKey = "category"_L1;
constexpr auto StreamXKey = "streamX"_L1;
constexpr auto StreamY1Key = "streamY1"_L1;

} // namespace

DQdUAnalysisItem::DQdUAnalysisItem() = default;
DQdUAnalysisItem::DQdUAnalysisItem(const DQdUAnalysisItem& other) = default;
DQdUAnalysisItem& DQdUAnalysisItem::operator=(const DQdUAnalysisItem& other) = default;
DQdUAnalysisItem::~DQdUAnalysisItem() = default;

bool DQdUAnalysisItem::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const JsonFields fields(object);
    m_title = fields.text(TitleKey);
    m_category = fields.text(CategoryKey);
    m_streamX = fields.text(StreamXKey);
    m_streamY1 = fields.text(StreamY1Key);
    return true;
}

bool DQdUAnalysisItem::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(TitleKey, m_title);
    object.insert(CategoryKey, m_category);
    object.insert(StreamXKey, m_streamX);
    object.insert(StreamY1Key, m_streamY1);
    return true;
}

AxesCombination DQdUAnalysisItem::getAxesCombination() const
{
    return linearCombinationFromCatalogue(m_category, m_streamX, m_streamY1);
}

void DQdUAnalysisItem::readGraphItem(const QJsonObject& entry)
{
    const JsonFields fields(entry);
    m_title = fields.text(keys::Title);
    m_category = fields.text(keys::Category);
    m_streamX = fields.text(keys::X);
    m_streamY1 = fields.text(keys::Y1);
}
