#include <items/ProcessedDataItem.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <datastorage/JsonUtils.h>
#include <items/private/CatalogueLookup.h>

using namespace Qt::StringLiterals;
using cl::datastorage::JsonUtils;
namespace keys = uiconfig::keys;

namespace {

constexpr auto TitleKey = "title"_L1;
constexpr auto CategoryKey = "category"_L1;
constexpr auto StreamXKey = "streamX"_L1;
constexpr auto StreamY1Key = "streamY1"_L1;
constexpr auto StreamY2Key = "streamY2"_L1;
constexpr auto ProcessedKey = "processedYAxis"_L1;

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
    m_title = fields.text(keys::Title);
    m_category = fields.text(keys::Category);
    m_streamX = fields.text(keys::X);
    m_streamY1 = fields.text(keys::Y1);
    m_streamY2 = fields.text(keys::Y2);
    m_processedStreamsY = fields.texts(keys::YProcessed);
}
