#pragma once

#include <span>
#include <string>
#include <string_view>

namespace search {

/// What to look for first in a text that may or may not contain a query.
struct DecisiveLetters
{
    /// A few letters of the query in their order, so that every text with the query has them.
    std::string letters;
    /// Whether next to no text has these and lacks the query.
    bool suffice = false;
};

/// Those letters of \p query whose lack rejects most of \p sample that the whole query would reject. Texts of 4 to 128
/// bytes are looked at; if there are none, the first letters are given.
DecisiveLetters decisiveLetters(std::string_view query, std::span<const std::string_view> sample);

} // namespace search
