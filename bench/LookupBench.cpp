// Lookups by title, and the units that the user interface offers.

#include <config/UIConfig.h>
#include <config/UIFilteredUnits.h>
#include <datastorage/Converter.h>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

using cl::datastorage::Converter;

/// The last of \p range(0) curves is looked for: the walk passes them all.
void getGraphItemFromTitle(benchmark::State& state)
{
    StatisticsItem graph;
    const auto title = [](qint64 number) { return u"Capacity of cell %1"_s.arg(number); };
    for (qint64 i = 0; i < state.range(0); ++i) {
        StatisticsChildItem curve;
        curve.setTitle(title(i));
        graph.addGraphItem(curve);
    }
    const QString last = title(state.range(0) - 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(graph.getGraphItemFromTitle(last));
    }
}

void getStatGraphFromTitle(benchmark::State& state)
{
    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    QString error;
    if (config.getStatsGraph().isEmpty() && !config.readUIConfiguration(QString::fromUtf8(SHIPPED_DOCUMENT), error)) {
        state.SkipWithError(qPrintable(error));
        return;
    }
    const QString missing = u"no graph of this title"_s;
    for (auto _ : state) {
        benchmark::DoNotOptimize(config.getStatGraphFromTitle(missing));
    }
    state.counters["graphs"] = static_cast<double>(config.getStatsGraph().size());
}

/// One call for every physical parameter.
void getFilteredUnits(benchmark::State& state)
{
    QList<cl::datastorage::PhysicalParameter> parameters;
    for (const QString& name : Converter::getPhysicalParameterNames()) {
        parameters.append(Converter::getPhysicalParameterFromString(name));
    }
    qsizetype units = 0;
    for (auto _ : state) {
        for (const auto& parameter : std::as_const(parameters)) {
            const auto filtered = UIFilteredUnits::getFilteredUnits(parameter);
            units += filtered.size();
        }
    }
    benchmark::DoNotOptimize(units);
    state.SetItemsProcessed(state.iterations() * parameters.size());
}

BENCHMARK(getGraphItemFromTitle)->RangeMultiplier(10)->Range(10, 1000);
BENCHMARK(getStatGraphFromTitle);
BENCHMARK(getFilteredUnits);

} // namespace
