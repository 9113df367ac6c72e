#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// \file Candidates.h
/// The names and queries that the search is measured on. Everything follows from a fixed seed, so two runs, and two
/// machines, measure the same work.

namespace bench {

enum class NameKind {
    Technique, ///< "Slow cyclic voltammetry step 12 of the ageing protocol, CV_12, sweep"
    Path ///< "/data/battery/projects/lfp/cells/A0173/cycling/CV_12.csv"
};

/// What a query is for.
enum class QueryKind {
    RareLetter, ///< under 5 % of the names match: it has a letter that few names have
    RareOrder, ///< under 5 % of the names match, though nearly every name has all its letters
    Unselective ///< over 80 % of the names match
};

struct Query
{
    QueryKind kind;
    std::string_view text;
};

/// \p count names of 10 to 80 bytes.
std::vector<std::string> makeNames(NameKind kind, std::size_t count);

/// The queries for names of \p kind, by kind and then by length: 1, 2, 5, 10 and 32 bytes. A single letter and a pair
/// have no order to be rare in, so RareOrder has the three longer ones only.
std::vector<Query> queriesFor(NameKind kind);

} // namespace bench
