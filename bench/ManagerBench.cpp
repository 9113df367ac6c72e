// The axes-combination manager at 10² to 10⁵ records: n records that pair √n X names with √n Y names.

#include "Memory.h"

#include <axes/AxesCombinationManager.h>
#include <config/ConfigRepresentation.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;
using cl::datastorage::DataArrayIdentifier;

namespace {

QString name(char16_t axis, int number)
{
    return u"%1 quantity number %2 / unit"_s.arg(QChar(axis)).arg(number);
}

struct Names
{
    explicit Names(int records)
        : count(static_cast<int>(std::lround(std::sqrt(records))))
    {
        for (int i = 0; i < count; ++i) {
            x.append(name(u'X', i));
            y.append(name(u'Y', i));
        }
    }

    int count;
    QList<QString> x;
    QList<QString> y;
};

AxesCombinationManager filledManager(const Names& names)
{
    const QString category = u"Potentiostat measure"_s;
    AxesCombinationManager manager;
    for (const QString& x : names.x) {
        for (const QString& y : names.y) {
            manager.append({DataArrayIdentifier(x, category), DataArrayIdentifier(y, category), QCPAxis::stLinear,
                            QCPAxis::stLinear, false});
        }
    }
    return manager;
}

/// What is asked of a manager: as many questions at every size, so that the list is all that grows, or one for each
/// record, so that memory has to be waited for most of the time.
enum class Questions {
    Hundred,
    OneForEachRecord,
};

/// Pairs of names of records from all over the list, in an order that the processor cannot foresee. Of unknown pairs,
/// each name is one of the manager's X names.
std::vector<std::pair<QString, QString>> shuffledPairs(int records, bool known, Questions questions)
{
    // Texts of the caller's own, not those that the records share.
    const Names own(records);
    std::vector<std::pair<QString, QString>> pairs;
    for (const QString& x : own.x) {
        for (const QString& y : own.y) {
            pairs.emplace_back(x, known ? y : x);
        }
    }
    std::shuffle(pairs.begin(), pairs.end(), std::mt19937(4));
    if (questions == Questions::Hundred) {
        pairs.resize(std::min<size_t>(pairs.size(), 100));
    }
    return pairs;
}

/// Runs \p query as the benchmark's body and reports, beside its time, how many allocations one call makes.
template <typename Query>
void measure(benchmark::State& state, Query query)
{
    const long long before = allocationCount();
    query();
    state.counters["allocations"] = static_cast<double>(allocationCount() - before);
    for (auto _ : state) {
        query();
    }
}

template <bool Known, Questions Asked>
void getAxesCombination(benchmark::State& state)
{
    const int records = static_cast<int>(state.range(0));
    const AxesCombinationManager manager = filledManager(Names(records));
    const auto pairs = shuffledPairs(records, Known, Asked);
    size_t next = 0;
    measure(state, [&] {
        const auto& [x, y] = pairs[next];
        next = next + 1 == pairs.size() ? 0 : next + 1;
        benchmark::DoNotOptimize(manager.getAxesCombination(x, y));
    });
}

void isRepresentationValid(benchmark::State& state)
{
    const int records = static_cast<int>(state.range(0));
    const AxesCombinationManager manager = filledManager(Names(records));
    std::vector<ConfigRepresentation> representations;
    for (const auto& [x, y] : shuffledPairs(records, true, Questions::Hundred)) {
        representations.emplace_back(QString(), x, y, y, QString(), false);
    }
    size_t next = 0;
    measure(state, [&] {
        benchmark::DoNotOptimize(manager.isRepresentationValid(&representations[next]));
        next = next + 1 == representations.size() ? 0 : next + 1;
    });
}

void getXAxesNames(benchmark::State& state)
{
    const AxesCombinationManager manager = filledManager(Names(static_cast<int>(state.range(0))));
    measure(state, [&] { benchmark::DoNotOptimize(manager.getXAxesNames()); });
}

void getYAxesNames(benchmark::State& state)
{
    const Names names(static_cast<int>(state.range(0)));
    const AxesCombinationManager manager = filledManager(names);
    qsizetype next = 0;
    measure(state, [&] {
        benchmark::DoNotOptimize(manager.getYAxesNames(names.x.at(next)));
        next = (next + 1) % names.count;
    });
}

/// How an operation on the whole list meets the list: with nothing of it in the processor's caches, as when a project
/// is opened or saved, or again and again, when a short list stays in a cache and a long one does not.
enum class Caches {
    Empty,
    Full,
};

/// Measures \p work on what \p prepare makes each time. The fastest time counts: what a busy machine adds says nothing.
template <Caches State, typename Prepare, typename Work>
void measureWhole(benchmark::State& state, Prepare prepare, Work work)
{
    using Clock = std::chrono::steady_clock;
    growHeap();
    Clock::duration fastest = Clock::duration::max();
    for (auto _ : state) {
        auto input = prepare();
        if (State == Caches::Empty) {
            emptyCaches();
        }
        const auto start = Clock::now();
        work(*input);
        const auto time = Clock::now() - start;
        fastest = std::min(fastest, time);
        state.SetIterationTime(std::chrono::duration<double>(time).count());
    }
    state.counters["fastest_us"] = std::chrono::duration<double, std::micro>(fastest).count();
}

/// Every record twice: half of them go.
template <Caches State>
void removeDuplicates(benchmark::State& state)
{
    const Names names(static_cast<int>(state.range(0)) / 2);
    AxesCombinationManager doubled = filledManager(names);
    const AxesCombinationManager again = doubled;
    for (const AxesCombination& combination : again.getAxesCombinations()) {
        doubled.append(combination);
    }
    measureWhole<State>(
        state, [&] { return std::make_unique<AxesCombinationManager>(doubled); },
        [](AxesCombinationManager& manager) { manager.removeDuplicates(); });
}

template <Caches State>
void write(benchmark::State& state)
{
    const AxesCombinationManager manager = filledManager(Names(static_cast<int>(state.range(0))));
    cl::archive::ArchiveContext context;
    measureWhole<State>(
        state, [] { return std::make_unique<QJsonObject>(); },
        [&](QJsonObject& object) { manager.write(object, 1, context); });
}

template <Caches State>
void read(benchmark::State& state)
{
    cl::archive::ArchiveContext context;
    QJsonObject object;
    filledManager(Names(static_cast<int>(state.range(0)))).write(object, 1, context);
    measureWhole<State>(
        state, [] { return std::make_unique<AxesCombinationManager>(); },
        [&](AxesCombinationManager& manager) { manager.read(object, 1, context); });
}

constexpr int Fewest = 100;
constexpr int Most = 100'000;

BENCHMARK((getAxesCombination<true, Questions::Hundred>))
    ->Name("getAxesCombination/hit")
    ->RangeMultiplier(10)
    ->Range(Fewest, Most);
BENCHMARK((getAxesCombination<false, Questions::Hundred>))
    ->Name("getAxesCombination/miss")
    ->RangeMultiplier(10)
    ->Range(Fewest, Most);
BENCHMARK((getAxesCombination<true, Questions::OneForEachRecord>))
    ->Name("getAxesCombination/every record")
    ->RangeMultiplier(10)
    ->Range(Fewest, Most);
BENCHMARK(isRepresentationValid)->RangeMultiplier(10)->Range(Fewest, Most);
BENCHMARK(getXAxesNames)->RangeMultiplier(10)->Range(Fewest, Most);
BENCHMARK(getYAxesNames)->RangeMultiplier(10)->Range(Fewest, Most);

// NOLINTBEGIN(bugprone-macro-parentheses): a template is named
#define BENCHMARK_WHOLE(operation)                                                                                     \
    BENCHMARK(operation<Caches::Empty>)                                                                                \
        ->Name(#operation "/empty caches")                                                                             \
        ->RangeMultiplier(10)                                                                                          \
        ->Range(Fewest, Most)                                                                                          \
        ->Iterations(30)                                                                                               \
        ->UseManualTime();                                                                                             \
    BENCHMARK(operation<Caches::Full>)                                                                                 \
        ->Name(#operation "/again and again")                                                                          \
        ->RangeMultiplier(10)                                                                                          \
        ->Range(Fewest, Most)                                                                                          \
        ->UseManualTime()
// NOLINTEND(bugprone-macro-parentheses)

BENCHMARK_WHOLE(removeDuplicates);
BENCHMARK_WHOLE(write);
BENCHMARK_WHOLE(read);

} // namespace
