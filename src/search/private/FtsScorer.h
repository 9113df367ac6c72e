#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace search {

/// What the text strategy looks for when \p query is asked: it ends at a NUL. Empty if no text matches.
std::string_view ftsQuery(std::string_view query);

/// A query as FtsScorer asks it.
struct FtsQuery
{
    std::string letters; // in lower case
    std::vector<unsigned char> distinct; // each letter once
    std::vector<unsigned char> indices; // for every letter, where it stands in distinct
};

/// Scores many texts against one query by the rule of FtsStrategy.
///
/// The rule: the query is placed on its first letters in the text (the first path). Then, from the first letter of the
/// query on, other places are tried. Standing before a letter of the query, an exploration goes over all places of that
/// letter behind the place of the letter before; each of them costs one of eight branches, and the exploration goes on
/// with the next letter of the query, behind the last of these places first. When the branches are used up, what has
/// been begun is completed on the first places that follow. The best of all complete placements is the score.
class FtsScorer
{
public:
    /// REQUIRES: \p query has 1 to 256 bytes and no NUL.
    explicit FtsScorer(std::string_view query);

    /// The score of \p text up to its first NUL, or nothing if that lacks the query.
    std::optional<int> score(std::string_view text) const;

private:
    template <int Chunks>
    std::optional<int> scoreBlock(std::string_view text) const;

    FtsQuery m_query;
};

} // namespace search
