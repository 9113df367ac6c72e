#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// \file Candidates.h
/// The names and queries that the search is measured on. Generated names follow from a fixed seed, so two runs, and two
/// machines, measure the same work. Real names are those of the machine: another one has others, but of the same kind.

namespace bench {

enum class NameKind {
    Technique, ///< "Slow cyclic voltammetry step 12 of the ageing protocol, CV_12, sweep", generated
    Path, ///< "/data/battery/projects/lfp/cells/A0173/cycling/CV_12.csv", generated
    RealPath, ///< the files below /usr
    Identifier ///< the identifiers in the headers below /usr/include
};

/// What a query is for.
enum class QueryKind {
    RareLetter, ///< under 5 % of the names match: it has a letter that few names have
    RareOrder, ///< under 5 % of the names match, though most names have all its letters, or most of them
    Middling, ///< between those
    Unselective ///< over 80 % of the names match
};

struct Query
{
    QueryKind kind;
    std::string_view text;
};

/// The kinds of names there are, and what they are called.
struct NameList
{
    NameKind kind;
    const char* name;
};
inline constexpr std::array<NameList, 4> NameLists = {{{NameKind::Technique, "technique"},
                                                       {NameKind::Path, "path"},
                                                       {NameKind::RealPath, "real path"},
                                                       {NameKind::Identifier, "identifier"}}};

/// \p count names of 6 to 80 bytes. Of real names an even sample, in the order of bytes; where there are not so many,
/// all of them again and again.
std::vector<std::string> makeNames(NameKind kind, std::size_t count);

/// The queries for names of \p kind, by kind and then by length.
std::vector<Query> queriesFor(NameKind kind);

} // namespace bench
