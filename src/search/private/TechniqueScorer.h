#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace search {

/// Scores many texts against one query, with the results of TechniqueSearchStrategy::fuzzyMatchIterativeTechnique.
///
/// That function weighs one path for every place of the query; this one only for every run of consecutive letters,
/// since a path that is cut inside a run is never the best one. Where that does not hold (the prefix bonus is within
/// reach, or the lengths are such that 32 bits might not do) it asks the other.
class TechniqueScorer
{
public:
    /// REQUIRES: the bytes behind \p query outlive the scorer.
    explicit TechniqueScorer(std::string_view query);

    /// The score of \p text, or nothing if it lacks the query.
    std::optional<int> score(std::string_view text) const;

private:
    std::string_view m_query;
    std::string m_letters; // the query in lower case
    std::vector<int> m_gapsBefore; // for each place of the query, how many word gaps the query has before it
};

} // namespace search
