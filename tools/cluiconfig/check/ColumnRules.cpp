#include "Sections.h"
#include "Suggest.h"

#include <batterydata/ClConfigDataArray.h>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

const QString ToolsKey = u"Tools"_s;
const QString SummaryTableKey = u"Summary Table"_s;
const QStringList KindKeys{u"Per step"_s, u"Per cycle"_s, u"Per loop"_s}; // in the order in which they are read
const QString DQdUKey = u"dQ_dU"_s;
const QString TableKey = u"Table"_s;

const QString EmptyColumn = u"the table gets an empty column"_s;

/// The columns \p names of one category.
void checkNames(const Value& names, const QString& category, const Catalogue& catalogue, Findings& findings)
{
    names.forEach([&](const Value& name) {
        if (name.json().isString()) {
            catalogue.checkNameIn(category, findings, name, name.text(), Severity::Warning, EmptyColumn);
        }
    });
}

void checkKind(const Value& kind, const Catalogue& catalogue, Findings& findings)
{
    kind.forEach([&](const Value& columns) {
        const QString category = columns.key();
        if (!columns.isArray()) {
            return;
        }
        if (catalogue.hasCategory(category)) {
            checkNames(columns, category, catalogue, findings);
        } else {
            findings.addAtKey(Rule::UnknownCategory, Severity::Warning, columns, [&] {
                return catalogue.unknownCategoryMessage(category, u"the table gets only empty columns from it"_s);
            });
        }
    });
}

void checkSummaryTable(const Value& table, const Catalogue& catalogue, Findings& findings)
{
    QString missing;
    for (const QString& key : KindKeys) {
        const std::optional<Value> kind = table.member(key);
        if (!kind || !kind->isObject()) {
            missing = missing.isEmpty() ? key : missing;
            continue;
        }
        if (missing.isEmpty()) {
            checkKind(*kind, catalogue, findings);
            continue;
        }
        kind->forEach([&](const Value& columns) { findings.setStep(*kind, columns.key(), Findings::NeverRead); });
        findings.addAtKey(Rule::HiddenKind, Severity::Warning, *kind, [&] {
            return u"The application stops reading the summary tables at %1, which is missing or no object: it ignores "
                   "%2. Add %1, if only as {}."_s.arg(quoted(missing), quoted(key));
        });
    }
}

} // namespace

void checkColumns(const Value& root, const Catalogue& catalogue, Findings& findings)
{
    const std::optional<Value> tools = root.member(ToolsKey);
    const std::optional<Value> table = tools ? tools->member(SummaryTableKey) : std::nullopt;
    if (table && table->isObject()) {
        checkSummaryTable(*table, catalogue, findings);
    }
    const std::optional<Value> dQdU = root.member(DQdUKey);
    const std::optional<Value> columns = dQdU ? dQdU->member(TableKey) : std::nullopt;
    if (columns && columns->isArray()) {
        checkNames(*columns, cl::batterydata::ClConfigDataArray::PotentiostatMeasure(), catalogue, findings);
    }
}

} // namespace cluiconfig::check
