// What callers rely on and would not notice to be gone, because their code compiles all the same: what is handed out by
// value and what by reference, what may be asked of a constant object, and what cannot be made or copied. The compiler
// checks it, so there is nothing to run. Names and arguments are checked by the tests that use them.

#include <config/ConfigRepresentation.h>
#include <config/ConfigRepresentationManager.h>
#include <config/MSVUnitsCombination.h>
#include <config/MSVUnitsCombinationManager.h>
#include <config/Representation.h>
#include <config/UIConfig.h>

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
template <typename Result>
using Static = Result (*)();

template <typename Expected, typename... Operations>
constexpr bool are(Operations... /*operations*/)
{
    return (std::is_same_v<Expected, Operations> && ...);
}

template <typename Result, typename... Arguments>
using Get = Const<UIConfig, Result, Arguments...>;

// The one object.

static_assert(std::is_convertible_v<UIConfig*, Singleton<UIConfig>*>, "a public base");
static_assert(!std::is_polymorphic_v<UIConfig>);
static_assert(!std::is_default_constructible_v<UIConfig>);
static_assert(!std::is_copy_constructible_v<UIConfig> && !std::is_copy_assignable_v<UIConfig>);
static_assert(!std::is_move_constructible_v<UIConfig> && !std::is_move_assignable_v<UIConfig>);

template <typename Config>
concept HasAnOpenReader = requires(Config config, QJsonObject root, QString error)
{
    config.readTools(root, error);
};
static_assert(!HasAnOpenReader<UIConfig>, "but for readFilters, readers are for the loader");

// Overloaded for constant and changing callers.

template <typename Config>
using AxesOf = decltype(std::declval<Config&>().getAxesCombinationManager());
template <typename Config>
using UnitsOf = decltype(std::declval<Config&>().getMSVUnitsCombinationManager());
static_assert(std::is_same_v<AxesOf<const UIConfig>, const AxesCombinationManager&>);
static_assert(std::is_same_v<AxesOf<UIConfig>, AxesCombinationManager&>);
static_assert(std::is_same_v<UnitsOf<const UIConfig>, const MSVUnitsCombinationManager&>);
static_assert(std::is_same_v<UnitsOf<UIConfig>, MSVUnitsCombinationManager&>);

// References to what the object holds: they follow it.

static_assert(are<Get<const ConfigRepresentationManager&>>(&UIConfig::getConfigRepresentationManager));
static_assert(are<Get<const QList<QString>&>>(&UIConfig::getSkippedTasks));
static_assert(are<Get<const Palette&>>(&UIConfig::getCustomColors));
static_assert(are<Get<const Columns&>>(&UIConfig::getSummaryTablePerStepColumns,
                                       &UIConfig::getSummaryTablePerCycleColumns,
                                       &UIConfig::getSummaryTablePerLoopColumns, &UIConfig::getDQdUColumns));
static_assert(are<Get<const DQdUAnalysisItem&>>(&UIConfig::getDQdUItem));
static_assert(are<Get<const QList<StatisticsItem>&>>(&UIConfig::getStatsGraph));
static_assert(are<Get<const QList<RagonePlotItem>&>>(&UIConfig::getRagonePlotGraph));
static_assert(are<Get<const QList<ProcessedDataItem>&>>(&UIConfig::getProcessedDataGraph));
static_assert(are<Get<const QList<RecipeConfigItem>&>>(&UIConfig::getRecipeGraphCombinationsList,
                                                       &UIConfig::getRecipeToolsGraphsList,
                                                       &UIConfig::getRecipeToolsTablesList));
static_assert(are<Get<const QString&>>(&UIConfig::getLastDirectoryBoard, &UIConfig::getLastDirectoryImport,
                                       &UIConfig::getLastDirectoryExport, &UIConfig::getLastDirectoryRecipe));
static_assert(are<Get<const UIConfig::RenderingConfiguration&>>(&UIConfig::getRenderingConfiguration));

// Values: they stay as they are.

static_assert(are<Get<StatisticsItem, const QString&>>(&UIConfig::getStatGraphFromTitle));
static_assert(are<Get<RagonePlotItem, const QString&>>(&UIConfig::getRagonePlotGraphFromTitle));
static_assert(are<Get<ProcessedDataItem, const QString&>>(&UIConfig::getProcessedDataGraphFromTitle));
static_assert(are<Get<Formulas, const QString&>>(&UIConfig::getAxisFormulaConfigByName));
static_assert(are<Get<QString>>(&UIConfig::csvFileNameFilter, &UIConfig::mprFileNameFilter));
static_assert(are<Changing<UIConfig, QString>>(&UIConfig::getDefaultAppDirectory, &UIConfig::getLastImportedFileFilter),
              "not const");
static_assert(are<Static<const QString>>(&UIConfig::uiConfigJson, &UIConfig::zfitConfigJson,
                                         &UIConfig::zfitConfigJsonPath),
              "constant, unlike the names of commands");
static_assert(are<Static<QString>>(&UIConfig::graphCommand, &UIConfig::toolSummaryCommand,
                                   &UIConfig::toolStatisticsCommand, &UIConfig::toolRagonePlotCommand,
                                   &UIConfig::toolProcessedDataCommand));

static_assert(are<Get<bool, const QString&, QColor&>>(&UIConfig::getDefaultColor));
static_assert(are<Get<bool>>(&UIConfig::importDialogShowClIds, &UIConfig::saveImportedParquetFiles,
                             &UIConfig::saveZFitInputData, &UIConfig::isRefreshDataConfirmDialogDisplay,
                             &UIConfig::isRemoveDataConfirmDialogDisplay,
                             &UIConfig::isDUTTypeEditionConfirmDialogDisplay, &UIConfig::showStickersFrequency));

static_assert(std::is_trivially_copyable_v<UIConfig::RenderingConfiguration>);
static_assert(std::is_standard_layout_v<UIConfig::RenderingConfiguration>);

// Representations. Lookups hand out records that callers may change.

using Record = ConfigRepresentation;
static_assert(!std::is_polymorphic_v<Record> && !std::is_default_constructible_v<Record>);
static_assert(std::is_nothrow_move_constructible_v<Record> && std::is_nothrow_move_assignable_v<Record>);
static_assert(are<Const<Record, const QString&>>(&Record::name, &Record::x, &Record::y1, &Record::y2,
                                                 &Record::category));

using Records = ConfigRepresentationManager;
static_assert(!std::is_polymorphic_v<Records>);
static_assert(are<Const<Records, QList<Record*>>>(&Records::getConfigRepresentationList), "a copy");
static_assert(are<Const<Records, Record*, const QString&>>(&Records::getConfigRepresentationFromName));
static_assert(are<Const<Records, Record*, const QString&, const QString&, const QString&>>(
    &Records::getConfigRepresentationFromAxis));
static_assert(are<Const<Records, Record*>>(&Records::getDefaultConfigRepresentation));
static_assert(are<Get<Record*>>(&UIConfig::getDefaultConfigRepresentation));

static_assert(!std::is_polymorphic_v<Representation> && !std::is_default_constructible_v<Representation>);
static_assert(!std::is_copy_constructible_v<Representation> && !std::is_copy_assignable_v<Representation>);
static_assert(std::is_nothrow_move_constructible_v<Representation>);
static_assert(std::is_nothrow_move_assignable_v<Representation>);
static_assert(are<Const<Representation, Record*>>(&Representation::getConfig));

// Compound units. Here the list is asked of a changing manager, and lookups hand out constant records.

using Combination = MSVUnitsCombination;
static_assert(std::has_virtual_destructor_v<Combination>);
static_assert(are<Const<Combination, const PhysicalParameter&>>(&Combination::getPhysicalParameter));
static_assert(are<Const<Combination, const UsualUnitOperator&>>(&Combination::getOperator));
static_assert(are<Const<Combination, const QList<PhysicalParameter>&>>(&Combination::getMultiParamsList));

using Combinations = MSVUnitsCombinationManager;
static_assert(std::has_virtual_destructor_v<Combinations>);
static_assert(are<Changing<Combinations, const QList<Combination*>&>>(&Combinations::getMSVUnitsCombinationsList));
static_assert(are<Const<Combinations, const Combination*, const PhysicalParameter&>>(
    &Combinations::getMSVUnitsCombinationsFromParam));

// Recipes.

using Entry = RecipeConfigItem;
static_assert(std::has_virtual_destructor_v<Entry>);
static_assert(are<Const<Entry, QString, int>>(&Entry::getParameter), "a copy");
static_assert(are<Const<Entry, const QString&>>(&Entry::getType, &Entry::getUITitle));

} // namespace
