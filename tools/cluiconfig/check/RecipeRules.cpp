#include "Sections.h"
#include "Suggest.h"

#include <config/UIConfig.h>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

const QString SectionKey = u"Recipe"_s;
const QStringList ParameterKeys{u"Param1"_s, u"Param2"_s, u"Param3"_s, u"Param4"_s, u"Param5"_s};

void checkEntry(const Value& entry, Findings& findings)
{
    QString missing;
    for (const QString& key : ParameterKeys) {
        const std::optional<Value> parameter = entry.member(key);
        if (parameter && !missing.isEmpty()) {
            findings.addAtKey(Rule::ParameterGap, Severity::Warning, *parameter, [&] {
                return u"%1 is missing before %2, which moves up into the gap. Number the parameters without gaps."_s
                    .arg(quoted(missing), quoted(key));
            });
        }
        missing = parameter ? QString() : key;
    }
}

} // namespace

void checkRecipe(const Value& root, Findings& findings)
{
    const std::optional<Value> section = root.member(SectionKey);
    if (!section) {
        return;
    }
    for (const QString& command : {UIConfig::graphCommand(), UIConfig::toolSummaryCommand(),
                                   UIConfig::toolStatisticsCommand(), UIConfig::toolProcessedDataCommand()}) {
        const std::optional<Value> entries = section->member(command);
        if (entries && entries->isArray()) {
            entries->forEach([&](const Value& entry) { checkEntry(entry, findings); });
        }
    }
}

} // namespace cluiconfig::check
