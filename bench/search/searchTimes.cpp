#include "Candidates.h"

#include <search/FtsStrategy.h>
#include <search/TechniqueSearchStrategy.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

// The searches of the benchmark without its library, which is not there for every platform. A turn takes milliseconds,
// so that on a busy machine some of them are not interrupted; the fastest one counts.

namespace {

constexpr std::size_t NameCount = 100'000;
constexpr int Turns = 40;

template <class Strategy>
double nanosecondsPerName(const std::string& query, const std::vector<std::string>& names, std::size_t& found)
{
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    const Strategy strategy;
    Nanoseconds best = Nanoseconds::max();
    for (int i = 0; i < Turns; ++i) {
        const auto start = std::chrono::steady_clock::now();
        found = strategy.applyAlgorithm(query, names).size();
        best = std::min<Nanoseconds>(best, std::chrono::steady_clock::now() - start);
    }
    return best.count() / static_cast<double>(names.size());
}

} // namespace

/// Prints a line for each search: the names, the query, the strategy, how many names match, nanoseconds a name.
int main()
{
    // The generated ones, which are the same on every platform.
    for (const auto& [kind, what] : {bench::NameLists[0], bench::NameLists[1]}) {
        const std::vector<std::string> names = bench::makeNames(kind, NameCount);
        for (const bench::Query& query : bench::queriesFor(kind)) {
            const std::string text(query.text);
            std::size_t found = 0;
            const double technique = nanosecondsPerName<TechniqueSearchStrategy>(text, names, found);
            std::printf("%s\t%s\ttechnique\t%zu\t%.3f\n", what, text.c_str(), found, technique);
            const double textual = nanosecondsPerName<FtsStrategy>(text, names, found);
            std::printf("%s\t%s\ttext\t%zu\t%.3f\n", what, text.c_str(), found, textual);
        }
    }
    return 0;
}
