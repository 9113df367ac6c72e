#include "private/Sections.h"

namespace cluiconfig::check {

void checkRagonePlot(const Value& section, const Context& with)
{
    checkCurves(section, with);
}

} // namespace cluiconfig::check
