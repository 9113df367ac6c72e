// Loading a configuration document against the bare parse of the same bytes: the shipped document, and documents whose
// sections are 10 and 100 times as long.

#include "Memory.h"

#include <config/UIConfig.h>

#include <benchmark/benchmark.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

QByteArray fileContent(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qUtf8Printable(path));
    }
    return file.readAll();
}

/// \p value with the outermost lists in it \p factor times as long.
QJsonValue enlarged(const QJsonValue& value, int factor)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        QJsonArray result;
        for (int i = 0; i < factor; ++i) {
            for (const auto& element : array) {
                result.append(element);
            }
        }
        return result;
    }
    if (value.isObject()) {
        QJsonObject result = value.toObject();
        for (auto it = result.begin(); it != result.end(); ++it) {
            it.value() = enlarged(it.value(), factor);
        }
        return result;
    }
    return value;
}

/// The shipped document with the lists of every section \p factor times as long, indented as a person would keep it.
QByteArray documentBytes(int factor)
{
    QByteArray shipped = fileContent(QString::fromUtf8(SHIPPED_DOCUMENT));
    if (factor == 1) {
        return shipped;
    }
    return QJsonDocument(enlarged(QJsonDocument::fromJson(shipped).object(), factor).toObject()).toJson();
}

void load(benchmark::State& state)
{
    growHeap(); // a load keeps its result and meets new pages otherwise; the parse keeps nothing
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"UIConfig.json"_s);
    const QByteArray bytes = documentBytes(static_cast<int>(state.range(0)));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        state.SkipWithError("cannot write the document");
        return;
    }
    file.close();

    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    // The fastest of each counts: what a busy machine adds to the one or the other says nothing about them.
    Clock::duration parsing = Clock::duration::max();
    Clock::duration loading = Clock::duration::max();
    for (auto _ : state) {
        const auto start = Clock::now();
        benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes));
        const auto parsed = Clock::now();
        QString error;
        if (!config.readUIConfiguration(path, error)) {
            state.SkipWithError(qPrintable(error));
            return;
        }
        const auto loaded = Clock::now();
        parsing = std::min(parsing, parsed - start);
        loading = std::min(loading, loaded - parsed);
        state.SetIterationTime(std::chrono::duration<double>(loaded - parsed).count());
        config.deleteAll();
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
    state.counters["parse_us"] = std::chrono::duration<double, std::micro>(parsing).count();
    state.counters["load_us"] = std::chrono::duration<double, std::micro>(loading).count();
    state.counters["load/parse"] = static_cast<double>(loading.count()) / static_cast<double>(parsing.count());
}

BENCHMARK(load)->Arg(1)->Arg(10)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
