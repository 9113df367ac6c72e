#include "Suggest.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

void checkEntry(const Value& entry, Findings& findings)
{
    QLatin1StringView missing;
    for (const QLatin1StringView key : keys::Parameters) {
        const std::optional<Value> parameter = entry.member(key);
        if (parameter && !missing.isEmpty()) {
            findings.warnAtKey(Rule::ParameterGap, *parameter, [&] {
                return u"%1 is missing before %2, which moves up into the gap. Number the parameters without gaps."_s
                    .arg(quoted(missing), quoted(key));
            });
        }
        missing = parameter ? QLatin1StringView() : key;
    }
}

} // namespace

void checkRecipe(const Value& section, const Context& with)
{
    for (const QLatin1StringView command : keys::RecipeCommands) {
        const std::optional<Value> entries = section.member(command);
        if (entries && entries->isArray()) {
            entries->forEach([&](const Value& entry) { checkEntry(entry, with.findings); });
        }
    }
}

} // namespace cluiconfig::check
