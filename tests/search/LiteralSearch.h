#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// \file LiteralSearch.h
/// Both ways of scoring, said as plainly as possible: the recursion with its shared counter, the stack of resumed
/// paths. Never make these faster: they are what the library's fast versions are held against. The exploration of
/// technique names doubles with every letter of the query, so queries stay short here (about 12 letters).

namespace literal {

/// The score of one pair, nothing when the query does not match. NUL ends both texts.
std::optional<int> textScore(const std::string& query, const std::string& candidate);

/// Every complete path that the exploration of a technique name comes upon, as often and in the order it does.
std::vector<std::vector<std::size_t>> techniquePaths(std::string_view query, std::string_view candidate);

/// The score of the best of them, nothing when there are none.
std::optional<int> techniqueScore(std::string_view query, std::string_view candidate);

/// The score of one complete path: \p matches holds one position in \p candidate for each letter of \p query.
int techniquePathScore(std::string_view candidate, const std::vector<std::size_t>& matches, std::string_view query);

/// The indices of the candidates that have a score, best first.
std::vector<std::size_t> ranking(const std::vector<std::optional<int>>& scores);

} // namespace literal
