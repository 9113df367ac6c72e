#pragma once

#include <base/DocumentKeys.h>
#include <config/Configuration.h>

/// \file SharedReaders.h
/// What the readers of several sections have in common.

namespace uiconfig {

/// Appends the arrays that \p names names in one category, null for those that the catalogue does not know.
void appendColumns(const QJsonArray& names, const QString& category, const Catalogue& catalogue, Columns& columns);

/// Appends the graphs of a section whose members are graphs, each under its title, in the order of the titles.
template <typename Graph>
void appendTitledGraphs(const QJsonObject& section, QList<Graph>& graphs)
{
    for (auto it = section.begin(); it != section.end(); ++it) {
        graphs.emplaceBack().readGraphItem(it.key(), section);
    }
}

} // namespace uiconfig
