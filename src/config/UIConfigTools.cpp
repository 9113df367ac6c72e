#include <config/UIConfig.h>

#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <QJsonArray>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cl::batterydata::RawDataCollection;

namespace {

constexpr auto ToolsKey = "Tools"_L1;
constexpr auto SummaryTableKey = "Summary Table"_L1;
constexpr auto PerStepKey = "Per step"_L1;
constexpr auto PerCycleKey = "Per cycle"_L1;
constexpr auto PerLoopKey = "Per loop"_L1;

constexpr auto DQdUKey = "dQ_dU"_L1;
constexpr auto TableKey = "Table"_L1;
constexpr auto GraphKey = "Graph"_L1;

constexpr auto CategoryNotAnArray = "Summary table category is not a Json array"_L1;
constexpr auto DQdUMissing = "Missing dQ/dU node"_L1;
constexpr auto DQdUTableMissing = "Missing dQ/dU table configuration node"_L1;

/// Appends the arrays that \p names names in one category, null for those that the catalogue does not know.
void appendColumns(const QJsonArray& names, const QString& category, QList<ClConfigDataArray*>& columns)
{
    const ClConfigDataArrayManager& catalogue =
        lumo::tools::Singleton<RawDataCollection>::instance().getDataConfiguration();
    for (const auto& name : names) {
        columns.append(dynamic_cast<ClConfigDataArray*>(catalogue.getConfigDataArray(name.toString(), category)));
    }
}

} // namespace

QString UIConfig::graphCommand()
{
    return u"GraphCommand"_s;
}

QString UIConfig::toolSummaryCommand()
{
    return u"ToolSummaryCommand"_s;
}

QString UIConfig::toolStatisticsCommand()
{
    return u"ToolStatisticsCommand"_s;
}

QString UIConfig::toolRagonePlotCommand()
{
    return u"ToolRagonePlotCommand"_s;
}

QString UIConfig::toolProcessedDataCommand()
{
    return u"ToolProcessedDataCommand"_s;
}

bool UIConfig::readTools(const QJsonObject& root, QString& error)
{
    const QJsonObject table = root.value(ToolsKey).toObject().value(SummaryTableKey).toObject();
    using Kind = std::pair<QLatin1StringView, QList<ClConfigDataArray*>&>;
    const std::array kinds{
        Kind{PerStepKey, m_summaryTablePerStepColumns},
        Kind{PerCycleKey, m_summaryTablePerCycleColumns},
        Kind{PerLoopKey, m_summaryTablePerLoopColumns},
    };
    for (const auto& [key, columns] : kinds) {
        const QJsonValue kind = table.value(key);
        if (!kind.isObject()) {
            return true; // a missing kind hides the later ones
        }
        if (!readSummaryTableColumns(kind, columns, error)) {
            return false;
        }
    }
    return true;
}

bool UIConfig::readSummaryTableColumns(const QJsonValue& category, QList<ClConfigDataArray*>& columns, QString& error)
{
    const QJsonObject categories = category.toObject();
    for (auto it = categories.begin(); it != categories.end(); ++it) {
        if (!it.value().isArray()) {
            error = CategoryNotAnArray;
            return false;
        }
        appendColumns(it.value().toArray(), it.key(), columns);
    }
    return true;
}

bool UIConfig::readDQdUColumns(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(DQdUKey);
    if (!section.isObject()) {
        error = DQdUMissing;
        return false;
    }
    const QJsonObject dQdU = section.toObject();
    const QJsonValue table = dQdU.value(TableKey);
    if (!table.isArray()) {
        error = DQdUTableMissing;
        return false;
    }
    appendColumns(table.toArray(), ClConfigDataArray::PotentiostatMeasure(), m_dQdUColumns);
    m_dQdUItem.readGraphItem(dQdU.value(GraphKey).toObject());
    return true;
}
