// Redraws of a plot of ten million points: the editor's curves and those of QCustomPlot with all points.

#include <cluiedit/plot/DenseGraph.h>

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

using cluiedit::DenseGraph;
using cluiedit::Reduction;

namespace {

constexpr int Points = 10'000'000;
constexpr int PointsPerCycle = 10'000;
constexpr QSize PlotSize(1000, 600);

struct Signal
{
    std::shared_ptr<std::vector<double>> x = std::make_shared<std::vector<double>>();
    std::shared_ptr<std::vector<double>> y = std::make_shared<std::vector<double>>();
};

/// A slow signal with noise, over time; or back and forth in x, a little further up each time.
const Signal& signal(bool isCyclic)
{
    static const auto make = [](bool cyclic) {
        Signal made;
        std::mt19937 random(1);
        for (int i = 0; i < Points; ++i) {
            const double noise = static_cast<double>(random() % 1000) / 1e4;
            const double phase = 2 * 3.14159265358979 * (i % PointsPerCycle) / PointsPerCycle;
            made.x->push_back(cyclic ? -std::cos(phase) : i);
            made.y->push_back(cyclic ? std::sin(phase) + 0.3 * i / Points + noise / 10 : std::sin(i * 1e-6) + noise);
        }
        return made;
    };
    static const Signal sorted = make(false);
    static const Signal cyclic = make(true);
    return isCyclic ? cyclic : sorted;
}

/// Measures pans and zooms in turn, at every depth from all points to few.
void redraw(benchmark::State& state, QCustomPlot& plot)
{
    plot.resize(PlotSize);
    plot.setViewport(QRect(QPoint(), PlotSize));
    plot.rescaleAxes();
    const QCPRange all = plot.xAxis->range();
    const double depth = std::pow(2, state.range(0));
    plot.xAxis->setRange(all.center(), all.size() / depth, Qt::AlignCenter);
    double way = all.size() / depth / 100;
    plot.replot(QCustomPlot::rpImmediateRefresh);
    for (auto _ : state) {
        plot.xAxis->moveRange(way);
        plot.replot(QCustomPlot::rpImmediateRefresh);
        way = -way;
    }
}

void denseGraph(benchmark::State& state, bool isCyclic)
{
    QCustomPlot plot;
    auto* graph = new DenseGraph(plot.xAxis, plot.yAxis); // the plot's
    graph->setPen(QPen(Qt::blue, 1));
    const Signal& values = signal(isCyclic);
    graph->setPoints(std::make_shared<Reduction>(values.x, values.y), {}, {});
    redraw(state, plot);
    state.counters["points"] = static_cast<double>(graph->picks().points.size());
}

void allPointsSorted(benchmark::State& state)
{
    QCustomPlot plot;
    QCPGraph* graph = plot.addGraph();
    const Signal& values = signal(false);
    QVector<QCPGraphData> data;
    data.reserve(Points);
    for (std::size_t i = 0; i < values.x->size(); ++i) {
        data.append({(*values.x)[i], (*values.y)[i]});
    }
    graph->data()->set(data, true);
    redraw(state, plot);
}

void allPointsCyclic(benchmark::State& state)
{
    QCustomPlot plot;
    auto* curve = new QCPCurve(plot.xAxis, plot.yAxis); // the plot's
    const Signal& values = signal(true);
    QVector<QCPCurveData> data;
    data.reserve(Points);
    for (std::size_t i = 0; i < values.x->size(); ++i) {
        data.append({static_cast<double>(i), (*values.x)[i], (*values.y)[i]});
    }
    curve->data()->set(data, true);
    redraw(state, plot);
}

/// What it takes once to show a curve.
void makeReduction(benchmark::State& state, bool isCyclic)
{
    const Signal& values = signal(isCyclic);
    for (auto _ : state) {
        const Reduction reduction(values.x, values.y);
        benchmark::DoNotOptimize(reduction.drawable());
    }
}

BENCHMARK_CAPTURE(denseGraph, sorted, false)->Arg(0)->Arg(3)->Arg(6)->Arg(9)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(denseGraph, cyclic, true)->Arg(0)->Arg(3)->Arg(6)->Arg(9)->Unit(benchmark::kMillisecond);
BENCHMARK(allPointsSorted)->Arg(0)->Arg(3)->Unit(benchmark::kMillisecond);
BENCHMARK(allPointsCyclic)->Arg(0)->Iterations(2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(makeReduction, sorted, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(makeReduction, cyclic, true)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
