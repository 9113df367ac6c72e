#include "BdfNumber.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <limits>

namespace cluiedit {

namespace {

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return std::ranges::equal(text, lowerCase, {},
                              [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
}

/// What is no plain number: nothing, a number with a plus sign, a truth value, or a mistake.
BdfNumber unusual(std::string_view text, bool isBoolean)
{
    using enum BdfNumber::Problem;
    if (text.empty()) {
        return {.value = std::numeric_limits<double>::quiet_NaN()};
    }
    if (isBoolean && equalsIgnoringCase(text, "true")) {
        return {.value = 1};
    }
    if (isBoolean && equalsIgnoringCase(text, "false")) {
        return {.value = 0};
    }
    text.remove_prefix(text.starts_with('+') && !text.starts_with("+-") ? 1 : 0);
    double value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    const bool isAll = result.ptr == end;
    if (result.ec == std::errc() && isAll) {
        return {.value = value};
    }
    if (result.ec == std::errc::result_out_of_range && isAll) {
        return {.problem = OutOfRange};
    }
    return {.problem = result.ec == std::errc() && !isAll && *result.ptr == ',' ? DecimalComma : NotANumber};
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    return text.substr(begin, text.find_last_not_of(" \t\r\n") + 1 - begin);
}

BdfNumber bdfNumber(std::string_view cell, bool isBoolean)
{
    double value = 0;
    const char* end = cell.data() + cell.size();
    const auto result = std::from_chars(cell.data(), end, value);
    if (result.ec == std::errc() && result.ptr == end) {
        return {.value = value};
    }
    return unusual(trimmed(cell), isBoolean);
}

} // namespace cluiedit
