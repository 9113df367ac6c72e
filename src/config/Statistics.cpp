#include <config/UIConfig.h>

#include <base/TitleLookup.h>
#include <config/private/SharedReaders.h>

namespace uiconfig {

bool readStatistics(const QJsonValue& section, const Reading& with)
{
    appendTitledGraphs(section.toObject(), with.to.statistics);
    return true;
}

} // namespace uiconfig

bool UIConfig::readStatsGraph(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Statistics, root, error);
}

StatisticsItem UIConfig::getStatGraphFromTitle(const QString& title) const
{
    return firstWithTitle(m_statsGraph, title);
}
