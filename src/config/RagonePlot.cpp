#include <config/UIConfig.h>

#include <base/TitleLookup.h>
#include <config/private/SharedReaders.h>

namespace uiconfig {

bool readRagonePlot(const QJsonValue& section, const Reading& with)
{
    appendTitledGraphs(section.toObject(), with.to.ragonePlots);
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
