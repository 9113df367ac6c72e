#include "Candidates.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Prints the names that the search is measured on, for measuring whole programs: printNames LIST COUNT
int main(int argc, char** argv)
{
    const auto* list =
        std::find_if(bench::NameLists.begin(), bench::NameLists.end(), [&](const bench::NameList& known) {
            return argc == 3 && std::string_view(argv[1]) == known.name;
        });
    if (list == bench::NameLists.end()) {
        std::fprintf(stderr, "usage: %s LIST COUNT, with one of these lists:\n", argv[0]);
        for (const bench::NameList& known : bench::NameLists) {
            std::fprintf(stderr, "  %s\n", known.name);
        }
        return 2;
    }
    for (const std::string& name : bench::makeNames(list->kind, std::strtoull(argv[2], nullptr, 10))) {
        std::puts(name.c_str());
    }
    return 0;
}
