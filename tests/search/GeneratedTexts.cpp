#include "GeneratedTexts.h"

#include <algorithm>
#include <array>
#include <string_view>

using namespace std::string_view_literals;

namespace {

std::string everyByte()
{
    std::string bytes(256, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i);
    }
    return bytes;
}

} // namespace

std::string GeneratedTexts::query(std::size_t longest)
{
    static const std::string anyByte = everyByte();
    static const std::array alphabets = {"ab"sv,
                                         "aA_ ,"sv,
                                         "a"sv,
                                         "abcABC_ ,"sv,
                                         "etaoin shrdlu,_CV"sv,
                                         "aA\0\x80\xFF"sv,
                                         "aA, _z"sv,
                                         std::string_view(anyByte)};
    m_letters = alphabets[below(alphabets.size())];
    return text(below(longest + 1));
}

std::string GeneratedTexts::candidate(const std::string& query)
{
    if (below(3) == 0) {
        return text(length());
    }
    // The query in pieces, with other text around them.
    const std::size_t widestGap = std::array<std::size_t, 4>{1, 3, 8, 30}[below(4)];
    std::string result = text(below(2) == 0 ? below(4) : length() / 2);
    for (const char letter : query) {
        if (below(2) == 0) {
            result += text(below(widestGap));
        }
        result += letter;
    }
    return result + text(below(2) == 0 ? below(4) : length() / 2);
}

std::string GeneratedTexts::text(std::size_t length)
{
    std::string result;
    result.reserve(length);
    while (result.size() < length) {
        result += m_letters[below(m_letters.size())];
    }
    return result;
}

std::size_t GeneratedTexts::length()
{
    static constexpr std::array<std::size_t, 8> Limits = {16, 64, 80, 128, 200, 256, 512, 600};
    const std::size_t kind = below(16);
    if (kind < 7) {
        return below(20);
    }
    if (kind < 12) {
        return below(90);
    }
    if (kind < 15) {
        return Limits[below(Limits.size())] - 2 + below(5);
    }
    return below(700);
}
