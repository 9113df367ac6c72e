#include "private/RepeatedNames.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

void checkMSVUnits(const Value& section, const Context& with)
{
    RepeatedNames quantities(u"entry"_s, with.findings);
    section.forEach([&](const Value& entry) { quantities.add(entry, uiconfig::keys::PhysicalParameter); });
}

} // namespace cluiconfig::check
