#include <config/UIConfig.h>

#include <base/TitleLookup.h>
#include <config/private/SharedReaders.h>

namespace uiconfig {

bool readRagonePlot(const QJsonObject& section, QList<RagonePlotItem>& graphs)
{
    appendTitledGraphs(section, graphs);
    return true;
}

} // namespace uiconfig

bool UIConfig::readRagonePlotGraph(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::RagonePlot, root, error);
}

RagonePlotItem UIConfig::getRagonePlotGraphFromTitle(const QString& title) const
{
    return firstWithTitle(m_ragonePlotGraph, title);
}
