#include <items/RagonePlotItem.h>

#include <base/TitleLookup.h>
#include <items/private/Curves.h>

RagonePlotItem::RagonePlotItem() = default;
RagonePlotItem::RagonePlotItem(const RagonePlotItem& other) = default;
RagonePlotItem& RagonePlotItem::operator=(const RagonePlotItem& other) = default;
RagonePlotItem::~RagonePlotItem() = default;

bool RagonePlotItem::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    return curves::readGraph(m_title, m_graphItems, object, version, context);
}

bool RagonePlotItem::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    return curves::writeGraph(m_title, m_graphItems, object, version, context);
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
