#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

void checkProcessedData(const Value& section, const Context& with)
{
    RepeatedNames titles(u"graph of processed data"_s, with.findings);
    section.forEach([&](const Value& graph) {
        titles.add(graph, keys::Title);
        checkPlot(graph, {keys::X, keys::Y1}, {keys::Y2, keys::YProcessed}, with);
    });
}

} // namespace cluiconfig::check
