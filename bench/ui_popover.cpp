// The popover: made and painted the first time, painted again, and what a tick costs while it is open.
#include "ui/pages/popover_view.h"

#include "support/allocation_counter.h"
#include "support/painted_widget.h"
#include "ui/panel_fixture.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace tarvo::ui {
namespace {

constexpr QSize size{360, 680};

void countAllocations(benchmark::State& state, std::size_t before) {
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocationCount() - before),
                                                       benchmark::Counter::kAvgIterations);
}

void firstOpen(benchmark::State& state) {
    PanelParts parts;
    parts.publish(laptopSnapshot());
    const std::size_t before = allocationCount();
    for (auto _ : state) {
        PopoverView view(parts.context());
        benchmark::DoNotOptimize(painted(view, size));
    }
    countAllocations(state, before);
}

void openAgain(benchmark::State& state) {
    PanelParts parts;
    parts.publish(laptopSnapshot());
    PopoverView view(parts.context());
    benchmark::DoNotOptimize(painted(view, size));
    const std::size_t before = allocationCount();
    for (auto _ : state)
        benchmark::DoNotOptimize(painted(view, size));
    countAllocations(state, before);
}

// A tick in which the readings of every tick changed, or none at all.
void tick(benchmark::State& state, bool changes) {
    PanelParts parts;
    parts.showEverything();
    parts.publish(laptopSnapshot());
    PopoverView view(parts.context());
    view.resize(size);
    view.show();
    QApplication::processEvents();
    StatsSnapshot snapshot = laptopSnapshot();
    const std::size_t before = allocationCount();
    for (auto _ : state) {
        if (changes) {
            snapshot.cpu = snapshot.cpu > 50 ? 20 : 80;
            snapshot.memPercent = snapshot.cpu / 2;
            snapshot.netInRate = snapshot.cpu * 1e4;
            for (double& core : snapshot.perCore)
                core = snapshot.cpu;
        }
        parts.publish(snapshot);
        QApplication::processEvents();
    }
    countAllocations(state, before);
}

BENCHMARK(firstOpen)->Unit(benchmark::kMillisecond);
BENCHMARK(openAgain)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tick, changedReadings, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tick, sameReadings, false)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvo::ui

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
