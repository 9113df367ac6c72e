#include <config/UIConfig.h>

#include <batterydata/ClConfigDataArray.h>
#include <config/private/SharedReaders.h>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;

namespace uiconfig {

namespace {

constexpr auto TableMissing = "Missing dQ/dU table configuration node"_L1;

} // namespace

bool readDQdU(const QJsonObject& section, const Catalogue& catalogue, DQdU& dQdU, Refusals& refusals)
{
    const QJsonValue table = section.value(keys::Table);
    if (!table.isArray() && !refusals.goOnAfter(TableMissing, jsonPointer(keys::DQdU, keys::Table))) {
        return false;
    }
    appendColumns(table.toArray(), ClConfigDataArray::PotentiostatMeasure(), catalogue, dQdU.columns);
    dQdU.graph.emplace().readGraphItem(section.value(keys::Graph).toObject());
    return true;
}

} // namespace uiconfig

bool UIConfig::readDQdUColumns(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::DQdU, root, error);
}
