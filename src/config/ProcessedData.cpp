#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/TitleLookup.h>
#include <config/Configuration.h>

using namespace Qt::StringLiterals;

namespace uiconfig {

namespace {

constexpr auto GraphNotAnObject = "Missing processed data graphs configuration node"_L1; // as of the whole section

} // namespace

bool readProcessedData(const QJsonValue& section, const Reading& with)
{
    const QJsonArray entries = section.toArray();
    qsizetype index = 0;
    for (const auto& entry : entries) {
        if (entry.isObject()) {
            with.to.processedData.emplaceBack().readGraphItem(entry.toObject());
        } else if (!with.refusals.goOnAfter(GraphNotAnObject, jsonPointer(keys::ProcessedData, index))) {
            return false;
        }
        ++index;
    }
    return true;
}

} // namespace uiconfig

bool UIConfig::readProcessedDataGraph(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::ProcessedData, root, error);
}

ProcessedDataItem UIConfig::getProcessedDataGraphFromTitle(const QString& title) const
{
    return firstWithTitle(m_processedDataGraph, title);
}
