#pragma once

#include <axes/AxesCombinationManager.h>
#include <base/Singleton.h>
#include <clconfigui_export.h>
#include <config/ConfigRepresentationManager.h>
#include <config/MSVUnitsCombinationManager.h>
#include <config/RecipeConfigItem.h>
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

#include <functional>
#include <utility>

class AAnalysisItem;
class ConfigRepresentation;
class UIConfig;

namespace cl::batterydata {
class ClConfigDataArray;
class ClConfigDataArrayManager;
} // namespace cl::batterydata

namespace uiconfig {
struct Configuration;
struct Reading;
struct RecipeEntry;
} // namespace uiconfig

extern template CLCONFIGUI_EXPORT UIConfig& lumo::tools::Singleton<UIConfig>::instance();

/// The user-interface configuration of the application: what the configuration document says, and the user's own
/// preferences.
///
/// There is one object in the process, `lumo::tools::Singleton<UIConfig>::instance()`. The first call constructs it,
/// thread-safely, with the preferences read from the settings store and every section empty; readUIConfiguration() then
/// fills the sections. Nothing else is synchronised: load before sharing the object, and call no setter and no
/// deleteAll() while another thread reads.
///
/// Getters return references to members, valid as long as the process lives and stable until the next change. Lookups
/// by title return copies, default-constructed with an empty title on a miss. The data arrays of the column lists
/// belong to the catalogue of the battery-data library and are never deleted here; null stands for a column that the
/// catalogue does not know.
class CLCONFIGUI_EXPORT UIConfig : public lumo::tools::Singleton<UIConfig>
{
public:
    /// How graphs are drawn. The library stores and returns these values; nothing is checked or clamped.
    struct RenderingConfiguration
    {
        quint32 maxNumberPointsInput = 32000; ///< Most points a graph takes as input.
        quint32 minNumberPointsInput = 4000; ///< Fewest points a graph takes as input.
        quint32 targetNumberPointsInput = 8000; ///< Points that a graph aims at.
        bool markerVisibilityThresholdEnable = true; ///< Whether markers disappear above a number of points.
        qint32 markerVisibilityThresholdValue = 1000; ///< That number.
        qint32 lineWidth = 1; ///< Width of graph lines.
    };

    /// Reads the preferences from the settings store; every section is empty. Called by instance() alone.
    explicit UIConfig(lumo::tools::Singleton<UIConfig>::token);
    ~UIConfig();
    UIConfig(const UIConfig&) = delete;
    UIConfig& operator=(const UIConfig&) = delete;
    UIConfig(UIConfig&&) = delete;
    UIConfig& operator=(UIConfig&&) = delete;

    /// Empties the axes combinations, the representations, the skipped tasks, the three summary-table column lists and
    /// the compound units, in this order. Everything else keeps its content.
    void deleteAll();

    /// Loads the configuration document at \p path on top of what is there. Sections are read in a fixed order; the
    /// first one that fails ends the load with false and one English sentence in \p error, and the sections before it
    /// stay filled.
    bool readUIConfiguration(const QString& path, QString& error);

    // The declared types of the next four are the interface.
    // NOLINTBEGIN(readability-const-return-type)

    /// "UIConfig.json", without a directory.
    static const QString uiConfigJson();
    /// "ZFitConfig.json", without a directory.
    static const QString zfitConfigJson();
    /// Where the impedance-fit configuration stands: beside the program, "/" as separator on every platform.
    static const QString zfitConfigJsonPath();

    // NOLINTEND(readability-const-return-type)

    /// \{
    /// The name of a command that a recipe may contain, as it stands in the configuration document.
    static QString graphCommand();
    static QString toolSummaryCommand();
    static QString toolStatisticsCommand();
    static QString toolRagonePlotCommand();
    static QString toolProcessedDataCommand();
    /// \}

    // Axes, representations and units.

    /// \{
    /// What may be plotted against what. The manager belongs to this object.
    AxesCombinationManager& getAxesCombinationManager() { return m_axesCombinationManager; }
    const AxesCombinationManager& getAxesCombinationManager() const { return m_axesCombinationManager; }
    /// \}
    /// The representations, which belong to this object and are valid until deleteAll().
    const ConfigRepresentationManager& getConfigRepresentationManager() const { return m_configRepresentationManager; }
    /// The first representation marked as default, null when there is none; the manager's own, valid until deleteAll().
    ConfigRepresentation* getDefaultConfigRepresentation() const;
    /// \{
    /// The compound units. The manager belongs to this object; its records are valid until deleteAll().
    MSVUnitsCombinationManager& getMSVUnitsCombinationManager() { return m_msvUnitsCombinationManager; }
    const MSVUnitsCombinationManager& getMSVUnitsCombinationManager() const { return m_msvUnitsCombinationManager; }
    /// \}

    // Colours.

    /// The palette in file order: name and opaque colour.
    const QList<std::pair<QString, QColor>>& getCustomColors() const { return m_customColors; }
    /// Puts the default colour of the element \p key into \p color. When the element has no default, or its default
    /// names no colour of the palette, returns false and leaves \p color alone. A palette colour without a name serves
    /// every element without a default.
    bool getDefaultColor(const QString& key, QColor& color) const;

    // Columns of the tables.

    /// \{
    /// The columns of a kind of summary table, category by category; null for an array that the catalogue lacks.
    const QList<cl::batterydata::ClConfigDataArray*>& getSummaryTablePerStepColumns() const
    {
        return m_summaryTablePerStepColumns;
    }
    const QList<cl::batterydata::ClConfigDataArray*>& getSummaryTablePerCycleColumns() const
    {
        return m_summaryTablePerCycleColumns;
    }
    const QList<cl::batterydata::ClConfigDataArray*>& getSummaryTablePerLoopColumns() const
    {
        return m_summaryTablePerLoopColumns;
    }
    /// \}
    /// The columns of the table of the differential capacity; null for an array that the catalogue lacks.
    const QList<cl::batterydata::ClConfigDataArray*>& getDQdUColumns() const { return m_dQdUColumns; }
    /// The graph of the differential capacity; without title and arrays until a document was read that far.
    const DQdUAnalysisItem& getDQdUItem() const { return m_dQdUItem; }

    // Graphs that the tools offer.

    /// The statistics graphs, by document in the order of their titles.
    const QList<StatisticsItem>& getStatsGraph() const { return m_statsGraph; }
    /// A copy of the first one with exactly this title; one with an empty title when there is none.
    StatisticsItem getStatGraphFromTitle(const QString& title) const;
    /// The Ragone plots, by document in the order of their titles.
    const QList<RagonePlotItem>& getRagonePlotGraph() const { return m_ragonePlotGraph; }
    /// A copy of the first one with exactly this title; one with an empty title when there is none.
    RagonePlotItem getRagonePlotGraphFromTitle(const QString& title) const;
    /// The processed-data graphs, in file order.
    const QList<ProcessedDataItem>& getProcessedDataGraph() const { return m_processedDataGraph; }
    /// A copy of the first one with exactly this title; one with an empty title when there is none.
    ProcessedDataItem getProcessedDataGraphFromTitle(const QString& title) const;

    // Recipes and formulas.

    /// The graphs that a recipe may contain, in file order.
    const QList<RecipeConfigItem>& getRecipeGraphCombinationsList() const { return m_recipeGraphCombinationsList; }
    /// The statistics entries, then the processed-data entries; their types tell them apart.
    const QList<RecipeConfigItem>& getRecipeToolsGraphsList() const { return m_recipeToolsGraphsList; }
    /// The summary tables that a recipe may contain, in file order.
    const QList<RecipeConfigItem>& getRecipeToolsTablesList() const { return m_recipeToolsTablesList; }
    /// The formulas (as displayed, as compiled) offered for the axis "X" or "Y1"; those for Y2 for any other text.
    QList<std::pair<QString, QString>> getAxisFormulaConfigByName(const QString& axis) const;

    // Switches and filters.

    /// The names of the tasks to skip, in file order.
    const QList<QString>& getSkippedTasks() const { return m_skippedTasks; }
    /// \{
    /// A switch of the section "Debug", false until a document sets it. The library does nothing with it.
    bool importDialogShowClIds() const { return m_importDialogShowClIds; }
    bool saveImportedParquetFiles() const { return m_saveImportedParquetFiles; }
    bool saveZFitInputData() const { return m_saveZFitInputData; }
    /// \}
    /// Appends the skipped tasks of the section "Filters". Always returns true.
    bool readFilters(const QJsonObject& root, QString& error);

    // Files.

    /// \{
    /// A filter text for file dialogs, translated under the context "ui_config" at the time of the call.
    QString csvFileNameFilter() const;
    QString mprFileNameFilter() const;
    /// \}
    /// The platform's documents directory, empty when it has none.
    QString getDefaultAppDirectory();

    /// \{
    /// A directory or the file filter last used in file dialogs, kept for the run of the program only. To begin with,
    /// directories are getDefaultAppDirectory() and the filter is empty; nothing is checked.
    const QString& getLastDirectoryBoard() const { return m_lastDirectoryBoard; }
    const QString& getLastDirectoryImport() const { return m_lastDirectoryImport; }
    const QString& getLastDirectoryExport() const { return m_lastDirectoryExport; }
    const QString& getLastDirectoryRecipe() const { return m_lastDirectoryRecipe; }
    QString getLastImportedFileFilter() { return m_lastImportedFileFilter; }
    void setLastDirectoryBoard(const QString& directory) { m_lastDirectoryBoard = directory; }
    void setLastDirectoryImport(const QString& directory) { m_lastDirectoryImport = directory; }
    void setLastDirectoryExport(const QString& directory) { m_lastDirectoryExport = directory; }
    void setLastDirectoryRecipe(const QString& directory) { m_lastDirectoryRecipe = directory; }
    void setLastImportedFileFilter(const QString& filter) { m_lastImportedFileFilter = filter; }
    /// \}

    // Preferences in the settings store. The application names the store by its organisation and application names.

    /// As read at construction or last set: later changes of the store do not show.
    const RenderingConfiguration& getRenderingConfiguration() const { return m_renderingConfiguration; }
    /// Keeps \p configuration and writes it to the store.
    void setRenderingConfiguration(const RenderingConfiguration& configuration);

    /// \{
    /// A switch of the application, read from and written to the store at every call. Until it is set, confirmation
    /// dialogs are shown, and the frequency of stickers is not.
    bool isRefreshDataConfirmDialogDisplay() const;
    void setRefreshDataConfirmDialogDisplay(bool display);
    bool isRemoveDataConfirmDialogDisplay() const;
    void setRemoveDataConfirmDialogDisplay(bool display);
    bool isDUTTypeEditionConfirmDialogDisplay() const;
    void setDUTTypeEditionConfirmDialogDisplay(bool display);
    bool showStickersFrequency() const;
    void setShowStickersFrequency(bool show);
    /// \}

protected:
    /// \{
    /// Reads a section of the document, or a part of one, and appends to what is there. On failure it returns false
    /// with the reason in \p error and leaves what it has read so far.
    bool readRepresentations(const QJsonObject& root, QString& error);
    bool readMSVUnitsCombinationsConfig(const QJsonObject& root, QString& error);
    bool readTools(const QJsonObject& root, QString& error);
    bool readSummaryTableColumns(const QJsonValue& category, QList<cl::batterydata::ClConfigDataArray*>& columns,
                                 QString& error);
    bool readColors(const QJsonObject& root, QString& error);
    bool readCustomColors(const QJsonValue& customColors, QString& error);
    bool readDefaultColors(const QJsonValue& defaultColors, QString& error);
    bool readStatsGraph(const QJsonObject& root, QString& error);
    bool readRagonePlotGraph(const QJsonObject& root, QString& error);
    bool readProcessedDataGraph(const QJsonObject& root, QString& error);
    bool readContentListForRecipe(const QJsonObject& root, QString& error);
    bool readRecipeCommandConfig(QJsonValue recipe, const QString& command, QList<RecipeConfigItem>& list,
                                 QString& error);
    bool readProcessFormulaConfig(const QJsonObject& root, QString& error);
    bool readDQdUColumns(const QJsonObject& root, QString& error);
    bool readDebugFlags(const QJsonObject& root, QString& error);
    /// \}

private:
    static RenderingConfiguration readRenderingConfiguration();
    static const cl::batterydata::ClConfigDataArrayManager& catalogue();
    static void appendRecipeItems(const QList<uiconfig::RecipeEntry>& entries, QList<RecipeConfigItem>& list);

    /// Appends what was read to what is there.
    void take(uiconfig::Configuration&& read);
    /// Takes what \p read reads, up to the first refusal, which goes to \p error: then false.
    bool takeRead(QString& error, const std::function<void(const uiconfig::Reading&)>& read);
    bool readSection(QLatin1StringView key, const QJsonObject& root, QString& error);

    // The order is part of the class's contract: construction and destruction follow it.
    AxesCombinationManager m_axesCombinationManager;
    ConfigRepresentationManager m_configRepresentationManager;
    MSVUnitsCombinationManager m_msvUnitsCombinationManager;
    QList<QString> m_skippedTasks;
    QList<std::pair<QString, QColor>> m_customColors;
    QMap<QString, QString> m_defaultColors; // element key -> name of a custom colour
    QList<cl::batterydata::ClConfigDataArray*> m_summaryTablePerStepColumns;
    QList<cl::batterydata::ClConfigDataArray*> m_summaryTablePerCycleColumns;
    QList<cl::batterydata::ClConfigDataArray*> m_summaryTablePerLoopColumns;
    QString m_lastDirectoryBoard;
    QString m_lastDirectoryImport;
    QString m_lastDirectoryExport;
    QString m_lastDirectoryRecipe;
    QString m_lastImportedFileFilter;
    RenderingConfiguration m_renderingConfiguration;
    QList<StatisticsItem> m_statsGraph;
    QList<RagonePlotItem> m_ragonePlotGraph;
    QList<ProcessedDataItem> m_processedDataGraph;
    QList<AAnalysisItem*> m_reservedItems; // always empty
    DQdUAnalysisItem m_dQdUItem;
    QList<RecipeConfigItem> m_recipeGraphCombinationsList;
    QList<RecipeConfigItem> m_recipeToolsGraphsList;
    QList<RecipeConfigItem> m_recipeToolsTablesList;
    QList<std::pair<QString, QString>> m_xFormulas;
    QList<std::pair<QString, QString>> m_y1Formulas;
    QList<std::pair<QString, QString>> m_y2Formulas;
    bool m_importDialogShowClIds = false;
    bool m_saveImportedParquetFiles = false;
    bool m_saveZFitInputData = false;
    QList<cl::batterydata::ClConfigDataArray*> m_dQdUColumns;
};
