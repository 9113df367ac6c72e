// How the two strategies rank the shipped names of techniques: the table of docs/search.md.

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/TechniqueSearchStrategy.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

std::vector<std::string> linesOf(const std::string& path)
{
    std::ifstream file(CLCONFIGUI_SOURCE_DIR "/" + path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

const std::vector<std::string>& names()
{
    static const std::vector<std::string> lines = linesOf("data/techniques.txt");
    return lines;
}

/// One of the long name, the short name and the alias, as somebody types it.
std::string piece(const std::string& name, int number)
{
    std::istringstream pieces(name);
    std::string result;
    for (int i = 0; i <= number; ++i) {
        std::getline(pieces >> std::ws, result, ',');
    }
    std::transform(result.begin(), result.end(), result.begin(), [](unsigned char c) { return std::tolower(c); });
    return result;
}

std::string fourLettersAWord(const std::string& name)
{
    std::istringstream words(piece(name, 0));
    std::string result;
    for (std::string word; words >> word;) {
        result.append(result.empty() ? "" : " ").append(word, 0, 4);
    }
    return result;
}

/// On which place the name number \p wanted is among those that match \p query, counted from 1; 0 if it is not there.
template <typename Strategy>
std::ptrdiff_t place(const std::string& query, std::size_t wanted)
{
    const auto found = FuzzyFinder::search(query, names(), -1, std::make_unique<Strategy>());
    const auto position = std::find(found.begin(), found.end(), wanted);
    return position == found.end() ? 0 : position - found.begin() + 1;
}

/// How many names come first, and how many among the first three, when what \p typed makes of each is searched.
template <typename Strategy, typename Typed>
std::string cell(Typed typed)
{
    int first = 0;
    int amongThree = 0;
    for (std::size_t i = 0; i < names().size(); ++i) {
        const std::ptrdiff_t at = place<Strategy>(typed(names()[i]), i);
        first += at == 1 ? 1 : 0;
        amongThree += at >= 1 && at <= 3 ? 1 : 0;
    }
    return std::to_string(first) + " (" + std::to_string(amongThree) + ")";
}

/// The row of the table without the blanks that align it.
template <typename Typed>
std::string row(const std::string& what, Typed typed)
{
    return "|" + what + ": `" + typed(names().front()) + "`|" + cell<TechniqueSearchStrategy>(typed) + "|"
        + cell<FtsStrategy>(typed) + "|";
}

std::string withoutAlignment(const std::string& line)
{
    std::string result;
    for (const char c : line) {
        if (c == '|') {
            result.resize(result.find_last_not_of(' ') + 1);
        }
        if (c != ' ' || (!result.empty() && result.back() != '|')) {
            result += c;
        }
    }
    return result;
}

TEST(ShippedNames, TableOfThePageIsTrue)
{
    ASSERT_THAT(names(), testing::SizeIs(101));
    std::vector<std::string> page = linesOf("docs/search.md");
    std::transform(page.begin(), page.end(), page.begin(), withoutAlignment);

    const auto piecesOf = [](int number) { return [number](const std::string& name) { return piece(name, number); }; };
    const auto sixLetters = [](const std::string& name) { return piece(name, 0).substr(0, 6); };
    EXPECT_THAT(page, testing::Contains(row("the abbreviation", piecesOf(1))));
    EXPECT_THAT(page, testing::Contains(row("the alias", piecesOf(2))));
    EXPECT_THAT(page, testing::Contains(row("the long name", piecesOf(0))));
    EXPECT_THAT(page, testing::Contains(row("its first six letters", sixLetters)));
    EXPECT_THAT(page, testing::Contains(row("four letters a word", fourLettersAWord)));
}

TEST(ShippedNames, AbbreviationOfTheOpenCircuitVoltageIsFifthWithOneStrategyAndFirstWithTheOther)
{
    ASSERT_EQ(names().front(), "Open circuit voltage, OCV, rest potential");
    EXPECT_EQ(place<TechniqueSearchStrategy>("ocv", 0), 5);
    EXPECT_EQ(place<FtsStrategy>("ocv", 0), 1);
}

} // namespace
