#include <config/UIConfig.h>

#include <batterydata/ClConfigDataArray.h>
#include <config/private/SharedReaders.h>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;

namespace uiconfig {

namespace {

constexpr auto TableMissing = "Missing dQ/dU table configuration node"_L1;

} // namespace

bool readDQdU(const QJsonValue& section, const Reading& with)
{
    const QJsonObject members = section.toObject();
    const QJsonValue table = members.value(keys::Table);
    if (!table.isArray() && !with.refusals.goOnAfter(TableMissing, jsonPointer(keys::DQdU, keys::Table))) {
        return false;
    }
    appendColumns(table.toArray(), ClConfigDataArray::PotentiostatMeasure(), with.catalogue, with.to.dQdU.columns);
    with.to.dQdU.graph.emplace().readGraphItem(members.value(keys::Graph).toObject());
    return true;
}

} // namespace uiconfig

bool UIConfig::readDQdUColumns(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::DQdU, root, error);
}
