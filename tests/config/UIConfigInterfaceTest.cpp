// The declared types that the application is built against: what is const, what is handed out by value and what by
// reference. The compiler checks them, so there is nothing to run.

#include <config/ConfigRepresentation.h>
#include <config/ConfigRepresentationManager.h>
#include <config/MSVUnitsCombination.h>
#include <config/MSVUnitsCombinationManager.h>
#include <config/Representation.h>
#include <config/UIConfig.h>
#include <config/UIConfigTest.h>
#include <config/UIFilteredUnits.h>

#include <type_traits>
#include <utility>

using lumo::tools::Singleton;

namespace {

using Columns = QList<cl::batterydata::ClConfigDataArray*>;
using Formulas = QList<std::pair<QString, QString>>;
using Palette = QList<std::pair<QString, QColor>>;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnitOperator;

/// The type of a constant operation of \p Class, of one that changes the object, and of a static one.
template <typename Class, typename Result, typename... Arguments>
using Const = Result (Class::*)(Arguments...) const;
template <typename Class, typename Result, typename... Arguments>
using Changing = Result (Class::*)(Arguments...);
template <typename Result, typename... Arguments>
using Static = Result (*)(Arguments...);

template <typename Expected, typename Operation>
constexpr bool is(Operation /*operation*/)
{
    return std::is_same_v<Expected, Operation>;
}

template <typename Result, typename... Arguments>
using Get = Const<UIConfig, Result, Arguments...>;
template <typename Result, typename... Arguments>
using Do = Changing<UIConfig, Result, Arguments...>;

// The object itself.

static_assert(std::is_base_of_v<Singleton<UIConfig>, UIConfig>);
static_assert(std::is_convertible_v<UIConfig*, Singleton<UIConfig>*>, "a public base");
static_assert(!std::is_polymorphic_v<UIConfig>);
static_assert(std::is_constructible_v<UIConfig, Singleton<UIConfig>::token>);
static_assert(!std::is_default_constructible_v<UIConfig>);
static_assert(!std::is_default_constructible_v<Singleton<UIConfig>::token>);
static_assert(!std::is_copy_constructible_v<UIConfig> && !std::is_copy_assignable_v<UIConfig>);
static_assert(!std::is_move_constructible_v<UIConfig> && !std::is_move_assignable_v<UIConfig>);
static_assert(is<Static<UIConfig&>>(&Singleton<UIConfig>::instance));
static_assert(is<Do<void>>(&UIConfig::deleteAll));
static_assert(is<Do<bool, const QString&, QString&>>(&UIConfig::readUIConfiguration));

// Names.

static_assert(is<Static<const QString>>(&UIConfig::uiConfigJson));
static_assert(is<Static<const QString>>(&UIConfig::zfitConfigJson));
static_assert(is<Static<const QString>>(&UIConfig::zfitConfigJsonPath));
static_assert(is<Static<QString>>(&UIConfig::graphCommand));
static_assert(is<Static<QString>>(&UIConfig::toolSummaryCommand));
static_assert(is<Static<QString>>(&UIConfig::toolStatisticsCommand));
static_assert(is<Static<QString>>(&UIConfig::toolRagonePlotCommand));
static_assert(is<Static<QString>>(&UIConfig::toolProcessedDataCommand));

// Section readers.

static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfig::readFilters), "the only public one");
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readRepresentations));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readMSVUnitsCombinationsConfig));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readTools));
static_assert(is<Do<bool, const QJsonValue&, Columns&, QString&>>(&UIConfigReaders::readSummaryTableColumns));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readColors));
static_assert(is<Do<bool, const QJsonValue&, QString&>>(&UIConfigReaders::readCustomColors));
static_assert(is<Do<bool, const QJsonValue&, QString&>>(&UIConfigReaders::readDefaultColors));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readStatsGraph));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readRagonePlotGraph));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readProcessedDataGraph));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readContentListForRecipe));
static_assert(is<Do<bool, QJsonValue, const QString&, QList<RecipeConfigItem>&, QString&>>(
    &UIConfigReaders::readRecipeCommandConfig));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readProcessFormulaConfig));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readDQdUColumns));
static_assert(is<Do<bool, const QJsonObject&, QString&>>(&UIConfigReaders::readDebugFlags));

template <typename Object>
concept HasAnOpenReader = requires(Object object, QJsonObject root, QString error)
{
    object.readTools(root, error);
};
static_assert(!HasAnOpenReader<UIConfig>, "readers are for the loader");

// Getters and lookups.

// Overloaded for constant and changing callers.
template <typename Config>
using AxesOf = decltype(std::declval<Config&>().getAxesCombinationManager());
template <typename Config>
using UnitsOf = decltype(std::declval<Config&>().getMSVUnitsCombinationManager());
static_assert(std::is_same_v<AxesOf<const UIConfig>, const AxesCombinationManager&>);
static_assert(std::is_same_v<AxesOf<UIConfig>, AxesCombinationManager&>);
static_assert(std::is_same_v<UnitsOf<const UIConfig>, const MSVUnitsCombinationManager&>);
static_assert(std::is_same_v<UnitsOf<UIConfig>, MSVUnitsCombinationManager&>);

static_assert(is<Get<const ConfigRepresentationManager&>>(&UIConfig::getConfigRepresentationManager));
static_assert(is<Get<ConfigRepresentation*>>(&UIConfig::getDefaultConfigRepresentation));
static_assert(is<Get<const QList<QString>&>>(&UIConfig::getSkippedTasks));
static_assert(is<Get<const Palette&>>(&UIConfig::getCustomColors));
static_assert(is<Get<bool, const QString&, QColor&>>(&UIConfig::getDefaultColor));
static_assert(is<Get<const Columns&>>(&UIConfig::getSummaryTablePerStepColumns));
static_assert(is<Get<const Columns&>>(&UIConfig::getSummaryTablePerCycleColumns));
static_assert(is<Get<const Columns&>>(&UIConfig::getSummaryTablePerLoopColumns));
static_assert(is<Get<const Columns&>>(&UIConfig::getDQdUColumns));
static_assert(is<Get<const DQdUAnalysisItem&>>(&UIConfig::getDQdUItem));
static_assert(is<Get<const QList<StatisticsItem>&>>(&UIConfig::getStatsGraph));
static_assert(is<Get<StatisticsItem, const QString&>>(&UIConfig::getStatGraphFromTitle));
static_assert(is<Get<const QList<RagonePlotItem>&>>(&UIConfig::getRagonePlotGraph));
static_assert(is<Get<RagonePlotItem, const QString&>>(&UIConfig::getRagonePlotGraphFromTitle));
static_assert(is<Get<const QList<ProcessedDataItem>&>>(&UIConfig::getProcessedDataGraph));
static_assert(is<Get<ProcessedDataItem, const QString&>>(&UIConfig::getProcessedDataGraphFromTitle));
static_assert(is<Get<const QList<RecipeConfigItem>&>>(&UIConfig::getRecipeGraphCombinationsList));
static_assert(is<Get<const QList<RecipeConfigItem>&>>(&UIConfig::getRecipeToolsGraphsList));
static_assert(is<Get<const QList<RecipeConfigItem>&>>(&UIConfig::getRecipeToolsTablesList));
static_assert(is<Get<Formulas, const QString&>>(&UIConfig::getAxisFormulaConfigByName), "a copy");
static_assert(is<Get<bool>>(&UIConfig::importDialogShowClIds));
static_assert(is<Get<bool>>(&UIConfig::saveImportedParquetFiles));
static_assert(is<Get<bool>>(&UIConfig::saveZFitInputData));

// Files and preferences.

static_assert(is<Get<QString>>(&UIConfig::csvFileNameFilter));
static_assert(is<Get<QString>>(&UIConfig::mprFileNameFilter));
static_assert(is<Do<QString>>(&UIConfig::getDefaultAppDirectory), "neither static nor const");
static_assert(is<Get<const QString&>>(&UIConfig::getLastDirectoryBoard));
static_assert(is<Get<const QString&>>(&UIConfig::getLastDirectoryImport));
static_assert(is<Get<const QString&>>(&UIConfig::getLastDirectoryExport));
static_assert(is<Get<const QString&>>(&UIConfig::getLastDirectoryRecipe));
static_assert(is<Do<QString>>(&UIConfig::getLastImportedFileFilter), "a copy, and not const");
static_assert(is<Do<void, const QString&>>(&UIConfig::setLastDirectoryBoard));
static_assert(is<Do<void, const QString&>>(&UIConfig::setLastDirectoryImport));
static_assert(is<Do<void, const QString&>>(&UIConfig::setLastDirectoryExport));
static_assert(is<Do<void, const QString&>>(&UIConfig::setLastDirectoryRecipe));
static_assert(is<Do<void, const QString&>>(&UIConfig::setLastImportedFileFilter));
static_assert(is<Get<const UIConfig::RenderingConfiguration&>>(&UIConfig::getRenderingConfiguration));
static_assert(is<Do<void, const UIConfig::RenderingConfiguration&>>(&UIConfig::setRenderingConfiguration));
static_assert(is<Get<bool>>(&UIConfig::isRefreshDataConfirmDialogDisplay));
static_assert(is<Get<bool>>(&UIConfig::isRemoveDataConfirmDialogDisplay));
static_assert(is<Get<bool>>(&UIConfig::isDUTTypeEditionConfirmDialogDisplay));
static_assert(is<Get<bool>>(&UIConfig::showStickersFrequency));
static_assert(is<Do<void, bool>>(&UIConfig::setRefreshDataConfirmDialogDisplay));
static_assert(is<Do<void, bool>>(&UIConfig::setRemoveDataConfirmDialogDisplay));
static_assert(is<Do<void, bool>>(&UIConfig::setDUTTypeEditionConfirmDialogDisplay));
static_assert(is<Do<void, bool>>(&UIConfig::setShowStickersFrequency));

using Rendering = UIConfig::RenderingConfiguration;
static_assert(std::is_trivially_copyable_v<Rendering> && std::is_standard_layout_v<Rendering>);
static_assert(is<quint32 Rendering::*>(&Rendering::maxNumberPointsInput));
static_assert(is<quint32 Rendering::*>(&Rendering::minNumberPointsInput));
static_assert(is<quint32 Rendering::*>(&Rendering::targetNumberPointsInput));
static_assert(is<bool Rendering::*>(&Rendering::markerVisibilityThresholdEnable));
static_assert(is<qint32 Rendering::*>(&Rendering::markerVisibilityThresholdValue));
static_assert(is<qint32 Rendering::*>(&Rendering::lineWidth));

// Representations.

using Record = ConfigRepresentation;
static_assert(!std::is_polymorphic_v<Record>);
static_assert(std::is_constructible_v<Record, QString, QString, QString, QString, QString, bool>);
static_assert(!std::is_default_constructible_v<Record>);
static_assert(std::is_copy_constructible_v<Record> && std::is_copy_assignable_v<Record>);
static_assert(std::is_nothrow_move_constructible_v<Record> && std::is_nothrow_move_assignable_v<Record>);
static_assert(is<Const<Record, const QString&>>(&Record::name));
static_assert(is<Const<Record, const QString&>>(&Record::x));
static_assert(is<Const<Record, const QString&>>(&Record::y1));
static_assert(is<Const<Record, const QString&>>(&Record::y2));
static_assert(is<Const<Record, const QString&>>(&Record::category));
static_assert(is<Const<Record, bool>>(&Record::isDefault));

using Records = ConfigRepresentationManager;
static_assert(!std::is_polymorphic_v<Records>);
static_assert(is<Changing<Records, void, ConfigRepresentation*>>(&Records::append));
static_assert(is<Changing<Records, void>>(&Records::deleteAllAndClear));
static_assert(is<Const<Records, QList<ConfigRepresentation*>>>(&Records::getConfigRepresentationList), "a copy");
static_assert(is<Const<Records, ConfigRepresentation*, const QString&, const QString&, const QString&>>(
    &Records::getConfigRepresentationFromAxis));
static_assert(is<Const<Records, ConfigRepresentation*, const QString&>>(&Records::getConfigRepresentationFromName));
static_assert(is<Const<Records, ConfigRepresentation*>>(&Records::getDefaultConfigRepresentation));

static_assert(!std::is_polymorphic_v<Representation> && !std::is_default_constructible_v<Representation>);
static_assert(!std::is_copy_constructible_v<Representation> && !std::is_copy_assignable_v<Representation>);
static_assert(std::is_nothrow_move_constructible_v<Representation>);
static_assert(std::is_nothrow_move_assignable_v<Representation>);
static_assert(is<Const<Representation, ConfigRepresentation*>>(&Representation::getConfig));

// Units.

using Combination = MSVUnitsCombination;
static_assert(std::has_virtual_destructor_v<Combination>);
static_assert(is<Const<Combination, const PhysicalParameter&>>(&Combination::getPhysicalParameter));
static_assert(is<Const<Combination, const UsualUnitOperator&>>(&Combination::getOperator));
static_assert(is<Const<Combination, const QList<PhysicalParameter>&>>(&Combination::getMultiParamsList));
static_assert(is<Changing<Combination, void, const PhysicalParameter&>>(&Combination::setPhysicalParameter));
static_assert(is<Changing<Combination, void, const UsualUnitOperator&>>(&Combination::setOperator));
static_assert(is<Changing<Combination, void, const PhysicalParameter&>>(&Combination::addMultiParamToList));
static_assert(
    is<Changing<Combination, bool, const QJsonObject&, int, cl::archive::ArchiveContext&>>(&Combination::read));
static_assert(is<Const<Combination, bool, QJsonObject&, int, cl::archive::ArchiveContext&>>(&Combination::write));

using Combinations = MSVUnitsCombinationManager;
static_assert(std::has_virtual_destructor_v<Combinations>);
static_assert(is<Changing<Combinations, void, MSVUnitsCombination*>>(&Combinations::append));
static_assert(is<Changing<Combinations, void>>(&Combinations::deleteAllAndClear));
static_assert(
    is<Changing<Combinations, const QList<MSVUnitsCombination*>&>>(&Combinations::getMSVUnitsCombinationsList));
static_assert(is<Const<Combinations, const MSVUnitsCombination*, const PhysicalParameter&>>(
    &Combinations::getMSVUnitsCombinationsFromParam));

static_assert(std::is_empty_v<UIFilteredUnits> && std::is_default_constructible_v<UIFilteredUnits>);
static_assert(std::is_copy_assignable_v<UIFilteredUnits>);
static_assert(
    is<Static<QList<cl::datastorage::UsualUnit>, const PhysicalParameter&>>(&UIFilteredUnits::getFilteredUnits));

// Recipes.

using Entry = RecipeConfigItem;
static_assert(std::has_virtual_destructor_v<Entry>);
static_assert(std::is_copy_constructible_v<Entry> && std::is_copy_assignable_v<Entry>);
static_assert(is<Changing<Entry, void, const QString&>>(&Entry::addParameter));
static_assert(is<Const<Entry, QString, int>>(&Entry::getParameter), "a copy");
static_assert(is<Const<Entry, const QString&>>(&Entry::getType));
static_assert(is<Const<Entry, const QString&>>(&Entry::getUITitle));
static_assert(is<Changing<Entry, void, const QString&>>(&Entry::setType));
static_assert(is<Changing<Entry, void, const QString&>>(&Entry::setUiTitle), "not setUITitle");

} // namespace
