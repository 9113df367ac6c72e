#include <config/UIConfig.h>

#include <items/private/TitleLookup.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr auto StatisticsKey = "Statistics"_L1;
constexpr auto RagonePlotKey = "Ragone Plot"_L1;
constexpr auto ProcessedDataKey = "Processed Data"_L1;

constexpr auto StatisticsMissing = "Missing statistics graphs configuration node"_L1;
constexpr auto RagonePlotMissing = "Missing Ragone Plot graphs configuration node"_L1;
constexpr auto ProcessedDataMissing = "Missing processed data graphs configuration node"_L1;

/// Reads a section whose members are graphs, each under its title, in the order of the titles.
template <typename Graph>
bool readTitledGraphs(const QJsonValue& section, QLatin1StringView missing, QList<Graph>& graphs, QString& error)
{
    if (!section.isObject()) {
        error = missing;
        return false;
    }
    const QJsonObject members = section.toObject();
    for (auto it = members.begin(); it != members.end(); ++it) {
        graphs.emplaceBack().readGraphItem(it.key(), members);
    }
    return true;
}

} // namespace

bool UIConfig::readStatsGraph(const QJsonObject& root, QString& error)
{
    return readTitledGraphs(root.value(StatisticsKey), StatisticsMissing, m_statsGraph, error);
}

bool UIConfig::readRagonePlotGraph(const QJsonObject& root, QString& error)
{
    return readTitledGraphs(root.value(RagonePlotKey), RagonePlotMissing, m_ragonePlotGraph, error);
}

bool UIConfig::readProcessedDataGraph(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(ProcessedDataKey);
    if (!section.isArray()) {
        error = ProcessedDataMissing;
        return false;
    }
    const QJsonArray entries = section.toArray();
    for (const auto& entry : entries) {
        if (!entry.isObject()) {
            error = ProcessedDataMissing;
            return false;
        }
        m_processedDataGraph.emplaceBack().readGraphItem(entry.toObject());
    }
    return true;
}

StatisticsItem UIConfig::getStatGraphFromTitle(const QString& title) const
{
    return firstWithTitle(m_statsGraph, title);
}

RagonePlotItem UIConfig::getRagonePlotGraphFromTitle(const QString& title) const
{
    return firstWithTitle(m_ragonePlotGraph, title);
}

ProcessedDataItem UIConfig::getProcessedDataGraphFromTitle(const QString& title) const
{
    return firstWithTitle(m_processedDataGraph, title);
}
