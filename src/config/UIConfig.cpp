#include <config/UIConfig.h>

#include <datastorage/JsonUtils.h>

#include <algorithm>
#include <array>

using cl::datastorage::JsonUtils;

namespace {

constexpr int FormatVersion = 29;

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
    using Reader = bool (UIConfig::*)(const QJsonObject&, QString&);
    constexpr auto Readers = std::to_array<Reader>({
        &UIConfig::readRepresentations,
        &UIConfig::readMSVUnitsCombinationsConfig,
        &UIConfig::readFilters,
        &UIConfig::readTools,
        &UIConfig::readColors,
        &UIConfig::readStatsGraph,
        &UIConfig::readRagonePlotGraph,
        &UIConfig::readProcessedDataGraph,
        &UIConfig::readContentListForRecipe,
        &UIConfig::readProcessFormulaConfig,
        &UIConfig::readDQdUColumns,
        &UIConfig::readDebugFlags,
    });
    QJsonObject root;
    return JsonUtils::openJsonDocument(path, error, root) && JsonUtils::checkVersionNumber(root, FormatVersion, error)
        && m_axesCombinationManager.readAxesCombinations(root, error)
        && std::all_of(Readers.begin(), Readers.end(), [&](Reader reader) { return (this->*reader)(root, error); });
}
