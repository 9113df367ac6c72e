#include "Candidates.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Prints the names that the search is measured on, for measuring whole programs: printNames technique|path COUNT
int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s technique|path COUNT\n", argv[0]);
        return 2;
    }
    const auto kind = std::string_view(argv[1]) == "path" ? bench::NameKind::Path : bench::NameKind::Technique;
    for (const std::string& name : bench::makeNames(kind, std::strtoull(argv[2], nullptr, 10))) {
        std::puts(name.c_str());
    }
    return 0;
}
