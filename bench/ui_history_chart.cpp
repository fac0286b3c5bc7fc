// The history chart at two weeks of minutes: the first paint, which reduces the samples, and a further one.
#include "ui/elements/day_history_chart.h"

#include "support/allocation_counter.h"
#include "support/memory_preference_store.h"
#include "support/painted_widget.h"

#include <QApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr int minutes = 20160;
constexpr QSize size{336, 140};

std::vector<HistorySample> twoWeeks() {
    const WallTime start = WallTime{} + std::chrono::hours(490'000);
    std::vector<HistorySample> samples;
    for (int minute = 0; minute < minutes; ++minute) {
        const double cpu = 50 + 49 * std::sin(minute * 0.7);
        samples.push_back(
            {start + std::chrono::minutes(minute), cpu, 60 + 10 * std::sin(minute / 300.0), {}});
    }
    return samples;
}

// One paint of the chart's visible lines, straight into a picture.
void paint(DayHistoryChart& chart, QImage& image) {
    QPainter painter(&image);
    chart.render(&painter, {}, {}, QWidget::DrawChildren);
}

void historyChart(benchmark::State& state, bool changes) {
    MemoryPreferenceStore store;
    LocalizationManager loc(store, "en");
    DayHistoryChart chart(loc);
    chart.resize(size);
    auto samples = twoWeeks();
    chart.set({samples, HistoryRange::twoWeeks});
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    paint(chart, image);
    const std::size_t before = allocationCount();
    for (auto _ : state) {
        if (changes) {
            samples.back().cpu = samples.back().cpu > 50 ? 10 : 90;
            chart.set({samples, HistoryRange::twoWeeks});
        }
        paint(chart, image);
    }
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocationCount() - before),
                                                       benchmark::Counter::kAvgIterations);
}

BENCHMARK_CAPTURE(historyChart, changedSamples, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(historyChart, sameSamples, false)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvo::ui

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
