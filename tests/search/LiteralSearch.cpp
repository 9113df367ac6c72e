#include "LiteralSearch.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <map>
#include <stack>

namespace literal {

namespace {

int lower(char c)
{
    return std::tolower(static_cast<unsigned char>(c));
}
bool isLower(char c)
{
    return std::islower(static_cast<unsigned char>(c)) != 0;
}
bool isUpper(char c)
{
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}

/// 32-bit signed arithmetic that wraps instead of overflowing.
class Score
{
public:
    void add(std::uint64_t points) { m_value += static_cast<std::uint32_t>(points); }
    void subtract(std::uint64_t points) { m_value -= static_cast<std::uint32_t>(points); }
    int value() const { return static_cast<int>(m_value); }

private:
    std::uint32_t m_value = 0;
};

constexpr std::size_t MatchCapacity = 256;
constexpr int RecursionLimit = 10;
using Matches = std::array<std::uint8_t, MatchCapacity>;

int textPathScore(const char* textStart, const Matches& matches, std::size_t count)
{
    Score score;
    score.add(100);

    int penalty = -5 * matches[0];
    if (penalty < -15) {
        penalty = -15;
    }
    score.subtract(static_cast<std::uint64_t>(-penalty));

    score.subtract(std::strlen(textStart) - count);

    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t current = matches[i];
        if (i > 0) {
            const std::uint8_t previous = matches[i - 1];
            if (current == previous + 1) {
                score.add(15);
            }
        }
        if (current == 0) {
            score.add(15);
        } else {
            const char neighbour = textStart[current - 1];
            if (isLower(neighbour) && isUpper(textStart[current])) {
                score.add(30);
            }
            if (neighbour == '_' || neighbour == ' ') {
                score.add(30);
            }
        }
    }
    return score.value();
}

bool textMatch(const char* pattern, const char* text, const char* textStart, const Matches* found, Matches& matches,
               std::size_t capacity, std::size_t nextMatch, int& recursions, int& outScore)
{
    ++recursions;
    if (recursions >= RecursionLimit) {
        return false;
    }
    if (*pattern == '\0' || *text == '\0') {
        return false;
    }

    bool recursiveMatch = false;
    Matches bestRecursive{};
    int bestRecursiveScore = 0;

    bool firstMatch = true;
    while (*pattern != '\0' && *text != '\0') {
        if (lower(*pattern) == lower(*text)) {
            if (nextMatch >= capacity) {
                return false;
            }
            if (firstMatch && found != nullptr) {
                matches = *found;
                firstMatch = false;
            }

            const Matches current = matches;
            Matches fresh{};
            int score = 0;
            if (textMatch(pattern, text + 1, textStart, &current, fresh, capacity, nextMatch, recursions, score)) {
                if (!recursiveMatch || score > bestRecursiveScore) {
                    bestRecursive = fresh;
                    bestRecursiveScore = score;
                }
                recursiveMatch = true;
            }

            matches[nextMatch] = static_cast<std::uint8_t>(text - textStart);
            ++nextMatch;
            ++pattern;
        }
        ++text;
    }

    const bool matched = *pattern == '\0';
    if (matched) {
        outScore = textPathScore(textStart, matches, nextMatch);
    }
    if (recursiveMatch && (!matched || bestRecursiveScore > outScore)) {
        matches = bestRecursive;
        outScore = bestRecursiveScore;
        return true;
    }
    return matched;
}

struct State
{
    std::size_t queryPosition;
    std::size_t candidatePosition;
    int count;
};

} // namespace

std::optional<int> textScore(const std::string& query, const std::string& candidate)
{
    Matches matches{};
    int recursions = 0;
    int score = 0;
    const char* text = candidate.c_str();
    if (!textMatch(query.c_str(), text, text, nullptr, matches, MatchCapacity, 0, recursions, score)) {
        return std::nullopt;
    }
    return score;
}

int techniquePathScore(std::string_view candidate, const std::vector<std::size_t>& matches, std::string_view query)
{
    const std::size_t count = matches.size();
    const auto follows = [&](std::size_t i) { return matches[i] == matches[i - 1] + 1; };
    const auto followsAsInt = [&](std::size_t i) {
        const auto next = static_cast<std::int32_t>(static_cast<std::uint32_t>(matches[i - 1]) + 1);
        return matches[i] == static_cast<std::size_t>(next);
    };

    const std::size_t firstComma = candidate.find(',');
    const std::size_t secondComma =
        firstComma == std::string_view::npos ? std::string_view::npos : candidate.find(',', firstComma + 1);
    const std::string_view piece1 = candidate.substr(0, firstComma);
    std::string_view piece2 = candidate;
    if (firstComma != std::string_view::npos) {
        piece2 = candidate.substr(firstComma + 1,
                                  secondComma == std::string_view::npos ? std::string_view::npos
                                                                        : secondComma - firstComma - 1);
    }
    const std::string_view piece3 =
        secondComma == std::string_view::npos ? candidate : candidate.substr(secondComma + 1);

    Score score;
    for (std::size_t i = 1; i < count; ++i) {
        if (!followsAsInt(i)) {
            score.subtract(2);
        }
    }

    score.add(100);

    bool prefix = true;
    for (std::size_t i = 0; i < count; ++i) {
        if (lower(candidate[i]) != lower(candidate[matches[i]])) {
            prefix = false;
        }
    }
    if (prefix && count == query.size()) {
        score.add(50);
    }

    if (count > 1) {
        std::uint64_t run = 1;
        for (std::size_t i = 1; i < count; ++i) {
            if (follows(i)) {
                ++run;
            } else {
                score.add(15 * run * run);
                run = 1;
            }
        }
        score.add(15 * run * run);
    } else {
        score.add(15);
    }

    for (std::size_t i = 0; i < count; ++i) {
        if (matches[i] == 0) {
            score.add(15);
        } else if (candidate[matches[i] - 1] == '_' || candidate[matches[i] - 1] == ' ') {
            score.add(30);
        }
    }

    if (candidate.find(piece1) != std::string_view::npos) {
        score.add(100);
    }
    if (candidate.find(piece2) != std::string_view::npos) {
        score.add(75);
    }
    if (candidate.find(piece3) != std::string_view::npos) {
        score.add(50);
    }

    if (candidate.size() < 200) {
        score.subtract(15);
    }
    return score.value();
}

std::vector<std::vector<std::size_t>> techniquePaths(std::string_view query, std::string_view candidate)
{
    const std::size_t n = query.size();
    const std::vector<std::size_t> zeros(n, 0);
    std::vector<std::vector<std::size_t>> paths;

    std::stack<State> states;
    states.push({0, 0, 0});
    while (!states.empty()) {
        auto [p, s, c] = states.top();
        states.pop();

        std::vector<std::size_t> current(n);
        std::copy_n(zeros.begin(), c, current.begin());
        while (p < n && s < candidate.size()) {
            if (lower(candidate[s]) == lower(query[p])) {
                current[static_cast<std::size_t>(c)] = s;
                ++c;
                ++p;
                states.push({p, s + 1, c});
            }
            ++s;
        }
        if (p == n) {
            paths.push_back(current);
        }
    }
    return paths;
}

std::optional<int> techniqueScore(std::string_view query, std::string_view candidate)
{
    int bestScore = 0;
    bool found = false;
    for (const std::vector<std::size_t>& path : techniquePaths(query, candidate)) {
        const int score = techniquePathScore(candidate, path, query);
        if (!found || score > bestScore) {
            bestScore = score;
            found = true;
        }
    }
    return found ? std::optional<int>(bestScore) : std::nullopt;
}

std::vector<std::size_t> ranking(const std::vector<std::optional<int>>& scores)
{
    std::multimap<int, std::size_t> byScore; // a new entry goes behind those with an equal score
    for (std::size_t i = 0; i < scores.size(); ++i) {
        if (scores[i]) {
            byScore.emplace(*scores[i], i);
        }
    }
    std::vector<std::size_t> indices;
    indices.reserve(byScore.size());
    for (const auto& [score, index] : byScore) {
        indices.push_back(index);
    }
    std::reverse(indices.begin(), indices.end());
    return indices;
}

} // namespace literal
