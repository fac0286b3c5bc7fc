// Runs ticks of the floor or of the real model over a root folder and prints what they cost; bench/tick.py
// counts instructions and system calls around it. Usage: tick_loop floor|model ROOT TICKS          ROOT "" is
// this machine

#include "composition/machine.h"
#include "core/settings.h"
#include "core/stats_model.h"
#include "floor_reader.h"
#include "support/allocation_counter.h"
#include "support/manual_clock.h"
#include "support/memory_preference_store.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace {

using namespace tarvo;

/// Holds the sampling timer's task, so that a tick is a call and nothing else is measured with it.
class OneTimer : public Dispatcher {
public:
    void async(Task) override {}
    void after(std::chrono::milliseconds, Task) override {}
    void global(QualityOfService, Task) override {}
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string&) override {
        return std::make_unique<Queue>();
    }
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds, Task task) override {
        fire = std::move(task);
        return std::make_unique<Timer>();
    }

    Task fire;

private:
    struct Queue : SerialQueue {
        void async(Task) override {}
    };
};

struct Cost {
    double microseconds;
    double allocations;
};

template <typename Tick>
Cost measure(int ticks, Tick&& tick) {
    for (int warm = 0; warm < 80; ++warm)
        tick();
    const auto allocated = allocationCount();
    const auto begin = std::chrono::steady_clock::now();
    for (int count = 0; count < ticks; ++count)
        tick();
    const std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - begin;
    return {elapsed.count() / ticks, static_cast<double>(allocationCount() - allocated) / ticks};
}

Cost measureFloor(const std::string& root, int ticks) {
    bench::FloorReader floor(root);
    volatile std::uint64_t sink = 0;
    return measure(ticks, [&] { sink = sink + floor.tick(); });
}

/// Only the readings of every tick: the slow ones are not connected, as between two slow samples.
Cost measureModel(const std::string& root, int ticks) {
    ManualClock clock;
    OneTimer dispatcher;
    MemoryPreferenceStore preferences;
    Settings settings(preferences);
    Machine machine({.root = root}, clock, dispatcher);
    auto readers = machine.readers();
    readers.diskSpace = nullptr;
    readers.batteryInfo = nullptr;
    const auto model = StatsModel::make(settings, clock, dispatcher, readers, nullptr);
    model->start();
    return measure(ticks, [&] {
        clock.advance(std::chrono::seconds(2));
        dispatcher.fire();
    });
}

} // namespace

int main(int count, char** arguments) {
    const std::string_view kind = count == 4 ? arguments[1] : "";
    if (kind != "floor" && kind != "model") {
        std::fputs("usage: tick_loop floor|model ROOT TICKS\n", stderr);
        return 2;
    }
    const int ticks = std::atoi(arguments[3]);
    const auto cost = kind == "floor" ? measureFloor(arguments[2], ticks) : measureModel(arguments[2], ticks);
    std::printf("%s: %.2f us and %.2f allocations a tick\n", arguments[1], cost.microseconds,
                cost.allocations);
    return 0;
}
