#pragma once

#include <clconfigui_export.h>
#include <search/AFuzzyFinderStrategy.h>
#include <search/FuzzyMatch.h>

#include <optional>
#include <span>
#include <string_view>

/// Ranks technique names, typically "long name, short name, alias".
///
/// A candidate matches if it contains the bytes of the query in their order, not necessarily next to each other. Upper
/// and lower case of ASCII letters are the same; every other byte, NUL included, equals itself only. Runs of letters
/// that follow each other score by the square of their length, letters that start a word score, gaps cost a little.
/// docs/search.md explains the scoring with worked examples.
///
/// An empty query matches every candidate. The cost is linear in the lengths of query and candidate, and a candidate
/// that does not match costs the same for every query.
class CLCONFIGUI_EXPORT TechniqueSearchStrategy : public AFuzzyFinderStrategy
{
public:
    std::vector<std::size_t> applyAlgorithm(const std::string& query,
                                            const std::vector<std::string>& candidates) const override;

    /// The same ranking with the scores, for callers whose texts lie in a buffer of their own.
    static std::vector<FuzzyMatch> rank(std::string_view query, std::span<const std::string_view> candidates);

    /// Returns the score of the query \p pattern against the candidate \p str, or nothing when it does not match.
    /// Scores are 32-bit and wrap: a run of more than about 12,000 letters can come out negative.
    static std::optional<int> fuzzyMatchIterativeTechnique(std::string_view pattern, std::string_view str);

private:
    /// The score of one path: \p matches holds the positions in \p str of the first \p matchCount bytes of \p pattern.
    /// REQUIRES: every position is below the length of str, and matchCount is at most that length.
    static int calculateScore(std::string_view str, const std::size_t* matches, int matchCount,
                              std::string_view pattern);
};
