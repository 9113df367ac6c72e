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
#include <QJsonObject>
#include <QJsonValue>
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

/// The columns of the three kinds of summary tables, each category by category.
struct SummaryTables
{
    Columns perStep; ///< "Per step".
    Columns perCycle; ///< "Per cycle".
    Columns perLoop; ///< "Per loop".
};

/// The palette, and which of its colours elements have by default.
struct Colors
{
    QList<std::pair<QString, QColor>> custom; ///< The palette.
    QMap<QString, QString> defaults; ///< Key of an element -> name of a colour of the palette.
};

/// The default colour of the element \p key, which may be an invalid one; nothing when the element has no default, or
/// its default names no colour of the palette. A palette colour without a name serves every element without a default.
CLCONFIGUI_EXPORT std::optional<QColor> defaultColor(const Colors& colors, const QString& key);

/// An entry that a recipe may contain.
struct RecipeEntry
{
    QString command; ///< The command group that it stands in.
    QString title; ///< For the user; may be empty.
    QList<QString> parameters; ///< Without gaps.
};

/// The entries that recipes may contain, in file order.
struct Recipe
{
    QList<RecipeEntry> graphCombinations; ///< The graphs.
    QList<RecipeEntry> toolsTables; ///< The summary tables.
    QList<RecipeEntry> toolsGraphs; ///< The statistics entries, then the processed-data entries.
};

/// Formulas as displayed and as compiled.
using Formulas = QList<std::pair<QString, QString>>;

/// The formulas that are offered for each axis.
struct ProcessFormulas
{
    Formulas x; ///< For the X axis.
    Formulas y1; ///< For the left Y axis.
    Formulas y2; ///< For the right Y axis.
};

/// The differential capacity, dQ/dU: its table and its graph.
struct DQdU
{
    Columns columns; ///< Of the table.
    std::optional<DQdUAnalysisItem> graph; ///< Nothing if the section was not read that far.
};

/// The switches of the section "Debug", which the library does nothing with.
struct DebugFlags
{
    bool importDialogShowClIds = false; ///< "importDialogDisplayClIds".
    bool saveImportedParquetFiles = false; ///< "saveImportedParquetFiles".
    bool saveZFitInputData = false; ///< "saveZFitInputData".
};

/// The content of a document, section by section; all of them are empty to begin with.
struct Configuration
{
    QList<AxesCombination> axesCombinations; ///< Which data array goes with which; repeated pairs included.
    QList<ConfigRepresentation> representations; ///< In file order.
    QList<MSVUnitsCombination> msvUnits; ///< In file order.
    QList<QString> skippedTasks; ///< In file order.
    SummaryTables summaryTables; ///< Of the section "Tools".
    Colors colors; ///< In file order, and by their keys.
    QList<StatisticsItem> statistics; ///< In the order of their titles.
    QList<RagonePlotItem> ragonePlots; ///< In the order of their titles.
    QList<ProcessedDataItem> processedData; ///< In file order.
    Recipe recipe; ///< What recipes may contain.
    ProcessFormulas processFormulas; ///< By axis.
    DQdU dQdU; ///< The differential capacity.
    std::optional<DebugFlags> debugFlags; ///< Nothing if the document lacks them.
};

/// The sections in the order in which they are read.
CLCONFIGUI_EXPORT QList<Section> sections();

/// The data arrays that there are.
using Catalogue = cl::batterydata::ClConfigDataArrayManager;

/// What the readers read with: the names of data arrays, where what is read goes, and who is told of refusals.
struct Reading
{
    const Catalogue& catalogue; ///< Must outlive the columns that are read.
    Configuration& to; ///< What was read is appended here.
    Refusals& refusals; ///< Told of what is refused, and asked whether to go on.
    /// Whether the axes combinations are wanted, of which a few lines can give millions. If not, they are read all the
    /// same for what is refused in them.
    bool takesAxesCombinations = true;
};

/// Reads the version of the document \p root and then its sections, and appends what they say. A reading that was
/// stopped by a refusal leaves what was read before.
CLCONFIGUI_EXPORT void readConfiguration(const QJsonObject& root, const Reading& with);

/// Reads the section \p key alone. REQUIRES: sections() has it.
CLCONFIGUI_EXPORT void readSection(QLatin1StringView key, const QJsonObject& root, const Reading& with);

// The readers of the sections, each in a source file of its name; that of the axes combinations stands in axes/.

/// \{
/// Reads the value of the section, appends what it says to the section's own records, and returns false when a refusal
/// stops the reading; what was appended before stays. REQUIRES: the value has the section's type.
CLCONFIGUI_EXPORT bool readRepresentations(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readMSVUnits(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readFilters(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readTools(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readColors(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readStatistics(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readRagonePlot(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readProcessedData(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readRecipe(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readProcessFormula(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readDQdU(const QJsonValue& section, const Reading& with);
CLCONFIGUI_EXPORT bool readDebug(const QJsonValue& section, const Reading& with);
/// \}

} // namespace uiconfig
