#include "Suggest.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

void checkProcessFormula(const Value& section, const Context& with)
{
    const QStringList groups{keys::XFormulas, keys::Y1Formulas, keys::Y2Formulas};
    section.forEach([&](const Value& group) {
        const QString name = group.key();
        if (!groups.contains(name)) {
            with.findings.warnAtKey(Rule::FormulaGroup, group, [&] {
                const Advice advice = didYouMean(name, groups);
                const QString text =
                    u"The application offers the formulas of %1 for the second Y axis, as those of "
                    "every group that is neither %2 nor %3.%4"_s.arg(
                        quoted(name), quoted(keys::XFormulas), quoted(keys::Y1Formulas),
                        advice.text.isEmpty() ? u" Call it %1 if that is meant."_s.arg(quoted(keys::Y2Formulas))
                                              : advice.text);
                return Advice(text, insteadOfKey(advice.instead, section));
            });
        }
    });
}

} // namespace cluiconfig::check
