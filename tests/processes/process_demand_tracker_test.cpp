#include "processes/process_demand_tracker.h"

#include "core/shared_instance.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ProcessDemandTrackerTest : public testing::Test {
protected:
    ProcessDemandTracker tracker_{[this](std::int64_t limit) {
        limits_.push_back(limit);
        return processes_;
    }};

    void sample(std::vector<ProcInfo> processes) {
        processes_ = std::move(processes);
        tracker_.sample();
    }

    std::vector<ProcInfo> processes_;
    std::vector<std::int64_t> limits_;
};

ProcInfo process(std::string name, double cpu) {
    return {1, std::move(name), cpu, 0};
}

TEST_F(ProcessDemandTrackerTest, ASampleAsksForEightProcesses) {
    sample({});
    EXPECT_THAT(limits_, ElementsAre(8));
}

TEST_F(ProcessDemandTrackerTest, ANameIsShownFromItsSecondSampleOn) {
    sample({process("browser", 20)});
    EXPECT_THAT(tracker_.topDemanding(8), IsEmpty());
    sample({process("browser", 40), process("editor", 10)});
    EXPECT_THAT(tracker_.topDemanding(8), ElementsAre(ProcessDemand{"browser", 30, 2}));
}

TEST_F(ProcessDemandTrackerTest, OnlyWhatIsAboveHalfAPercentCounts) {
    for (int i = 0; i < 2; ++i)
        sample({process("busy", 0.51), process("idle", 0.5), process("asleep", 0)});
    EXPECT_THAT(tracker_.topDemanding(8), ElementsAre(ProcessDemand{"busy", 0.51, 2}));
}

TEST_F(ProcessDemandTrackerTest, ProcessesOfOneNameAddUp) {
    sample({process("renderer", 30), process("renderer", 10)});
    EXPECT_THAT(tracker_.topDemanding(8), ElementsAre(ProcessDemand{"renderer", 20, 2}));
}

TEST_F(ProcessDemandTrackerTest, TheAccumulatedShareDecidesTheOrder) {
    sample({process("short", 5), process("long", 3), process("long", 3)});
    sample({process("short", 5), process("long", 3), process("long", 3)});
    EXPECT_THAT(tracker_.topDemanding(8),
                ElementsAre(ProcessDemand{"long", 3, 4}, ProcessDemand{"short", 5, 2}));
}

TEST_F(ProcessDemandTrackerTest, TheListEndsAtTheLimit) {
    for (int i = 0; i < 2; ++i)
        sample({process("a", 3), process("b", 2), process("c", 1)});
    EXPECT_THAT(tracker_.topDemanding(8), SizeIs(3));
    EXPECT_THAT(tracker_.topDemanding(2), ElementsAre(ProcessDemand{"a", 3, 2}, ProcessDemand{"b", 2, 2}));
    EXPECT_THAT(tracker_.topDemanding(0), IsEmpty());
    EXPECT_THAT(tracker_.topDemanding(-1), IsEmpty());
}

TEST_F(ProcessDemandTrackerTest, TheSmallestOf201NamesIsForgotten) {
    std::vector<ProcInfo> processes;
    for (int i = 0; i < 201; ++i)
        processes.push_back(process(fmt::format("p{}", i), i == 77 ? 1 : 2 + i));
    sample(processes);
    sample({process("p77", 1)}); // begins anew, at a count of 1, and is the 201st again
    sample({process("p78", 1)});
    EXPECT_THAT(tracker_.topDemanding(500), ElementsAre(ProcessDemand{"p78", 40.5, 2}));
}

TEST_F(ProcessDemandTrackerTest, TwoHundredNamesAreAllKept) {
    std::vector<ProcInfo> processes;
    for (int i = 0; i < 200; ++i)
        processes.push_back(process(fmt::format("p{}", i), 1 + i));
    sample(processes);
    sample(processes);
    EXPECT_THAT(tracker_.topDemanding(500), SizeIs(200));
}

TEST_F(ProcessDemandTrackerTest, AFailedListingAddsNothing) {
    sample({});
    sample({});
    EXPECT_THAT(tracker_.topDemanding(8), IsEmpty());
}

TEST_F(ProcessDemandTrackerTest, TheDoorLeadsToTheInstalledTracker) {
    const SharedInstance<ProcessDemandTracker> door(tracker_);
    EXPECT_EQ(&ProcessDemandTracker::shared(), &tracker_);
}

// Under ThreadSanitizer this also fails on any unguarded access.
TEST(ProcessDemandTracker, SamplesAndReadersExcludeEachOther) {
    ProcessDemandTracker tracker([](std::int64_t) {
        return std::vector<ProcInfo>{process("a", 2), process("b", 4)};
    });
    constexpr int samplesEach = 500;
    std::atomic<bool> torn = false;
    const auto sample = [&] {
        for (int i = 0; i < samplesEach; ++i)
            tracker.sample();
    };
    const auto read = [&] {
        for (int i = 0; i < samplesEach; ++i) {
            const auto demands = tracker.topDemanding(8);
            // Both names are counted in one step, so no reader may see one of them ahead.
            if (demands.size() == 1 ||
                (demands.size() == 2 && demands[0].sampleCount != demands[1].sampleCount))
                torn = true;
        }
    };
    std::thread first(sample);
    std::thread second(sample);
    std::thread reader(read);
    first.join();
    second.join();
    reader.join();
    EXPECT_FALSE(torn);
    EXPECT_THAT(tracker.topDemanding(8),
                ElementsAre(ProcessDemand{"b", 4, 2 * samplesEach}, ProcessDemand{"a", 2, 2 * samplesEach}));
}

} // namespace
} // namespace tarvo
