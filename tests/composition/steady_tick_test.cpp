#include "composition/machine.h"

#include "support/allocation_counter.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/recorded_machine.h"

#include <gtest/gtest.h>

namespace tarvo {

namespace {

// Memory that the readings of every tick ask for, once they have run before.
std::size_t allocationsOfATick(const std::string& root) {
    ManualClock clock;
    ManualDispatcher dispatcher(clock);
    Machine machine({.root = root}, clock, dispatcher);
    const auto readers = machine.readers();
    const auto tick = [&readers] {
        readers.cpuUsage();
        readers.memoryUsage();
        readers.loadAverages();
        readers.networkTotals();
    };
    for (int warmUp = 0; warmUp < 3; ++warmUp)
        tick();
    const auto before = allocationCount();
    tick();
    return allocationCount() - before;
}

} // namespace

TEST(SteadyTick, AsksForNoMemory) {
    for (const auto* const name : {"vm-empty", "laptop-intel-hybrid", "netbook-zram", "server-2socket"}) {
        const RecordedMachine files(name);
        EXPECT_EQ(allocationsOfATick(files.root()), 0U) << name;
    }
}

TEST(SteadyTick, AsksForNoMemoryOnTheRunningMachine) {
    EXPECT_EQ(allocationsOfATick(""), 0U);
}

} // namespace tarvo
