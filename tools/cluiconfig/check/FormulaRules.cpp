#include "Sections.h"
#include "Suggest.h"

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

void checkFormulas(const Value& root, Findings& findings)
{
    const QStringList groups{u"X Formulas"_s, u"Y1 Formulas"_s, u"Y2 Formulas"_s};
    const std::optional<Value> section = root.member(u"Process Formula"_s);
    if (!section || !section->isObject()) {
        return;
    }
    section->forEach([&](const Value& group) {
        const QString name = group.key();
        if (!groups.contains(name)) {
            findings.addAtKey(Rule::FormulaGroup, Severity::Warning, group, [&] {
                QString advice = didYouMean(name, groups);
                return u"The application offers the formulas of %1 for the second Y axis, as those of every group that "
                       "is neither \"X Formulas\" nor \"Y1 Formulas\".%2"_s.arg(
                           quoted(name), advice.isEmpty() ? u" Call it \"Y2 Formulas\" if that is meant."_s : advice);
            });
        }
    });
}

} // namespace cluiconfig::check
