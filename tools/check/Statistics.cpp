#include "private/Sections.h"

namespace cluiconfig::check {

void checkStatistics(const Value& section, const Context& with)
{
    checkCurves(section, with);
}

} // namespace cluiconfig::check
