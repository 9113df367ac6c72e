#include "Suggest.h"
#include "private/Sections.h"

#include <base/DocumentKeys.h>

#include <QJsonObject>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiconfig::check {

namespace {

void checkKind(const Value& kind, const Context& with)
{
    const QJsonObject categories = kind.json().toObject();
    kind.forEach([&](const Value& columns) {
        const auto read = categories.constFind(columns.key());
        const QString category =
            read == categories.constEnd() ? columns.key() : read.key(); // a byte-order mark is gone
        if (!columns.isArray()) {
            return;
        }
        if (with.catalogue.hasCategory(category)) {
            checkColumns(columns, category, with);
        } else {
            with.findings.warnAtKey(Rule::UnknownCategory, columns, [&] {
                Advice advice =
                    with.catalogue.unknownCategory(category, u"the table gets only empty columns from it"_s);
                advice.instead = insteadOfKey(advice.instead, kind);
                return advice;
            });
        }
    });
}

} // namespace

void checkColumns(const Value& names, const QString& category, const Context& with)
{
    names.forEach([&](const Value& name) {
        if (name.json().isString() && !with.catalogue.has(name.text(), category)) {
            with.findings.warn(Rule::UnknownArray, name, [&] {
                return with.catalogue.unknownNameIn(category, name.text(), u"the table gets an empty column"_s);
            });
        }
    });
}

void checkTools(const Value& section, const Context& with)
{
    const std::optional<Value> table = section.member(keys::SummaryTable);
    if (!table || !table->isObject()) {
        return;
    }
    QLatin1StringView missing;
    for (const QLatin1StringView key : keys::SummaryTableKinds) {
        const std::optional<Value> kind = table->member(key);
        if (!kind || !kind->isObject()) {
            missing = missing.isEmpty() ? key : missing;
        } else if (missing.isEmpty()) {
            checkKind(*kind, with);
        } else {
            with.findings.warnAtKey(Rule::HiddenKind, *kind, [&] {
                return u"The application stops reading the summary tables at %1, which is missing or no object: it "
                       "ignores %2. Add %1, if only as {}."_s.arg(quoted(missing), quoted(key));
            });
        }
    }
}

} // namespace cluiconfig::check
