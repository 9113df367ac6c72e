#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// Makes queries and candidates that are likely to show a difference between two ways of scoring them: few different
/// letters, so that there are many ways to place a query, in between every byte from 0 to 255; commas, word gaps and
/// changes of case everywhere; lengths around the limits of 16, 64, 80, 128, 200, 256 and 512 bytes.
class GeneratedTexts
{
public:
    explicit GeneratedTexts(std::uint64_t seed)
        : m_random(seed)
    {
    }

    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }

    /// A query of 0 to \p longest bytes. Fixes the letters that the candidates for it are made of.
    std::string query(std::size_t longest);

    /// A text that often, but not always, contains \p query.
    std::string candidate(const std::string& query);

    /// Any text of \p length bytes, of the letters of the last query.
    std::string text(std::size_t length);

private:
    std::size_t length();

    std::mt19937_64 m_random;
    std::string m_letters;
};
