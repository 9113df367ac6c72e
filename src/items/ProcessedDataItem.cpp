#include <items/ProcessedDataItem.h>

#include <axes/private/CatalogueLookup.h>
#include <axes/private/JsonFields.h>
#include <datastorage/JsonUtils.h>

using namespace Qt::StringLiterals;
using cl::datastorage::JsonUtils;

namespace {

constexpr auto TitleKey = "title"_L1;
constexpr auto CategoryKey = "category"_L1;
constexpr auto StreamXKey = "streamX"_L1;
constexpr auto StreamY1Key = "streamY1"_L1;
constexpr auto StreamY2Key = "streamY2"_L1;
constexpr auto ProcessedKey = "processedYAxis"_L1;

constexpr auto EntryTitleKey = "Title"_L1;
constexpr auto EntryCategoryKey = "Category"_L1;
constexpr auto EntryXKey = "X"_L1;
constexpr auto EntryY1Key = "Y1"_L1;
constexpr auto EntryY2Key = "Y2"_L1;
constexpr auto EntryProcessedKey = "Y_processed"_L1;

} // namespace

ProcessedDataItem::ProcessedDataItem() = default;
ProcessedDataItem::ProcessedDataItem(const ProcessedDataItem& other) = default;
ProcessedDataItem& ProcessedDataItem::operator=(const ProcessedDataItem& other) = default;
ProcessedDataItem::~ProcessedDataItem() = default;

bool ProcessedDataItem::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const JsonFields fields(object);
    m_title = fields.text(TitleKey);
    m_category = fields.text(CategoryKey);
    m_streamX = fields.text(StreamXKey);
    m_streamY1 = fields.text(StreamY1Key);
    m_streamY2 = fields.text(StreamY2Key);
    m_processedStreamsY = JsonUtils::QStringListFromJsonArray(object.value(ProcessedKey).toArray());
    return true;
}

bool ProcessedDataItem::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(ProcessedKey, JsonUtils::QStringListToJsonArray(m_processedStreamsY));
    object.insert(TitleKey, m_title);
    object.insert(CategoryKey, m_category);
    object.insert(StreamXKey, m_streamX);
    object.insert(StreamY1Key, m_streamY1);
    object.insert(StreamY2Key, m_streamY2);
    return true;
}

AxesCombination ProcessedDataItem::getAxesCombination() const
{
    return linearCombinationFromCatalogue(m_category, m_streamX, m_streamY1);
}

void ProcessedDataItem::readGraphItem(const QJsonObject& entry)
{
    const JsonFields fields(entry);
    m_title = fields.text(EntryTitleKey);
    m_category = fields.text(EntryCategoryKey);
    m_streamX = fields.text(EntryXKey);
    m_streamY1 = fields.text(EntryY1Key);
    m_streamY2 = fields.text(EntryY2Key);
    m_processedStreamsY = fields.texts(EntryProcessedKey);
}
