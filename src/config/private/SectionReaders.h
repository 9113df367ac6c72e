#pragma once

#include <base/DocumentKeys.h>
#include <config/Configuration.h>

#include <QJsonArray>
#include <QJsonObject>

/// \file SectionReaders.h
/// The readers of the sections, each in a source file of its own; that of the axes combinations stands in axes/. Each
/// appends what the value of its section says to a value of its own, and returns false when a refusal stops the
/// reading.

namespace uiconfig {

using Catalogue = cl::batterydata::ClConfigDataArrayManager;

bool readRepresentations(const QJsonArray& entries, const Catalogue& catalogue,
                         QList<ConfigRepresentation>& representations, Refusals& refusals);
bool readMSVUnits(const QJsonArray& entries, QList<MSVUnitsCombination>& combinations);
bool readFilters(const QJsonObject& filters, QList<QString>& skippedTasks);
bool readTools(const QJsonObject& tools, const Catalogue& catalogue, SummaryTables& tables, Refusals& refusals);
bool readColors(const QJsonObject& section, Colors& colors, Refusals& refusals);
bool readStatistics(const QJsonObject& section, QList<StatisticsItem>& graphs);
bool readRagonePlot(const QJsonObject& section, QList<RagonePlotItem>& graphs);
bool readProcessedData(const QJsonArray& entries, QList<ProcessedDataItem>& graphs, Refusals& refusals);
bool readRecipe(const QJsonObject& section, Recipe& recipe, Refusals& refusals);
bool readProcessFormula(const QJsonObject& groups, ProcessFormulas& formulas);
bool readDQdU(const QJsonObject& section, const Catalogue& catalogue, DQdU& dQdU, Refusals& refusals);
bool readDebug(const QJsonObject& section, std::optional<DebugFlags>& flags);

/// Appends the arrays that \p names names in one category, null for those that the catalogue does not know.
void appendColumns(const QJsonArray& names, const QString& category, const Catalogue& catalogue, Columns& columns);

/// The graphs of a section whose members are graphs, each under its title, in the order of the titles.
template <typename Graph>
void appendTitledGraphs(const QJsonObject& section, QList<Graph>& graphs)
{
    for (auto it = section.begin(); it != section.end(); ++it) {
        graphs.emplaceBack().readGraphItem(it.key(), section);
    }
}

} // namespace uiconfig
