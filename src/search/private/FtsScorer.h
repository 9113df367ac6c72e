#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace search {

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
    std::string m_letters; // the query in lower case
};

} // namespace search
