#include <config/UIConfig.h>

#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <config/private/SharedReaders.h>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;

namespace uiconfig {

namespace {

constexpr auto CategoryNotAnArray = "Summary table category is not a Json array"_L1;

/// Reads a kind of summary table: for each category, in the order of their names, its columns.
bool readSummaryTable(const QJsonObject& categories, QLatin1StringView kind, const Catalogue& catalogue,
                      Columns& columns, Refusals& refusals)
{
    for (auto it = categories.begin(); it != categories.end(); ++it) {
        if (it.value().isArray()) {
            appendColumns(it.value().toArray(), it.key(), catalogue, columns);
        } else if (!refusals.goOnAfter(CategoryNotAnArray,
                                       jsonPointer(keys::Tools, keys::SummaryTable, kind, it.key()))) {
            return false;
        }
    }
    return true;
}

} // namespace

void appendColumns(const QJsonArray& names, const QString& category, const Catalogue& catalogue, Columns& columns)
{
    for (const auto& name : names) {
        columns.append(dynamic_cast<ClConfigDataArray*>(catalogue.getConfigDataArray(name.toString(), category)));
    }
}

bool readTools(const QJsonValue& section, const Reading& with)
{
    const QJsonObject table = section.toObject().value(keys::SummaryTable).toObject();
    SummaryTables& tables = with.to.summaryTables;
    using Kind = std::pair<QLatin1StringView, Columns&>;
    const std::array kinds{Kind{keys::PerStep, tables.perStep}, Kind{keys::PerCycle, tables.perCycle},
                           Kind{keys::PerLoop, tables.perLoop}};
    for (const auto& [key, columns] : kinds) {
        const QJsonValue kind = table.value(key);
        if (!kind.isObject()) {
            return true; // a missing kind hides the later ones
        }
        if (!readSummaryTable(kind.toObject(), key, with.catalogue, columns, with.refusals)) {
            return false;
        }
    }
    return true;
}

} // namespace uiconfig

bool UIConfig::readTools(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Tools, root, error);
}

bool UIConfig::readSummaryTableColumns(const QJsonValue& category, QList<ClConfigDataArray*>& columns, QString& error)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    uiconfig::readSummaryTable(category.toObject(), {}, catalogue(), columns, refusals);
    return refusals.isEmpty(error);
}
