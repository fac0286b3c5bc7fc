#include "core/stats_model.h"
#include "platform/posix/poll_dispatcher.h"
#include "platform/posix/system_clock.h"
#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

/// The model on real threads, a tick a millisecond: what is shared by mistake shows under ThreadSanitizer.
struct StatsModelThreads : testing::Test {
    StatsReaders readers() {
        StatsReaders made;
        made.cpuUsage = [this]() -> const CPUUsage& { return ++ticks, usage; };
        made.networkTotals = [] { return NetworkTotals{1, 2}; };
        made.diskIOTotals = [] { return DiskIOTotals{3, 4}; };
        made.sensorReadings = [this] {
            EXPECT_FALSE(readingSensors.exchange(true)) << "two sensor reads at once";
            SensorReadings sensors{.cpuTempCelsius = 50, .hasFan = true, .fanRPMs = {1000, 1100}};
            readingSensors = false;
            return sensors;
        };
        made.gpuUtilizationPercent = [this] { return noteThread(), std::optional(10.0); };
        made.topProcesses = [this](ProcessSort, std::int64_t) {
            noteThread();
            return std::vector<ProcInfo>(5, ProcInfo{.pid = 1, .name = "a process with a long name"});
        };
        made.topNetworkProcesses = [this](std::int64_t) { return noteThread(), std::vector<NetProcInfo>(5); };
        made.timeMachineInfo = [] { return TimeMachineInfo{}; };
        return made;
    }
    void noteThread() {
        if (std::this_thread::get_id() == main) onMainThread = true;
    }

    SystemClock clock;
    PollDispatcher dispatcher{clock};
    MemoryPreferenceStore store;
    Settings settings{store};
    CPUUsage usage{50, {50, 50}};
    const std::thread::id main = std::this_thread::get_id();
    std::atomic<bool> readingSensors = false;
    std::atomic<bool> onMainThread = false;
    int ticks = 0;
};

TEST_F(StatsModelThreads, SlowReadersRunElsewhereAndTheirResultsArriveOnTheMainThread) {
    store.set("refreshInterval", 0.001);
    auto model = StatsModel::make(settings, clock, dispatcher, readers(), nullptr);
    bool elsewhere = false;
    const auto subscription = model->publishedSnap().observeWillChange(
        [&] { elsewhere = elsewhere || std::this_thread::get_id() != main; });
    model->onUpdate = [&](const StatsSnapshot& snapshot) {
        model->refreshProcessesAsync();
        if (ticks >= 100 && snapshot.cpuTemp && !snapshot.topMem.empty() && snapshot.timeMachine)
            dispatcher.stop();
    };
    model->start();
    model->setDetailVisible(true);
    dispatcher.run();
    EXPECT_FALSE(onMainThread);
    EXPECT_FALSE(elsewhere);
    EXPECT_EQ(model->snap().fanRPMs.size(), 2U);
}

TEST_F(StatsModelThreads, TheModelMayGoWhileItsReadersAreAtWork) {
    for (int round = 0; round < 20; ++round) {
        PollDispatcher loop(clock);
        auto model = StatsModel::make(settings, clock, loop, readers(), nullptr);
        model->start();
        model->setDetailVisible(true);
        model->refreshProcessesAsync();
        const std::weak_ptr<StatsModel> weak = model;
        loop.async([&] {
            model.reset();
            EXPECT_TRUE(weak.expired());
        });
        loop.async([&] { loop.stop(); });
        loop.run();
        EXPECT_TRUE(loop.finish(30s));
    }
}

TEST_F(StatsModelThreads, ASensorThatHangsStopsNeitherTheTicksNorTheDestructionOfTheModel) {
    store.set("refreshInterval", 0.001);
    std::promise<void> release;
    auto made = readers();
    made.sensorReadings = [&] { return release.get_future().wait(), SensorReadings{}; };
    auto model = StatsModel::make(settings, clock, dispatcher, std::move(made), nullptr);
    model->onUpdate = [&](const StatsSnapshot&) {
        if (ticks >= 50) dispatcher.stop();
    };
    model->start();
    model->setDetailVisible(true);
    dispatcher.run();
    EXPECT_FALSE(model->snap().cpuTemp);
    model.reset(); // returns although the reader does not
    EXPECT_FALSE(dispatcher.finish(1ms));
    release.set_value();
    EXPECT_TRUE(dispatcher.finish(30s));
}

} // namespace
} // namespace tarvo
