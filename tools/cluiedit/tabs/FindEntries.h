#pragma once

#include <cluiedit/reading/Snapshot.h>
#include <search/NarrowingSearch.h>

#include <QList>
#include <QString>

#include <vector>

/// \file FindEntries.h
/// What somebody may look for by its name.

namespace cluiedit {

enum class FindKind { Array, Representation, Color, Graph, RecipeEntry, Section };

/// What people call \p kind: "Data array".
QString kindName(FindKind kind);

struct FindEntry
{
    QString text;
    FindKind kind;
    QString pointer; ///< Where it stands in the document; empty for an array that the document does not name.
};

/// Everything of the document and its catalogue that has a name: the arrays of the axes and then the others of the
/// catalogue, each name once; representations, colours, graphs, recipe entries and sections, in their order.
///
/// REQUIRES: \p snapshot loads.
QList<FindEntry> findEntries(const Snapshot& snapshot);

/// Entries as the fuzzy finder takes them, for a query that is typed.
class FindIndex
{
public:
    explicit FindIndex(const QList<FindEntry>& entries = {});

    /// The numbers of the entries that match \p query, best first; all in their order without a query. Among equally
    /// good ones the earlier comes first.
    std::vector<qsizetype> find(const QString& query);

private:
    qsizetype m_count;
    NarrowingSearch m_search; // from the last entry to the first
};

/// The places in \p text of the letters of \p query, for which it was found: those of the query as a whole where it
/// occurs, else the first that have its letters in their order. Case counts for other letters than ASCII's only. Empty
/// when there are none.
QList<qsizetype> matchedPlaces(const QString& query, const QString& text);

} // namespace cluiedit
