#include "core/stats_model.h"
#include "support/allocation_counter.h"
#include "support/manual_clock.h"
#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

/// Hands the tick to the test, which so can run it with nothing around it.
class CapturingDispatcher : public Dispatcher {
public:
    void async(Task) override {}
    void after(std::chrono::milliseconds, Task) override {}
    void global(QualityOfService, Task) override {}
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string&) override { return nullptr; }
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds, Task task) override {
        tick = std::move(task);
        return std::make_unique<Timer>();
    }

    Task tick;
};

TEST(StatsModelAllocations, TheCounterNoticesAnAllocation) {
    const auto before = allocationCount();
    const auto memory = std::make_unique<std::vector<int>>(100);
    EXPECT_EQ(allocationCount() - before, 2U);
}

TEST(StatsModelAllocations, ASteadyTickMakesNone) {
    ManualClock clock;
    CapturingDispatcher dispatcher;
    const MemoryPreferenceStore empty;
    MemoryPreferenceStore store;
    Settings settings(store);
    CPUUsage usage{50, std::vector<double>(512, 50.0)};
    StatsReaders readers;
    readers.cpuUsage = [&]() -> const CPUUsage& { return usage; };
    readers.memoryUsage = [] { return MemoryInfo{}; };
    readers.loadAverages = [] { return LoadAverages{}; };
    readers.networkTotals = [] { return NetworkTotals{}; };
    readers.diskSpace = [] { return DiskSpace{1, 2}; };
    readers.batteryInfo = [] { return BatteryInfo{}; };
    const auto model = StatsModel::make(settings, clock, dispatcher, std::move(readers), nullptr);
    int updates = 0;
    model->onUpdate = [&](const StatsSnapshot&) { ++updates; };
    model->start();
    dispatcher.tick();
    const auto before = allocationCount();
    for (int i = 0; i < 200; ++i) {
        clock.advance(std::chrono::seconds{2});
        dispatcher.tick();
    }
    EXPECT_EQ(allocationCount() - before, 0U);
    EXPECT_EQ(updates, 202);
}

TEST(StatsModelAllocations, TellingObserversMakesNone) {
    Published<int> value;
    int told = 0;
    const auto first = value.observeWillChange([&] { ++told; });
    const auto second = value.observeWillChange([&] { ++told; });
    const auto before = allocationCount();
    value.set(1);
    EXPECT_EQ(allocationCount() - before, 0U);
    EXPECT_EQ(told, 2);
}

} // namespace
} // namespace tarvo
