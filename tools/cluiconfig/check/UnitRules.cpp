#include "RepeatedNames.h"
#include "Sections.h"

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

void checkCompoundUnits(const Value& root, Findings& findings)
{
    const std::optional<Value> section = root.member(u"MSVUnits"_s);
    if (section && section->isArray()) {
        RepeatedNames quantities(u"entry"_s, findings);
        section->forEach([&](const Value& entry) { quantities.add(entry, u"PhysicalParameter"_s); });
    }
}

} // namespace cluiconfig::check
