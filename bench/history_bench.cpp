// One save and one load of the history at fourteen days of minutes, beside what cannot be avoided: writing
// the same bytes and renaming, and the passes of two JSON libraries over them.

#include "history/history_format.h"
#include "history/history_store.h"
#include "platform/posix/atomic_file.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <malloc.h>
#include <nlohmann/json.hpp>
#include <simdjson.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

constexpr int minutes = 14 * 24 * 60;

std::vector<HistorySample> samplesUntil(WallTime end) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> percent(0, 100);
    std::vector<HistorySample> samples;
    for (int minute = minutes; minute > 0; --minute) {
        samples.push_back({end - minute * 60s, percent(random), percent(random), 40 + percent(random) / 4});
    }
    return samples;
}

std::string encoded(const std::vector<HistorySample>& samples) {
    std::string json = "[";
    for (const auto& sample : samples) {
        if (json.size() > 1) json += ',';
        if (!appendHistorySample(json, sample)) std::abort();
    }
    return json + ']';
}

/// Everything that a measurement needs: a full history file and the moment in which it ends.
struct Fortnight {
    TemporaryFolder folder;
    ManualClock clock;
    std::filesystem::path path = folder.path() / "Tarvo" / "history.json";
    std::vector<HistorySample> samples = samplesUntil(clock.wallNow());
    std::string json = encoded(samples);

    Fortnight() {
        if (!AtomicFile(path).replace(json)) std::abort();
    }
};

void plainWriteAndRename(const std::filesystem::path& path, const std::string& bytes, bool sync) {
    const std::string temporary = path.string() + ".plain";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
    if (sync) ::fsync(file);
    ::close(file);
    if (std::rename(temporary.c_str(), path.c_str()) != 0) std::abort();
}

void saveBarely(benchmark::State& state) {
    const Fortnight fortnight;
    for (auto _ : state)
        plainWriteAndRename(fortnight.path, fortnight.json, false);
    state.counters["bytes"] = static_cast<double>(fortnight.json.size());
}
BENCHMARK(saveBarely)->Name("save/plain write and rename")->Unit(benchmark::kMicrosecond)->UseRealTime();

void saveBarelyWithSync(benchmark::State& state) {
    const Fortnight fortnight;
    for (auto _ : state)
        plainWriteAndRename(fortnight.path, fortnight.json, true);
}
BENCHMARK(saveBarelyWithSync)
    ->Name("save/plain write, fsync, rename")
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();

void saveOurs(benchmark::State& state) {
    Fortnight fortnight;
    AtomicFile file(fortnight.path);
    const auto before = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    HistoryStore store(file, fortnight.clock);
    const auto heap = ::mallinfo2().uordblks + ::mallinfo2().hblkhd - before;
    store.maybeRecord(23.076923076923077, 48.123456789012345, 51.5);
    for (auto _ : state) {
        fortnight.clock.advance(60s);
        store.maybeRecord(23.076923076923077, 48.123456789012345, 51.5);
    }
    if (store.samples().size() != static_cast<std::size_t>(minutes) + 1) state.SkipWithError("not full");
    state.counters["heapKiB"] = static_cast<double>(heap) / 1024;
}
BENCHMARK(saveOurs)->Name("save/tarvo, one new sample")->Unit(benchmark::kMicrosecond)->UseRealTime();

/// One of each in turn, so that both meet the same moments of the machine.
void saveInTurn(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    Fortnight fortnight;
    AtomicFile file(fortnight.path);
    HistoryStore store(file, fortnight.clock);
    store.maybeRecord(23.076923076923077, 48.123456789012345, 51.5);
    const auto plainPath = fortnight.path.parent_path() / "plain.json";
    std::vector<double> plain, ours;
    for (auto _ : state) {
        fortnight.clock.advance(60s);
        const auto start = Clock::now();
        plainWriteAndRename(plainPath, fortnight.json, false);
        const auto middle = Clock::now();
        store.maybeRecord(23.076923076923077, 48.123456789012345, 51.5);
        plain.push_back(Seconds(middle - start).count());
        ours.push_back(Seconds(Clock::now() - middle).count());
        state.SetIterationTime(ours.back());
    }
    const auto median = [](std::vector<double>& values) {
        std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                         values.end());
        return values[values.size() / 2];
    };
    state.counters["ratio"] = median(ours) / median(plain);
}
BENCHMARK(saveInTurn)
    ->Name("save/tarvo, medians against plain in turn")
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(150)
    ->UseManualTime();

void saveOursWhole(benchmark::State& state) {
    Fortnight fortnight;
    AtomicFile file(fortnight.path);
    HistoryStore store(file, fortnight.clock);
    for (auto _ : state) {
        state.PauseTiming();
        plainWriteAndRename(fortnight.path, fortnight.json,
                            false); // somebody else's: nothing can be taken over
        fortnight.clock.advance(60s);
        state.ResumeTiming();
        store.maybeRecord(23.076923076923077, 48.123456789012345, 51.5);
    }
}
BENCHMARK(saveOursWhole)->Name("save/tarvo, everything anew")->Unit(benchmark::kMicrosecond)->UseRealTime();

void saveNlohmann(benchmark::State& state) {
    const Fortnight fortnight;
    const auto document = nlohmann::json::parse(fortnight.json);
    for (auto _ : state)
        plainWriteAndRename(fortnight.path, document.dump(), false);
}
BENCHMARK(saveNlohmann)
    ->Name("save/nlohmann dump, write and rename")
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();

void loadOurs(benchmark::State& state) {
    const Fortnight fortnight;
    AtomicFile file(fortnight.path);
    for (auto _ : state) {
        const HistoryStore store(file, fortnight.clock);
        if (store.samples().size() != static_cast<std::size_t>(minutes)) state.SkipWithError("not loaded");
    }
}
BENCHMARK(loadOurs)->Name("load/tarvo, file to samples")->Unit(benchmark::kMicrosecond);

void loadSimdjsonPass(benchmark::State& state) {
    const Fortnight fortnight;
    const simdjson::padded_string json(fortnight.json);
    for (auto _ : state) {
        simdjson::dom::parser parser;
        simdjson::dom::element document;
        if (parser.parse(json).get(document)) state.SkipWithError("not parsed");
        benchmark::DoNotOptimize(document);
    }
}
BENCHMARK(loadSimdjsonPass)->Name("load/simdjson pass over the bytes")->Unit(benchmark::kMicrosecond);

void loadNlohmann(benchmark::State& state) {
    const Fortnight fortnight;
    for (auto _ : state)
        benchmark::DoNotOptimize(nlohmann::json::parse(fortnight.json));
}
BENCHMARK(loadNlohmann)->Name("load/nlohmann parse")->Unit(benchmark::kMicrosecond);

void rangeOfADay(benchmark::State& state) {
    const Fortnight fortnight;
    AtomicFile file(fortnight.path);
    const HistoryStore store(file, fortnight.clock);
    for (auto _ : state)
        benchmark::DoNotOptimize(store.samples(static_cast<double>(state.range(0))));
}
BENCHMARK(rangeOfADay)->Name("samples of the last hours")->Arg(24)->Arg(336)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tarvo

BENCHMARK_MAIN();
