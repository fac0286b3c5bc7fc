// The detail window: first paint, going from section to section, long tables anew, and what stays of its
// memory after it was closed.
#include "ui/detail/detail_view.h"

#include "support/painted_widget.h"
#include "ui/detail_fixture.h"
#include "ui/sections/network_section.h"
#include "ui/sections/processes_section.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace tarvo::ui {
namespace {

constexpr QSize size{980, 640};

void settle(DetailParts& parts) {
    parts.dispatcher.runAll();
    QApplication::processEvents();
}

void firstPaint(benchmark::State& state) {
    DetailParts parts;
    parts.publish(laptopSnapshot());
    for (auto _ : state) {
        DetailView view(parts.detail());
        benchmark::DoNotOptimize(painted(view, size));
    }
}

void switchSections(benchmark::State& state) {
    DetailParts parts;
    parts.publish(laptopSnapshot());
    DetailView view(parts.detail());
    view.resize(size);
    view.show();
    std::size_t next = 0;
    for (auto _ : state) {
        view.select(allDetailSections[++next % allDetailSections.size()]);
        settle(parts);
    }
}

void listProcesses(DetailParts& parts, int count, int turn) {
    parts.processes.clear();
    for (int index = 0; index < count; ++index) {
        const int load = (index * 7919 + turn * 31) % 1000;
        parts.processes.push_back({index + 1, "process-" + std::to_string(index % 400), load / 10.0, 0.5});
    }
}

void refreshProcesses(benchmark::State& state) {
    DetailParts parts;
    listProcesses(parts, static_cast<int>(state.range(0)), 0);
    DetailContext context = parts.detail();
    ProcessesSection section(context, nullptr);
    section.resize(780, 640);
    section.show();
    settle(parts);
    section.table().selectRow(3);
    int turn = 0;
    for (auto _ : state) {
        state.PauseTiming();
        listProcesses(parts, static_cast<int>(state.range(0)), ++turn);
        state.ResumeTiming();
        section.reload();
        settle(parts);
    }
}

void filterProcesses(benchmark::State& state) {
    DetailParts parts;
    listProcesses(parts, static_cast<int>(state.range(0)), 0);
    DetailContext context = parts.detail();
    ProcessesSection section(context, nullptr);
    section.resize(780, 640);
    section.show();
    settle(parts);
    bool isEmpty = true;
    for (auto _ : state) {
        section.search().setText(isEmpty ? QStringLiteral("PROCESS-3") : QString());
        QApplication::processEvents();
        isEmpty = !isEmpty;
    }
}

void refreshConnections(benchmark::State& state) {
    DetailParts parts;
    parts.connections.clear();
    for (int index = 0; index < state.range(0); ++index) {
        parts.connections.push_back({{},
                                     "program-" + std::to_string(index % 50),
                                     100 + index % 50,
                                     "TCP",
                                     "192.168.1.23:" + std::to_string(index),
                                     "203.0.113.7:443",
                                     "ESTABLISHED"});
    }
    DetailContext context = parts.detail();
    NetworkSection section(context, nullptr);
    section.resize(780, 640);
    section.show();
    settle(parts);
    section.table().selectRow(3);
    for (auto _ : state) {
        section.reload();
        settle(parts);
    }
}

std::size_t heapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Opens the window, walks through every section with long tables and closes it; the counters are the heap in
// use before the first and after the last of ten rounds.
void openAndClose(benchmark::State& state) {
    DetailParts parts;
    parts.publish(laptopSnapshot());
    listProcesses(parts, 500, 0);
    const auto round = [&] {
        DetailView view(parts.detail());
        view.resize(size);
        view.show();
        for (const DetailSection section : allDetailSections) {
            view.select(section);
            settle(parts);
        }
    };
    round(); // what is kept for good (fonts, symbols) is there from now on
    QApplication::processEvents();
    const std::size_t before = heapInUse();
    for (auto _ : state) {
        for (int turn = 0; turn < 10; ++turn)
            round();
    }
    QApplication::processEvents();
    state.counters["heap before, KiB"] = static_cast<double>(before) / 1024;
    state.counters["heap after, KiB"] = static_cast<double>(heapInUse()) / 1024;
}

BENCHMARK(firstPaint)->Unit(benchmark::kMillisecond);
BENCHMARK(switchSections)->Unit(benchmark::kMillisecond);
BENCHMARK(refreshProcesses)->Arg(500)->Arg(20'000)->Unit(benchmark::kMillisecond);
BENCHMARK(filterProcesses)->Arg(500)->Arg(20'000)->Unit(benchmark::kMillisecond);
BENCHMARK(refreshConnections)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openAndClose)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvo::ui

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
