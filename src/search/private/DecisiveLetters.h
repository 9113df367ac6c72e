#pragma once

#include <span>
#include <string>
#include <string_view>

namespace search {

/// Those letters of \p query, a few and in their order, whose lack rejects most of \p sample that the whole query would
/// reject. Every text that contains the query contains them. Texts of 4 to 128 bytes are looked at; if there are none,
/// the first letters are given.
std::string decisiveLetters(std::string_view query, std::span<const std::string_view> sample);

} // namespace search
