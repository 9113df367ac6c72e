#pragma once

#include <CLI/CLI.hpp>

#include <QString>

/// The subcommands of the program, each in a source file of its name. Each adds itself, its options and its help to the
/// program; its callback does the work and throws CLI::RuntimeError with the exit code when there is nothing to show.
namespace cluiconfig {

/// Exit codes: 0 is success.
constexpr int ExitRefused = 1; ///< The document is refused, or something in it fails.
constexpr int ExitCannotRun = 2; ///< The command could not do its work: wrong arguments, an unreadable file.

void addArraysCommand(CLI::App& program);
void addAxesCommand(CLI::App& program);
void addCatalogueCommand(CLI::App& program);
void addCheckCommand(CLI::App& program);
void addCheckCatalogueCommand(CLI::App& program);
void addDiffCommand(CLI::App& program);
void addFormatCommand(CLI::App& program);
void addHelpCommand(CLI::App& program);
void addSchemaCommand(CLI::App& program);
void addSearchCommand(CLI::App& program);
void addShowCommand(CLI::App& program);
void addUnitsCommand(CLI::App& program);

/// What is wrong with an argument that \p program could not place, and what may have been meant; empty where the
/// parser's own words say it.
QString wrongArgument(const CLI::App& program);

} // namespace cluiconfig
