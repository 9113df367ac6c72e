#pragma once

#include <clconfigui_export.h>
#include <search/AFuzzyFinderStrategy.h>
#include <search/FuzzyMatch.h>

#include <span>
#include <string_view>

/// Ranks general text: file names, labels, sentences.
///
/// A candidate matches if it contains the bytes of the query in their order, not necessarily next to each other. Upper
/// and lower case of ASCII letters are the same; every other byte equals itself only. Letters that follow each other
/// and letters that start a word score, a late start and every byte left over cost; of the ways to place the query
/// a bounded number is tried and the best one counts. docs/search.md explains the scoring with worked examples.
///
/// A NUL ends the query and a candidate. An empty query matches nothing, and so does one of more than 256 bytes.
class CLCONFIGUI_EXPORT FtsStrategy : public AFuzzyFinderStrategy
{
public:
    std::vector<std::size_t> applyAlgorithm(const std::string& query,
                                            const std::vector<std::string>& candidates) const override;

    /// The same ranking with the scores, for callers whose texts lie in a buffer of their own.
    static std::vector<FuzzyMatch> rank(std::string_view query, std::span<const std::string_view> candidates);
};
