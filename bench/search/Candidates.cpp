#include "Candidates.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <utility>

namespace bench {

namespace {

constexpr std::size_t ShortestName = 10;
constexpr std::size_t ShortestIdentifier = 6;
constexpr std::size_t Longest = 80;

/// A generator of our own, because the distributions of <random> differ between standard libraries.
class Dice
{
public:
    std::size_t below(std::size_t bound)
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 7;
        m_state ^= m_state << 17;
        return static_cast<std::size_t>((m_state >> 32) % bound);
    }

    template <std::size_t N>
    std::string pick(const std::array<const char*, N>& words)
    {
        return words[below(N)];
    }

    std::string digits(std::size_t count)
    {
        std::string text;
        while (text.size() < count) {
            text += static_cast<char>('0' + below(10));
        }
        return text;
    }

private:
    std::uint64_t m_state = 0x9E3779B97F4A7C15U;
};

constexpr std::array<const char*, 12> Manners = {"",      "",      "",           "",        "",        "",
                                                 "Fast ", "Slow ", "Staircase ", "Cyclic ", "Pulsed ", "Full-cell "};
constexpr std::array<const char*, 16> Methods = {
    "voltammetry",  "chronoamperometry", "potentiometry",        "impedance",
    "polarisation", "titration",         "Open Circuit Voltage", "Linear Sweep",
    "square wave",  "rate capability",   "self-discharge",       "charge",
    "discharge",    "Coulometry",        "Constant Current",     "rest"};
constexpr std::array<const char*, 12> ShortNames = {"CV",   "LSV",  "CA",  "CP",  "OCV",   "EIS",
                                                    "GITT", "PITT", "DPV", "SWV", "CC_CV", "CstC"};
constexpr std::array<const char*, 8> Aliases = {"", "", "", "", ", rest", ", sweep", ", hold", ", Cell_Test"};
constexpr std::array<const char*, 8> Volumes = {"/data", "/home/lab", "/mnt", "/srv", "D:", "", "/media/ssd", "/tmp"};
constexpr std::array<const char*, 8> Projects = {"lfp", "nmc811", "LTO", "Na_ion", "anode", "solid", "p", "Ageing"};
constexpr std::array<const char*, 6> Endings = {".csv", ".txt", ".h5", ".json", "", ".dat"};

std::string technique(Dice& dice)
{
    if (dice.below(10) == 0) {
        return dice.pick(Methods) + " " + dice.pick(ShortNames) + "_" + dice.digits(4) + dice.pick(Aliases);
    }
    const bool exotic = dice.below(40) == 0; // the only names with the letters that RareLetter queries ask for
    return dice.pick(Manners) + dice.pick(Methods) + (exotic ? " at 50 kHz" : "") + " step " + dice.digits(2)
        + " of characterisation protocol " + dice.digits(2) + ", " + dice.pick(ShortNames) + dice.pick(Aliases);
}

std::string path(Dice& dice)
{
    const std::string file = dice.pick(ShortNames) + "_" + dice.digits(3) + dice.pick(Endings);
    if (dice.below(10) == 0) {
        return dice.pick(Projects) + "_" + dice.digits(5) + "/" + file;
    }
    const bool exotic = dice.below(40) == 0;
    return dice.pick(Volumes) + "/battery/projects/" + dice.pick(Projects) + "/cells/" + (exotic ? "QX-z" : "A")
        + dice.digits(4) + "/cycling/" + file;
}

std::vector<std::string> generated(NameKind kind, std::size_t count)
{
    Dice dice;
    std::vector<std::string> names;
    names.reserve(count);
    while (names.size() < count) {
        std::string name = kind == NameKind::Technique ? technique(dice) : path(dice);
        if (name.size() >= ShortestName && name.size() <= Longest) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

/// Calls \p use with the path of every file below \p directory.
template <class Use>
void forEachFile(const char* directory, Use use)
{
    namespace fs = std::filesystem;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(directory, fs::directory_options::skip_permission_denied)) {
        if (entry.is_regular_file() && !entry.is_symlink()) {
            use(entry.path());
        }
    }
}

std::set<std::string> pathsBelow(const char* directory)
{
    std::set<std::string> paths;
    forEachFile(directory, [&paths](const std::filesystem::path& path) {
        std::string name = path.string();
        if (name.size() >= ShortestName && name.size() <= Longest) {
            paths.insert(std::move(name));
        }
    });
    return paths;
}

bool isInIdentifier(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::set<std::string> identifiersBelow(const char* directory)
{
    std::set<std::string> identifiers;
    forEachFile(directory, [&identifiers](const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        for (auto begin = text.begin(); begin != text.end();) {
            begin = std::find_if(begin, text.end(), isInIdentifier);
            const auto end = std::find_if_not(begin, text.end(), isInIdentifier);
            const auto length = static_cast<std::size_t>(end - begin);
            if (length >= ShortestIdentifier && length <= Longest && (*begin < '0' || *begin > '9')) {
                identifiers.emplace(begin, end);
            }
            begin = end;
        }
    });
    return identifiers;
}

std::vector<std::string> sampled(const std::set<std::string>& all, std::size_t count)
{
    const std::vector<std::string> names(all.begin(), all.end());
    std::vector<std::string> sample;
    sample.reserve(count);
    for (std::size_t i = 0; i < count && !names.empty(); ++i) {
        sample.push_back(names[names.size() < count ? i % names.size() : i * names.size() / count]);
    }
    return sample;
}

} // namespace

std::vector<std::string> makeNames(NameKind kind, std::size_t count)
{
    switch (kind) {
    case NameKind::Technique:
    case NameKind::Path:
        return generated(kind, count);
    case NameKind::RealPath:
        return sampled(pathsBelow("/usr"), count);
    case NameKind::Identifier:
        return sampled(identifiersBelow("/usr/include"), count);
    }
    return {};
}

std::vector<Query> queriesFor(NameKind kind)
{
    switch (kind) {
    case NameKind::Technique:
        return {{QueryKind::RareLetter, "z"},
                {QueryKind::RareLetter, "kz"},
                {QueryKind::RareLetter, "50khz"},
                {QueryKind::RareLetter, "khz step o"},
                {QueryKind::RareLetter, "at 50khz step of characterisatio"},
                {QueryKind::RareOrder, "etpif"},
                {QueryKind::RareOrder, "torp noita"},
                {QueryKind::RareOrder, "protocol characterisation of ste"},
                {QueryKind::Middling, "volt"},
                {QueryKind::Unselective, "e"},
                {QueryKind::Unselective, "ct"},
                {QueryKind::Unselective, "steps"},
                {QueryKind::Unselective, "charprotoc"},
                {QueryKind::Unselective, "step of characterisation protoco"}};
    case NameKind::Path:
        return {{QueryKind::RareLetter, "q"},
                {QueryKind::RareLetter, "qx"},
                {QueryKind::RareLetter, "qx-z/"},
                {QueryKind::RareLetter, "cellsqx-z/"},
                {QueryKind::RareLetter, "/battery/projects/cells/qx-z/cyc"},
                {QueryKind::RareOrder, "gnybt"},
                {QueryKind::RareOrder, "gnilcyslle"},
                {QueryKind::RareOrder, "/cycling/cells/projects/battery/"},
                {QueryKind::Middling, "data"},
                {QueryKind::Unselective, "c"},
                {QueryKind::Unselective, "ce"},
                {QueryKind::Unselective, "cells"},
                {QueryKind::Unselective, "batcellcyc"},
                {QueryKind::Unselective, "/battery/projects/cells/cycling/"}};
    case NameKind::RealPath:
        return {{QueryKind::RareLetter, "x11"},
                {QueryKind::RareLetter, "gtk_widget_set_size_request"},
                {QueryKind::RareOrder, "buffer"},
                {QueryKind::RareOrder, "iterator"},
                {QueryKind::RareOrder, "libcmake"},
                {QueryKind::RareOrder, "magitsection"},
                {QueryKind::RareOrder, "charactersetencoding"},
                {QueryKind::RareOrder, "python3/dist-packages"},
                {QueryKind::Middling, "name"},
                {QueryKind::Middling, "emacs"},
                {QueryKind::Middling, "usrlib"},
                {QueryKind::Unselective, "e"},
                {QueryKind::Unselective, "us"},
                {QueryKind::Unselective, "/usr/"}};
    case NameKind::Identifier:
        return {{QueryKind::RareLetter, "z"},
                {QueryKind::RareLetter, "gtk_widget_set_size_request"},
                {QueryKind::RareOrder, "name"},
                {QueryKind::RareOrder, "emacs"},
                {QueryKind::RareOrder, "buffer"},
                {QueryKind::RareOrder, "getter"},
                {QueryKind::RareOrder, "iterator"},
                {QueryKind::RareOrder, "magitsection"},
                {QueryKind::RareOrder, "charactersetencoding"},
                {QueryKind::Middling, "e"},
                {QueryKind::Middling, "ts"}};
    }
    return {};
}

} // namespace bench
