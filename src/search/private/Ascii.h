#pragma once

#include <array>
#include <string>
#include <string_view>

/// \file Ascii.h
/// Letters and their case as the "C" locale knows them, whatever locale the process has chosen: 'A' to 'Z' and 'a' to
/// 'z' are letters, no other byte is. A ranking must not depend on the machine's language settings.

namespace search {

constexpr bool isUpper(unsigned char byte)
{
    return byte >= 'A' && byte <= 'Z';
}
constexpr bool isLower(unsigned char byte)
{
    return byte >= 'a' && byte <= 'z';
}

/// A letter that follows one of these starts a word.
constexpr bool isWordGap(unsigned char byte)
{
    return byte == '_' || byte == ' ';
}

inline constexpr std::array<unsigned char, 256> LowerCase = [] {
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        const auto value = static_cast<unsigned char>(byte);
        table[byte] = isUpper(value) ? static_cast<unsigned char>(value - 'A' + 'a') : value;
    }
    return table;
}();

constexpr unsigned char toLower(char c)
{
    return LowerCase[static_cast<unsigned char>(c)];
}

inline std::string toLower(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower) {
        c = static_cast<char>(toLower(c));
    }
    return lower;
}

} // namespace search
