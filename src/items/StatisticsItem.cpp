#include <items/StatisticsItem.h>

#include <base/TitleLookup.h>
#include <items/private/Curves.h>

StatisticsItem::StatisticsItem() = default;
StatisticsItem::StatisticsItem(const StatisticsItem& other) = default;
StatisticsItem& StatisticsItem::operator=(const StatisticsItem& other) = default;
StatisticsItem::~StatisticsItem() = default;

bool StatisticsItem::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    return curves::readGraph(m_title, m_graphItems, object, version, context);
}

bool StatisticsItem::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    return curves::writeGraph(m_title, m_graphItems, object, version, context);
}

const StatisticsChildItem
StatisticsItem::getGraphItemFromTitle(const QString& title) const // NOLINT(readability-const-return-type)
{
    return firstWithTitle(m_graphItems, title);
}

QList<QString> StatisticsItem::getGraphItemsTitleList() const
{
    return curves::titles(m_graphItems);
}

void StatisticsItem::readGraphItem(const QString& title, const QJsonObject& section)
{
    m_title = title;
    curves::appendFromConfiguration(m_graphItems, section.value(title).toArray());
}
