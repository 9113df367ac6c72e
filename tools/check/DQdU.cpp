#include "private/Sections.h"

#include <base/DocumentKeys.h>
#include <batterydata/ClConfigDataArray.h>

namespace keys = uiconfig::keys;

namespace cluiconfig::check {

void checkDQdU(const Value& section, const Context& with)
{
    const std::optional<Value> columns = section.member(keys::Table);
    if (columns && columns->isArray()) {
        checkColumns(*columns, cl::batterydata::ClConfigDataArray::PotentiostatMeasure(), with);
    }
    const std::optional<Value> graph = section.member(keys::Graph);
    if (graph && graph->isObject()) {
        checkPlot(*graph, {keys::X, keys::Y1}, {}, with);
    }
}

} // namespace cluiconfig::check
