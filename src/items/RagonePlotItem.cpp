#include <items/RagonePlotItem.h>

#include <axes/private/RecordList.h>
#include <items/private/Curves.h>
#include <items/private/TitleLookup.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto TitleKey = "title"_L1;
constexpr auto GraphItemsKey = "graphItemsList"_L1;

} // namespace

RagonePlotItem::RagonePlotItem() = default;
RagonePlotItem::RagonePlotItem(const RagonePlotItem& other) = default;
RagonePlotItem& RagonePlotItem::operator=(const RagonePlotItem& other) = default;
RagonePlotItem::~RagonePlotItem() = default;

bool RagonePlotItem::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    m_title = object.value(TitleKey).toString();
    m_graphItems = readRecords<RagonePlotChildItem>(object.value(GraphItemsKey).toArray(), version, context);
    return true;
}

bool RagonePlotItem::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    object.insert(TitleKey, m_title);
    object.insert(GraphItemsKey, writeRecords(m_graphItems, version, context));
    return true;
}

const RagonePlotChildItem
RagonePlotItem::getGraphItemFromTitle(const QString& title) const // NOLINT(readability-const-return-type)
{
    return firstWithTitle(m_graphItems, title);
}

QList<QString> RagonePlotItem::getGraphItemsTitleList() const
{
    return curves::titles(m_graphItems);
}

void RagonePlotItem::readGraphItem(const QString& title, const QJsonObject& section)
{
    m_title = title;
    curves::appendFromConfiguration(m_graphItems, section.value(title).toArray());
}
