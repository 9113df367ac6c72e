#include "Candidates.h"

#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>
#include <search/LiteralSearch.h>
#include <search/NarrowingSearch.h>
#include <search/TechniqueSearchStrategy.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <limits>
#include <map>
#include <memory>
#include <string>

// Each search is measured against the floor: one pass over all bytes of all candidates with a table look-up for each.
// The two take turns in one benchmark, so that a busy machine slows both. The fastest turn of each counts.
//
// The table has 64-bit entries, because that makes the floor lowest: with entries of one byte the compiler vectorises
// the sum into something that takes up to twice as long.

namespace {

constexpr std::size_t NameCount = 100'000;
constexpr std::size_t LongestLiteralQuery = 10; // the literal version takes 2 to the power of it
constexpr std::size_t LiteralNameCount = 2'000;

/// The processor time of this thread in seconds, which other programs do not add to.
double now()
{
#ifdef _WIN32
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
#else
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
#endif
}

template <class Work>
double secondsFor(Work work)
{
    const double start = now();
    benchmark::DoNotOptimize(work());
    return now() - start;
}

std::uint64_t readEveryByte(const std::vector<std::string>& names, const std::array<std::uint64_t, 256>& table)
{
    std::uint64_t sum = 0;
    for (const std::string& name : names) {
        for (const char c : name) {
            sum += table[static_cast<unsigned char>(c)];
        }
    }
    return sum;
}

const std::vector<std::string>& namesOf(bench::NameKind kind)
{
    static std::map<bench::NameKind, std::vector<std::string>> lists;
    std::vector<std::string>& names = lists[kind];
    if (names.empty()) {
        names = bench::makeNames(kind, NameCount);
    }
    return names;
}

template <class Strategy>
void againstFloor(benchmark::State& state, bench::NameKind kind, bench::Query query)
{
    const std::vector<std::string>& names = namesOf(kind);
    const std::string text(query.text);
    const Strategy strategy;
    std::array<std::uint64_t, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = i;
    }

    double floor = std::numeric_limits<double>::max();
    double search = std::numeric_limits<double>::max();
    std::size_t found = 0;
    for (auto _ : state) {
        floor = std::min(floor, secondsFor([&] { return readEveryByte(names, table); }));
        const double seconds = secondsFor([&] { return found = strategy.applyAlgorithm(text, names).size(); });
        search = std::min(search, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = search / floor;
    state.counters["kind"] = static_cast<double>(query.kind);
    state.counters["ns_per_name"] = search / static_cast<double>(names.size()) * 1e9;
    state.counters["percent"] = 100.0 * static_cast<double>(found) / static_cast<double>(names.size());
}

template <class Score>
void literally(benchmark::State& state, bench::NameKind kind, std::string_view query, Score score)
{
    const std::vector<std::string>& all = namesOf(kind);
    const std::vector<std::string> names(all.begin(), all.begin() + LiteralNameCount);
    const std::string text(query);
    double best = std::numeric_limits<double>::max();
    for (auto _ : state) {
        const double seconds = secondsFor([&] {
            std::vector<std::optional<int>> scores;
            scores.reserve(names.size());
            for (const std::string& name : names) {
                scores.push_back(score(text, name));
            }
            return literal::ranking(scores).size();
        });
        best = std::min(best, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["ns_per_name"] = best / static_cast<double>(names.size()) * 1e9;
}

/// Types \p word letter by letter, and each time looks at the best fifty of what matches: in a NarrowingSearch that has
/// been used before, and by searches from scratch.
template <class AStrategy>
void typing(benchmark::State& state, NarrowingSearch::Strategy strategy, std::string_view word)
{
    constexpr int Shown = 50;
    const std::vector<std::string>& names = namesOf(bench::NameKind::Technique);
    NarrowingSearch narrowing(names, strategy);
    double fromScratch = std::numeric_limits<double>::max();
    double narrowed = std::numeric_limits<double>::max();
    const auto typed = [word](auto search) {
        std::size_t found = 0;
        for (std::size_t length = 1; length <= word.size(); ++length) {
            found += search(std::string(word.substr(0, length))).size();
        }
        return found;
    };
    for (auto _ : state) {
        fromScratch = std::min(fromScratch, secondsFor([&] {
                                   return typed([&](const std::string& query) {
                                       return FuzzyFinder::search(query, names, Shown, std::make_unique<AStrategy>());
                                   });
                               }));
        narrowing.search("\x01"); // in no name: everything is forgotten
        const double seconds =
            secondsFor([&] { return typed([&](const std::string& query) { return narrowing.search(query, Shown); }); });
        narrowed = std::min(narrowed, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["scratch_ms"] = fromScratch * 1e3;
    state.counters["narrowed_ms"] = narrowed * 1e3;
    state.counters["ratio"] = narrowed / fromScratch;
}

template <class Function>
void add(const std::string& name, Function function)
{
    benchmark::RegisterBenchmark(name.c_str(), function)->UseManualTime()->Unit(benchmark::kMillisecond);
}

bool registerAll()
{
    for (const bench::NameList& list : bench::NameLists) {
        const bench::NameKind kind = list.kind;
        for (const bench::Query query : bench::queriesFor(kind)) {
            const std::string what = std::string(list.name) + "|" + std::string(query.text);
            add("technique|" + what,
                [=](benchmark::State& state) { againstFloor<TechniqueSearchStrategy>(state, kind, query); });
            add("text|" + what, [=](benchmark::State& state) { againstFloor<FtsStrategy>(state, kind, query); });
            if (query.kind == bench::QueryKind::Unselective) {
                add("literal text|" + what,
                    [=](benchmark::State& state) { literally(state, kind, query.text, literal::textScore); });
            }
            if (query.kind == bench::QueryKind::Unselective && query.text.size() <= LongestLiteralQuery) {
                add("literal technique|" + what,
                    [=](benchmark::State& state) { literally(state, kind, query.text, literal::techniqueScore); });
            }
        }
    }
    for (const char* word : {"characterisation", "voltammetry"}) {
        add(std::string("typing|technique|") + word, [=](benchmark::State& state) {
            typing<TechniqueSearchStrategy>(state, NarrowingSearch::Strategy::Technique, word);
        });
        add(std::string("typing|text|") + word,
            [=](benchmark::State& state) { typing<FtsStrategy>(state, NarrowingSearch::Strategy::Text, word); });
    }
    return true;
}

const bool Registered = registerAll();

} // namespace
