#include <config/UIConfig.h>

#include <batterydata/ClConfigDataArray.h>
#include <batterydata/RawDataCollection.h>
#include <config/Configuration.h>
#include <datastorage/JsonUtils.h>

#include <utility>

using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ExportCategory;
using cl::datastorage::ConfigDataArray;
using cl::datastorage::JsonUtils;

namespace {

// The arrays of this category may become default axes.
constexpr ExportCategory DefaultAxesCategory{2};

using DefaultSetter = void (ConfigDataArray::*)(bool);

void markAsDefault(const QList<ConfigDataArray*>& arrays, DefaultSetter setDefault)
{
    for (ConfigDataArray* array : arrays) {
        const auto* configured = dynamic_cast<ClConfigDataArray*>(array);
        if (configured != nullptr && configured->getExportCategory() == DefaultAxesCategory) {
            (array->*setDefault)(true);
        }
    }
}

void markDefaultAxes(const ConfigRepresentation& representation,
                     const cl::batterydata::ClConfigDataArrayManager& catalogue)
{
    markAsDefault(catalogue.getConfigDataArrays(representation.x()), &ConfigDataArray::setDefaultX);
    markAsDefault(catalogue.getConfigDataArrays(representation.y1()), &ConfigDataArray::setDefaultY1);
    markAsDefault(catalogue.getConfigDataArrays(representation.y2()), &ConfigDataArray::setDefaultY2);
}

} // namespace

template CLCONFIGUI_EXPORT UIConfig& lumo::tools::Singleton<UIConfig>::instance();

UIConfig::UIConfig(lumo::tools::Singleton<UIConfig>::token /*token*/)
    : m_lastDirectoryBoard(getDefaultAppDirectory())
    , m_lastDirectoryImport(getDefaultAppDirectory())
    , m_lastDirectoryExport(getDefaultAppDirectory())
    , m_lastDirectoryRecipe(getDefaultAppDirectory())
    , m_renderingConfiguration(readRenderingConfiguration())
{
}

UIConfig::~UIConfig()
{
    deleteAll();
}

void UIConfig::deleteAll()
{
    m_axesCombinationManager.deleteAll();
    m_configRepresentationManager.deleteAllAndClear();
    m_skippedTasks.clear();
    m_summaryTablePerStepColumns.clear();
    m_summaryTablePerCycleColumns.clear();
    m_summaryTablePerLoopColumns.clear();
    m_msvUnitsCombinationManager.deleteAllAndClear();
}

bool UIConfig::readUIConfiguration(const QString& path, QString& error)
{
    QJsonObject root;
    if (!JsonUtils::openJsonDocument(path, error, root)) {
        return false;
    }
    return takeRead(error, [&](const uiconfig::Reading& with) { uiconfig::readConfiguration(root, with); });
}

bool UIConfig::readSection(QLatin1StringView key, const QJsonObject& root, QString& error)
{
    return takeRead(error, [&](const uiconfig::Reading& with) { uiconfig::readSection(key, root, with); });
}

bool UIConfig::takeRead(QString& error, const std::function<void(const uiconfig::Reading&)>& read)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    uiconfig::Configuration configuration;
    read({catalogue(), configuration, refusals});
    take(std::move(configuration));
    return refusals.isEmpty(error);
}

const cl::batterydata::ClConfigDataArrayManager& UIConfig::catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

void UIConfig::take(uiconfig::Configuration&& read)
{
    m_axesCombinationManager.appendAll(std::move(read.axesCombinations));
    for (ConfigRepresentation& representation : read.representations) {
        if (representation.isDefault()) {
            markDefaultAxes(representation, catalogue());
        }
        m_configRepresentationManager.append(new ConfigRepresentation(std::move(representation)));
    }
    for (const MSVUnitsCombination& combination : std::as_const(read.msvUnits)) {
        m_msvUnitsCombinationManager.append(new MSVUnitsCombination(combination));
    }
    m_skippedTasks.append(std::move(read.skippedTasks));
    m_customColors.append(std::move(read.colors.custom));
    m_defaultColors.insert(std::move(read.colors.defaults));
    m_summaryTablePerStepColumns.append(std::move(read.summaryTables.perStep));
    m_summaryTablePerCycleColumns.append(std::move(read.summaryTables.perCycle));
    m_summaryTablePerLoopColumns.append(std::move(read.summaryTables.perLoop));
    m_statsGraph.append(std::move(read.statistics));
    m_ragonePlotGraph.append(std::move(read.ragonePlots));
    m_processedDataGraph.append(std::move(read.processedData));
    if (read.dQdU.graph) {
        m_dQdUItem = *read.dQdU.graph;
    }
    appendRecipeItems(read.recipe.graphCombinations, m_recipeGraphCombinationsList);
    appendRecipeItems(read.recipe.toolsGraphs, m_recipeToolsGraphsList);
    appendRecipeItems(read.recipe.toolsTables, m_recipeToolsTablesList);
    m_xFormulas.append(std::move(read.processFormulas.x));
    m_y1Formulas.append(std::move(read.processFormulas.y1));
    m_y2Formulas.append(std::move(read.processFormulas.y2));
    if (read.debugFlags) {
        m_importDialogShowClIds = read.debugFlags->importDialogShowClIds;
        m_saveImportedParquetFiles = read.debugFlags->saveImportedParquetFiles;
        m_saveZFitInputData = read.debugFlags->saveZFitInputData;
    }
    m_dQdUColumns.append(std::move(read.dQdU.columns));
}
