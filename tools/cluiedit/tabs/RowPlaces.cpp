#include "RowPlaces.h"

#include <base/DocumentKeys.h>
#include <base/JsonPointer.h>

#include <QJsonArray>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiedit {

namespace {

/// Counts entries in the order in which they are read, up to the one of the row that is looked for.
struct Countdown
{
    qsizetype left;

    /// Whether the entry is one of the next \p count; then left is its number among them. Otherwise they are passed.
    bool isAmong(qsizetype count)
    {
        if (left < count) {
            return true;
        }
        left -= count;
        return false;
    }
};

QString columnPlace(qsizetype row, const QJsonObject& root)
{
    const QJsonObject table = root.value(keys::Tools).toObject().value(keys::SummaryTable).toObject();
    Countdown countdown{row};
    for (const QLatin1StringView kind : keys::SummaryTableKinds) {
        if (!table.value(kind).isObject()) {
            break; // it hides the later ones
        }
        const QJsonObject categories = table.value(kind).toObject();
        for (auto it = categories.begin(); it != categories.end(); ++it) {
            if (countdown.isAmong(it.value().toArray().size())) {
                return jsonPointer(keys::Tools, keys::SummaryTable, kind, it.key(), countdown.left);
            }
        }
    }
    return jsonPointer(keys::Tools);
}

/// Of a section whose members are graphs, lists of curves. A graph without curves has a row of its own.
QString curvePlace(const QString& section, qsizetype row, const QJsonObject& root)
{
    const QJsonObject graphs = root.value(section).toObject();
    Countdown countdown{row};
    for (auto it = graphs.begin(); it != graphs.end(); ++it) {
        const qsizetype curves = it.value().toArray().size();
        if (countdown.isAmong(std::max<qsizetype>(curves, 1))) {
            return curves == 0 ? jsonPointer(section, it.key()) : jsonPointer(section, it.key(), countdown.left);
        }
    }
    return jsonPointer(section);
}

/// Of a section whose members are lists, taken in the order of \p members.
QString elementPlace(const QString& section, const QStringList& members, qsizetype row, const QJsonObject& root)
{
    const QJsonObject lists = root.value(section).toObject();
    Countdown countdown{row};
    for (const QString& member : members) {
        if (countdown.isAmong(lists.value(member).toArray().size())) {
            return jsonPointer(section, member, countdown.left);
        }
    }
    return jsonPointer(section);
}

/// The groups of formulas: X, Y1, and then all others, which mean Y2.
QStringList formulaGroups(const QJsonObject& root)
{
    QStringList others = root.value(keys::ProcessFormula).toObject().keys();
    others.removeAll(keys::XFormulas);
    others.removeAll(keys::Y1Formulas);
    return QStringList{keys::XFormulas, keys::Y1Formulas} + others;
}

/// \p pointer, or the one to the section where the document has nothing there.
QString existing(const QString& section, QLatin1StringView member, const QJsonObject& root)
{
    return root.value(section).toObject().contains(member) ? jsonPointer(section, member) : jsonPointer(section);
}

} // namespace

QString placeOfRow(const cluiconfig::Table& table, qsizetype row, const QJsonObject& root)
{
    const QString& section = table.section;
    if (section == keys::Representations || section == keys::MSVUnits || section == keys::ProcessedData) {
        return jsonPointer(section, row);
    }
    if (section == keys::Filters) {
        return jsonPointer(section, keys::Tasks, keys::Skipped, row);
    }
    if (section == keys::Tools) {
        return columnPlace(row, root);
    }
    if (section == keys::Colors) { // the palette has a name first, the defaults an element
        const bool isPalette = table.keys == table.names;
        return isPalette ? jsonPointer(section, keys::CustomColors, row)
                         : jsonPointer(section, keys::DefaultColors, table.rows.at(row).constFirst().toString());
    }
    if (section == keys::Statistics || section == keys::RagonePlot) {
        return curvePlace(section, row, root);
    }
    if (section == keys::Recipe) {
        return elementPlace(section, QStringList(keys::RecipeCommands.begin(), keys::RecipeCommands.end()), row, root);
    }
    if (section == keys::ProcessFormula) {
        return elementPlace(section, formulaGroups(root), row, root);
    }
    if (section == keys::DQdU) { // the graph is a single row
        return table.keys.isEmpty() ? existing(section, keys::Graph, root) : jsonPointer(section, keys::Table, row);
    }
    if (section == keys::Debug) {
        constexpr std::array Switches{keys::ImportDialogClIds, keys::ImportedParquetFiles, keys::ZFitInputData};
        return existing(section, Switches.at(static_cast<std::size_t>(row)), root);
    }
    return jsonPointer(section);
}

QString placeOfParameter(const QString& parameter, const QJsonObject& root)
{
    const QJsonArray entries = root.value(keys::MSVUnits).toArray();
    const auto found = std::ranges::find_if(entries, [&parameter](const QJsonValue& entry) {
        return entry.toObject().value(keys::PhysicalParameter).toString() == parameter;
    });
    return found == entries.end() ? jsonPointer(keys::MSVUnits)
                                  : jsonPointer(keys::MSVUnits, qsizetype(found - entries.begin()));
}

} // namespace cluiedit
