#pragma once

#include <QLatin1StringView>

#include <array>

/// \file DocumentKeys.h
/// The words of the configuration document, each once: the keys, and the texts that mean something where they stand.

namespace uiconfig::keys {

/// \{
/// A key of the root. The sections stand in the order in which they are read.
inline constexpr QLatin1StringView Version{"Version"};
inline constexpr QLatin1StringView AxesCombinations{"Axes combinations"};
inline constexpr QLatin1StringView Representations{"Representations"};
inline constexpr QLatin1StringView MSVUnits{"MSVUnits"};
inline constexpr QLatin1StringView Filters{"Filters"};
inline constexpr QLatin1StringView Tools{"Tools"};
inline constexpr QLatin1StringView Colors{"Colors"};
inline constexpr QLatin1StringView Statistics{"Statistics"};
inline constexpr QLatin1StringView RagonePlot{"Ragone Plot"};
inline constexpr QLatin1StringView ProcessedData{"Processed Data"};
inline constexpr QLatin1StringView Recipe{"Recipe"};
inline constexpr QLatin1StringView ProcessFormula{"Process Formula"};
inline constexpr QLatin1StringView DQdU{"dQ_dU"};
inline constexpr QLatin1StringView Debug{"Debug"};
/// \}

/// \{
/// A key of several sections: a name, or a data array of a plot.
inline constexpr QLatin1StringView Name{"Name"};
inline constexpr QLatin1StringView Title{"Title"};
inline constexpr QLatin1StringView Category{"Category"};
inline constexpr QLatin1StringView Type{"Type"};
inline constexpr QLatin1StringView X{"X"};
inline constexpr QLatin1StringView Y{"Y"};
inline constexpr QLatin1StringView Y1{"Y1"};
inline constexpr QLatin1StringView Y2{"Y2"};
/// \}

/// \{
/// A word of the section "Axes combinations".
inline constexpr QLatin1StringView Y1Y2{"Y1/Y2"};
inline constexpr QLatin1StringView ScaleX{"DEFAULT_SCALE_X"};
inline constexpr QLatin1StringView ScaleY{"DEFAULT_SCALE_Y"};
inline constexpr QLatin1StringView Orthonormal{"ORTHONORMAL_AXIS"};
inline constexpr QLatin1StringView LinearWord{"LINEAR"};
inline constexpr QLatin1StringView TrueWord{"TRUE"};
/// \}

/// \{
/// A word of the section "Representations".
inline constexpr QLatin1StringView Default{"Default"};
/// \}

/// \{
/// A word of the section "MSVUnits".
inline constexpr QLatin1StringView PhysicalParameter{"PhysicalParameter"};
inline constexpr QLatin1StringView Operator{"Operator"};
inline constexpr QLatin1StringView MultiParams{"MultiParams"};
/// \}

/// \{
/// A word of the section "Filters".
inline constexpr QLatin1StringView Tasks{"Tasks"};
inline constexpr QLatin1StringView Skipped{"Skipped"};
/// \}

/// \{
/// A word of the section "Tools".
inline constexpr QLatin1StringView SummaryTable{"Summary Table"};
inline constexpr QLatin1StringView PerStep{"Per step"};
inline constexpr QLatin1StringView PerCycle{"Per cycle"};
inline constexpr QLatin1StringView PerLoop{"Per loop"};
inline constexpr std::array SummaryTableKinds{PerStep, PerCycle, PerLoop}; // in the order in which they are read
/// \}

/// \{
/// A word of the section "Colors".
inline constexpr QLatin1StringView CustomColors{"Custom colors"};
inline constexpr QLatin1StringView DefaultColors{"Default colors"};
inline constexpr QLatin1StringView ColorName{"name"};
inline constexpr QLatin1StringView Rgb{"RGB"};
/// \}

/// \{
/// A word of the section "Processed Data".
inline constexpr QLatin1StringView YProcessed{"Y_processed"};
/// \}

/// \{
/// A word of the section "Recipe".
inline constexpr QLatin1StringView GraphCommand{"GraphCommand"};
inline constexpr QLatin1StringView ToolSummaryCommand{"ToolSummaryCommand"};
inline constexpr QLatin1StringView ToolStatisticsCommand{"ToolStatisticsCommand"};
inline constexpr QLatin1StringView ToolProcessedDataCommand{"ToolProcessedDataCommand"};
inline constexpr std::array RecipeCommands{GraphCommand, ToolSummaryCommand, ToolStatisticsCommand,
                                           ToolProcessedDataCommand}; // in the order in which they are read
inline constexpr QLatin1StringView UITitle{"UITitle"};
inline constexpr std::array Parameters{QLatin1StringView("Param1"), QLatin1StringView("Param2"),
                                       QLatin1StringView("Param3"), QLatin1StringView("Param4"),
                                       QLatin1StringView("Param5")};
/// \}

/// \{
/// A word of the section "Process Formula".
inline constexpr QLatin1StringView XFormulas{"X Formulas"};
inline constexpr QLatin1StringView Y1Formulas{"Y1 Formulas"};
inline constexpr QLatin1StringView Y2Formulas{"Y2 Formulas"}; // any other name means the same
inline constexpr QLatin1StringView DisplayedFormula{"Displayed Formula"};
inline constexpr QLatin1StringView CompiledFormula{"Compiled Formula"};
/// \}

/// \{
/// A word of the section "dQ_dU".
inline constexpr QLatin1StringView Table{"Table"};
inline constexpr QLatin1StringView Graph{"Graph"};
/// \}

/// \{
/// A word of the section "Debug".
inline constexpr QLatin1StringView ImportDialogClIds{
    "importDialogDisplayClIds"}; // the getter says "Show"; both names are meant
inline constexpr QLatin1StringView ImportedParquetFiles{"saveImportedParquetFiles"};
inline constexpr QLatin1StringView ZFitInputData{"saveZFitInputData"};
/// \}

} // namespace uiconfig::keys
