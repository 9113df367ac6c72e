#include <items/DQdUAnalysisItem.h>

#include <axes/private/CatalogueLookup.h>
#include <axes/private/JsonFields.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto TitleKey = "title"_L1;
constexpr auto CategoryKey = "category"_L1;
constexpr auto StreamXKey = "streamX"_L1;
constexpr auto StreamY1Key = "streamY1"_L1;

constexpr auto EntryTitleKey = "Title"_L1;
constexpr auto EntryCategoryKey = "Category"_L1;
constexpr auto EntryXKey = "X"_L1;
constexpr auto EntryY1Key = "Y1"_L1;

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
    m_title = fields.text(EntryTitleKey);
    m_category = fields.text(EntryCategoryKey);
    m_streamX = fields.text(EntryXKey);
    m_streamY1 = fields.text(EntryY1Key);
}
