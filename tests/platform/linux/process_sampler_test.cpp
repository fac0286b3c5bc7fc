#include "platform/linux/process_sampler.h"

#include "support/manual_clock.h"
#include "support/process_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <map>
#include <thread>

namespace tarvo::linux_platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ProcessSamplerTest : public testing::Test {
protected:
    ProcessSamplerTest() : ticksPerSecond_(static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK))) {}

    /// Lets processes use `share` percent of a core each during `time`.
    void pass(std::chrono::milliseconds time, const std::map<std::int32_t, int>& shares) {
        clock_.advance(time);
        for (const auto& [pid, share] : shares) {
            made_[pid].userTicks += static_cast<std::uint64_t>(share) * ticksPerSecond_ *
                                    static_cast<std::uint64_t>(time.count()) / 100'000;
            tree_.put(pid, made_[pid]);
        }
    }
    void start(std::int32_t pid, std::uint64_t residentPages = 0) {
        made_[pid].residentPages = residentPages;
        made_[pid].startTime = 100;
        tree_.put(pid, made_[pid]);
    }
    std::vector<std::int32_t> pids(const std::vector<ProcessRow>& rows) {
        std::vector<std::int32_t> result;
        for (const auto& row : rows)
            result.push_back(row.pid);
        return result;
    }

    std::uint64_t ticksPerSecond_;
    ManualClock clock_;
    ProcessTree tree_;
    std::map<std::int32_t, MadeProcess> made_;
    std::vector<std::chrono::milliseconds> waits_;
    std::function<void()> whileWaiting_ = [] {};
    ProcessSampler sampler_{Root(tree_.root()), clock_, [this](std::chrono::milliseconds time) {
                                waits_.push_back(time);
                                clock_.advance(time);
                                whileWaiting_();
                            }};
};

TEST_F(ProcessSamplerTest, TheFirstCallMeasuresBetweenTwoPasses) {
    start(5);
    start(6);
    whileWaiting_ = [&] {
        made_[6].systemTicks += ticksPerSecond_ * 3 / 10; // a core, all the time
        tree_.put(6, made_[6]);
    };
    SampledProcessTable table(sampler_);
    const auto rows = table.rows(ProcessOrder::cpu, 8);
    EXPECT_THAT(waits_, ElementsAre(300ms));
    ASSERT_THAT(pids(rows), ElementsAre(6, 5));
    EXPECT_NEAR(rows[0].cpu, 100, 1e-9);
    EXPECT_EQ(rows[1].cpu, 0);
}

TEST_F(ProcessSamplerTest, BothOrdersComeFromOnePass) {
    start(5, 10);
    start(6, 20);
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 8);
    pass(3s, {{5, 50}, {6, 10}});
    EXPECT_THAT(pids(table.rows(ProcessOrder::cpu, 8)), ElementsAre(5, 6));
    pass(400ms, {{6, 100}});
    start(7, 500);
    const auto rows = table.rows(ProcessOrder::memory, 8);
    EXPECT_THAT(pids(rows), ElementsAre(6, 5));
    EXPECT_NEAR(rows[0].cpu, 10, 1e-9);
    EXPECT_THAT(waits_, SizeIs(1));
}

TEST_F(ProcessSamplerTest, SharesAreOfOneCoreAndMayExceedIt) {
    start(5);
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 8);
    pass(2s, {{5, 350}});
    EXPECT_NEAR(table.rows(ProcessOrder::cpu, 8).at(0).cpu, 350, 1e-9);
}

TEST_F(ProcessSamplerTest, MemoryIsTheResidentShareOfPhysicalMemory) {
    const auto pages = 1'000'000ULL * 1024 / static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
    start(5, pages / 4);
    SampledProcessTable table(sampler_);
    EXPECT_NEAR(table.rows(ProcessOrder::memory, 1).at(0).memPercent, 25, 1e-9);
}

TEST_F(ProcessSamplerTest, EqualProcessesStandByAscendingPid) {
    for (const auto pid : {30, 10, 20})
        start(pid, 5);
    SampledProcessTable table(sampler_);
    EXPECT_THAT(pids(table.rows(ProcessOrder::cpu, 8)), ElementsAre(10, 20, 30));
    EXPECT_THAT(pids(table.rows(ProcessOrder::memory, 2)), ElementsAre(10, 20));
}

TEST_F(ProcessSamplerTest, ALimitBelowOneGivesOneRow) {
    start(5);
    start(6);
    SampledProcessTable table(sampler_);
    EXPECT_THAT(table.rows(ProcessOrder::cpu, 0), SizeIs(1));
    EXPECT_THAT(table.rows(ProcessOrder::cpu, -7), SizeIs(1));
    EXPECT_THAT(table.rows(ProcessOrder::cpu, 500), SizeIs(2));
}

TEST_F(ProcessSamplerTest, EachConsumersSharesCoverItsOwnTime) {
    start(5);
    SampledProcessTable often(sampler_);
    SampledProcessTable seldom(sampler_);
    often.rows(ProcessOrder::cpu, 8);
    seldom.rows(ProcessOrder::cpu, 8);
    for (int step = 0; step < 19; ++step) {
        pass(3s, {{5, 10}});
        EXPECT_NEAR(often.rows(ProcessOrder::cpu, 8).at(0).cpu, 10, 1e-9);
    }
    pass(3s, {{5, 50}});
    EXPECT_NEAR(often.rows(ProcessOrder::cpu, 8).at(0).cpu, 50, 1e-9);
    EXPECT_NEAR(seldom.rows(ProcessOrder::cpu, 8).at(0).cpu, 12, 1e-9); // the mean of the minute
    EXPECT_THAT(waits_, SizeIs(1));
}

TEST_F(ProcessSamplerTest, ConsumersThatAlternateKeepWholeWindows) {
    start(5);
    SampledProcessTable first(sampler_);
    SampledProcessTable second(sampler_);
    first.rows(ProcessOrder::cpu, 8);
    second.rows(ProcessOrder::cpu, 8);
    // Load in the first 2 of each 3 seconds only: a window of anything but 3 seconds would show another
    // share.
    for (int step = 0; step < 4; ++step) {
        pass(2s, {{5, 60}});
        const auto atTwo = second.rows(ProcessOrder::cpu, 8).at(0).cpu;
        EXPECT_NEAR(atTwo, step == 0 ? 60 : 40, 1e-9);
        pass(1s, {{5, 0}});
        EXPECT_NEAR(first.rows(ProcessOrder::cpu, 8).at(0).cpu, 40, 1e-9);
    }
}

TEST_F(ProcessSamplerTest, ANewConsumerMeasuresFromAnotherOnesPass) {
    start(5);
    SampledProcessTable first(sampler_);
    first.rows(ProcessOrder::cpu, 8);
    pass(20s, {{5, 30}});
    SampledProcessTable second(sampler_);
    EXPECT_NEAR(second.rows(ProcessOrder::cpu, 8).at(0).cpu, 30, 1e-9);
    EXPECT_THAT(waits_, SizeIs(1));
}

TEST_F(ProcessSamplerTest, ANewConsumerSharesAFreshPassAndWhatItWasMeasuredFrom) {
    start(5);
    SampledProcessTable first(sampler_);
    first.rows(ProcessOrder::cpu, 8);
    pass(20s, {{5, 30}});
    first.rows(ProcessOrder::cpu, 8);
    pass(300ms, {{5, 1000}});
    SampledProcessTable second(sampler_);
    EXPECT_NEAR(second.rows(ProcessOrder::cpu, 8).at(0).cpu, 30, 1e-9);
}

TEST_F(ProcessSamplerTest, AnOldPassIsNotMeasuredFrom) {
    start(5);
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 8);
    pass(90s, {{5, 20}});
    EXPECT_NEAR(table.rows(ProcessOrder::cpu, 8).at(0).cpu, 20, 1e-9);
    pass(91s, {{5, 20}});
    whileWaiting_ = [&] {
        made_[5].userTicks += ticksPerSecond_ * 3 / 20;
        tree_.put(5, made_[5]);
    };
    EXPECT_NEAR(table.rows(ProcessOrder::cpu, 8).at(0).cpu, 50, 1e-9);
    EXPECT_THAT(waits_, ElementsAre(300ms, 300ms));
}

TEST_F(ProcessSamplerTest, AReusedNumberIsAnotherProcess) {
    start(5);
    made_[5].userTicks = 1000;
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 8);
    clock_.advance(1s);
    made_[5].startTime = 900;
    made_[5].userTicks = ticksPerSecond_ / 2;
    tree_.put(5, made_[5]);
    EXPECT_NEAR(table.rows(ProcessOrder::cpu, 8).at(0).cpu, 50, 1e-9);
}

TEST_F(ProcessSamplerTest, AProcessThatEndedIsGone) {
    start(5);
    start(6);
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 8);
    clock_.advance(1s);
    tree_.remove(5);
    EXPECT_THAT(pids(table.rows(ProcessOrder::cpu, 8)), ElementsAre(6));
}

TEST_F(ProcessSamplerTest, RowsCarryPathsAndKernelThreadsTheirNames) {
    start(5);
    tree_.setExecutable(5, "/opt/Some App/Some App");
    made_[6].flags = 0x208040;
    made_[6].name = "kworker/0:1-events";
    start(6);
    SampledProcessTable table(sampler_);
    const auto rows = table.rows(ProcessOrder::cpu, 8);
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(rows[0].command, "/opt/Some App/Some App");
    EXPECT_EQ(rows[1].command, "kworker/0:1-events");
}

TEST_F(ProcessSamplerTest, WithoutProcessFilesThereAreNoRowsUntilTheyAreBack) {
    start(5);
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 8);
    tree_.folder.remove("proc");
    clock_.advance(1s);
    EXPECT_THAT(table.rows(ProcessOrder::cpu, 8), IsEmpty());
    tree_.put(5, made_[5]);
    clock_.advance(1s);
    EXPECT_THAT(pids(table.rows(ProcessOrder::cpu, 8)), ElementsAre(5));
}

TEST_F(ProcessSamplerTest, TheStartTimeOfTheLastListedProcessIsKept) {
    start(5);
    made_[5].startTime = 4711;
    tree_.put(5, made_[5]);
    EXPECT_EQ(sampler_.listedStartTime(5), std::nullopt);
    SampledProcessTable table(sampler_);
    table.rows(ProcessOrder::cpu, 1);
    EXPECT_EQ(sampler_.listedStartTime(5), 4711U);
    EXPECT_EQ(sampler_.listedStartTime(6), std::nullopt);
}

// Under ThreadSanitizer this also fails on any unguarded access.
TEST(ProcessSampler, ConsumersOnSeveralThreadsTakeTurns) {
    ProcessTree tree;
    for (std::int32_t pid = 1; pid <= 50; ++pid)
        tree.put(pid, {});
    struct TickingClock : Clock {
        WallTime wallNow() const override { return {}; }
        SteadyTime steadyNow() const override { return SteadyTime(std::chrono::milliseconds(now += 100)); }
        mutable std::atomic<std::int64_t> now = 1'000'000;
    } clock;
    ProcessSampler sampler(Root(tree.root()), clock, [](std::chrono::milliseconds) {});
    std::atomic<int> wrong = 0;
    const auto consume = [&](ProcessOrder order) {
        SampledProcessTable table(sampler);
        for (int i = 0; i < 50; ++i) {
            if (table.rows(order, 500).size() != 50) ++wrong;
            if (sampler.listedStartTime(7) != 100U) ++wrong;
        }
    };
    std::thread first(consume, ProcessOrder::cpu);
    std::thread second(consume, ProcessOrder::memory);
    std::thread third(consume, ProcessOrder::cpu);
    first.join();
    second.join();
    third.join();
    EXPECT_EQ(wrong, 0);
}

TEST(ProcessSampler, ThisProcessIsListedOnTheRunningMachine) {
    ManualClock clock;
    ProcessSampler sampler(Root(), clock, [&](std::chrono::milliseconds time) { clock.advance(time); });
    SampledProcessTable table(sampler);
    bool found = false;
    for (const auto& row : table.rows(ProcessOrder::memory, 100'000)) {
        if (row.pid != ::getpid()) continue;
        found = true;
        EXPECT_TRUE(row.command.ends_with("/platform_linux_processes_tests")) << row.command;
        EXPECT_GT(row.memPercent, 0);
    }
    EXPECT_TRUE(found);
}

} // namespace
} // namespace tarvo::linux_platform
