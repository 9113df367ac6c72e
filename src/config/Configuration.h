#pragma once

#include <axes/AxesCombination.h>
#include <axes/ConfigRepresentation.h>
#include <base/Section.h>
#include <clconfigui_export.h>
#include <config/MSVUnitsCombination.h>
#include <items/DQdUAnalysisItem.h>
#include <items/ProcessedDataItem.h>
#include <items/RagonePlotItem.h>
#include <items/StatisticsItem.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>
#include <utility>

namespace cl::batterydata {
class ClConfigDataArray;
class ClConfigDataArrayManager;
} // namespace cl::batterydata

/// \file Configuration.h
/// What a configuration document says, as a value: any program reads a document as often as it likes, and holds several
/// side by side. UIConfig takes over what one of them says for the process.

namespace uiconfig {

/// Columns by their data arrays, which belong to the catalogue; null for one that it does not know.
using Columns = QList<cl::batterydata::ClConfigDataArray*>;

struct SummaryTables
{
    Columns perStep;
    Columns perCycle;
    Columns perLoop;
};

struct Colors
{
    QList<std::pair<QString, QColor>> custom; ///< The palette.
    QMap<QString, QString> defaults; ///< Key of an element -> name of a colour of the palette.
};

/// An entry that a recipe may contain.
struct RecipeEntry
{
    QString command;
    QString title;
    QList<QString> parameters; ///< Without gaps.
};

struct Recipe
{
    QList<RecipeEntry> graphCombinations;
    QList<RecipeEntry> toolsTables;
    QList<RecipeEntry> toolsGraphs; ///< The statistics entries, then the processed-data entries.
};

/// Formulas as displayed and as compiled.
using Formulas = QList<std::pair<QString, QString>>;

struct ProcessFormulas
{
    Formulas x;
    Formulas y1;
    Formulas y2;
};

struct DQdU
{
    Columns columns;
    std::optional<DQdUAnalysisItem> graph; ///< Nothing if the section was not read that far.
};

struct DebugFlags
{
    bool importDialogShowClIds = false;
    bool saveImportedParquetFiles = false;
    bool saveZFitInputData = false;
};

/// The content of a document, section by section; all of them are empty to begin with.
struct Configuration
{
    QList<AxesCombination> axesCombinations;
    QList<ConfigRepresentation> representations;
    QList<MSVUnitsCombination> msvUnits;
    QList<QString> skippedTasks;
    SummaryTables summaryTables;
    Colors colors;
    QList<StatisticsItem> statistics;
    QList<RagonePlotItem> ragonePlots;
    QList<ProcessedDataItem> processedData;
    Recipe recipe;
    ProcessFormulas processFormulas;
    DQdU dQdU;
    std::optional<DebugFlags> debugFlags; ///< Nothing if the document lacks them.
};

/// The sections in the order in which they are read.
CLCONFIGUI_EXPORT QList<Section> sections();

using Catalogue = cl::batterydata::ClConfigDataArrayManager;

/// Reads the version of the document \p root and then its sections, and appends what they say to \p configuration. The
/// names of data arrays are those of \p catalogue, which must outlive the columns. A reading that was stopped by a
/// refusal leaves what was read before.
CLCONFIGUI_EXPORT void readConfiguration(const QJsonObject& root, const Catalogue& catalogue,
                                         Configuration& configuration, Refusals& refusals);

/// Reads the section \p key alone. REQUIRES: sections() has it.
CLCONFIGUI_EXPORT void readSection(QLatin1StringView key, const QJsonObject& root, const Catalogue& catalogue,
                                   Configuration& configuration, Refusals& refusals);

// The readers of the sections, each in a source file of its name; that of the axes combinations stands in axes/. Each
// appends what the value of its section says to a value of its own, and returns false when a refusal stops the reading.

CLCONFIGUI_EXPORT bool readRepresentations(const QJsonArray& entries, const Catalogue& catalogue,
                                           QList<ConfigRepresentation>& representations, Refusals& refusals);
CLCONFIGUI_EXPORT bool readMSVUnits(const QJsonArray& entries, QList<MSVUnitsCombination>& combinations);
CLCONFIGUI_EXPORT bool readFilters(const QJsonObject& section, QList<QString>& skippedTasks);
CLCONFIGUI_EXPORT bool readTools(const QJsonObject& section, const Catalogue& catalogue, SummaryTables& tables,
                                 Refusals& refusals);
CLCONFIGUI_EXPORT bool readColors(const QJsonObject& section, Colors& colors, Refusals& refusals);
CLCONFIGUI_EXPORT bool readStatistics(const QJsonObject& section, QList<StatisticsItem>& graphs);
CLCONFIGUI_EXPORT bool readRagonePlot(const QJsonObject& section, QList<RagonePlotItem>& graphs);
CLCONFIGUI_EXPORT bool readProcessedData(const QJsonArray& entries, QList<ProcessedDataItem>& graphs,
                                         Refusals& refusals);
CLCONFIGUI_EXPORT bool readRecipe(const QJsonObject& section, Recipe& recipe, Refusals& refusals);
CLCONFIGUI_EXPORT bool readProcessFormula(const QJsonObject& section, ProcessFormulas& formulas);
CLCONFIGUI_EXPORT bool readDQdU(const QJsonObject& section, const Catalogue& catalogue, DQdU& dQdU, Refusals& refusals);
CLCONFIGUI_EXPORT bool readDebug(const QJsonObject& section, std::optional<DebugFlags>& flags);

} // namespace uiconfig
