#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace cluiedit {

/// What the command line asks for.
struct CommandLine
{
    QString document; ///< empty: the shipped one
    QStringList data;
    QString catalogue; ///< empty: the shipped one
    QString screenshot; ///< empty: none
    QString tab; ///< in view at the start, by its English name; empty: the first one
    QString representation; ///< plotted at the start; empty: the document's default
    std::optional<QSize> size; ///< of the window
};

/// Takes the command line apart. Nothing when there is no more to do than what it has printed: help, the version, or
/// what is wrong with the command line; \p exitCode is set then.
std::optional<CommandLine> parse(int argc, const char* const* argv, int& exitCode);

} // namespace cluiedit
