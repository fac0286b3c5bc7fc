#include "status_run.h"

#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tarvo::status {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class StatusRunTest : public testing::Test {
protected:
    void start(const Options& given) {
        options = given;
        StatsReaders readers;
        readers.cpuUsage = [this]() -> const CPUUsage& {
            usage.total += 1; // the reading's number
            return usage;
        };
        readers.sensorReadings = [] { return SensorReadings{.cpuTempCelsius = 55}; };
        readers.topProcesses = [](ProcessSort, std::int64_t) { return std::vector<ProcInfo>{{.pid = 1}}; };
        model = StatsModel::make(settings, clock, dispatcher, readers, nullptr);
        run =
            std::make_unique<StatusRun>(options, *model, settings, preferences, clock, dispatcher,
                                        StatusRun::Actions{.print =
                                                               [this](const StatsSnapshot& snapshot) {
                                                                   printed.push_back(snapshot);
                                                                   times.push_back(clock.steadyNow() - began);
                                                               },
                                                           .end = [this] { ++ends; },
                                                           .refreshPreferences =
                                                               [this] {
                                                                   ++refreshes;
                                                                   if (changePreferences) changePreferences();
                                                               }});
        began = clock.steadyNow();
        run->start();
    }

    MemoryPreferenceStore user;
    IntervalPreferences preferences{user};
    Settings settings{preferences};
    ManualClock clock;
    ManualDispatcher manual{clock};
    TrackingDispatcher dispatcher{manual};
    Options options;
    CPUUsage usage;
    std::shared_ptr<StatsModel> model;
    std::unique_ptr<StatusRun> run;
    SteadyTime began;
    std::vector<StatsSnapshot> printed;
    std::vector<SteadyTime::duration> times;
    int ends = 0;
    int refreshes = 0;
    std::function<void()> changePreferences;
};

TEST_F(StatusRunTest, PrintsOnceAfterAQuarterOfASecondAndEnds) {
    start({.once = true});
    manual.advance(249ms);
    EXPECT_TRUE(printed.empty());
    manual.advance(10s);
    EXPECT_THAT(times, ElementsAre(250ms));
    EXPECT_EQ(printed[0].cpu, 3) << "the priming reading, the first tick and the second";
    EXPECT_EQ(ends, 1);
}

TEST_F(StatusRunTest, PrintsOnceAllBackgroundReadingsHaveAnswered) {
    start({.once = true, .detail = true});
    manual.advance(1s);
    ASSERT_EQ(printed.size(), 1u);
    EXPECT_EQ(printed[0].cpuTemp, 55);
    EXPECT_EQ(printed[0].topCPU.size(), 1u);
    EXPECT_EQ(ends, 1);
}

TEST_F(StatusRunTest, TakesNoDetailedReadingsUnasked) {
    start({.once = true});
    EXPECT_EQ(manual.queuedBackground(), 0u);
    manual.advance(1s);
    EXPECT_EQ(printed.at(0).cpuTemp, std::nullopt);
}

TEST_F(StatusRunTest, PrintsWithoutAReadingThatDoesNotAnswer) {
    start({.once = true});
    manual.advance(200ms);
    dispatcher.global(QualityOfService::utility, [] {}); // runs below only
    ManualDispatcher::Tasks stuck = manual.takeBackground();
    manual.advance(50ms);
    EXPECT_TRUE(printed.empty());
    manual.advance(9'999ms);
    EXPECT_TRUE(printed.empty());
    manual.advance(1ms);
    EXPECT_EQ(printed.size(), 1u);
    EXPECT_EQ(ends, 1);
    for (const auto& task : stuck)
        task();
    manual.advance(10s);
    EXPECT_EQ(printed.size(), 1u) << "an answer that comes too late";
}

TEST_F(StatusRunTest, PrintsALineEachTickAtThePreferredInterval) {
    user.set("refreshInterval", 5.0);
    start({});
    manual.advance(11s);
    EXPECT_THAT(times, ElementsAre(250ms, 5'250ms, 10'250ms));
    EXPECT_EQ(ends, 0);
}

TEST_F(StatusRunTest, PrintsEveryTwoSecondsWithoutAPreference) {
    start({});
    manual.advance(5s);
    EXPECT_THAT(times, ElementsAre(250ms, 2'250ms, 4'250ms));
}

TEST_F(StatusRunTest, PrefersTheIntervalOfTheCommandLine) {
    user.set("refreshInterval", 5.0);
    start({.interval = Seconds(0.5)});
    manual.advance(1s);
    EXPECT_THAT(times, ElementsAre(250ms, 750ms));
}

TEST_F(StatusRunTest, FollowsAPreferenceThatChanges) {
    start({});
    manual.advance(1s);
    user.set("refreshInterval", 1.0);
    manual.advance(4s);
    EXPECT_THAT(times, ElementsAre(250ms, 2'250ms, 3'250ms, 4'250ms));
}

TEST_F(StatusRunTest, LooksAtThePreferencesEveryFiveSecondsAtMost) {
    start({.interval = Seconds(0.1)});
    manual.advance(61s);
    EXPECT_EQ(refreshes, 12);
}

TEST_F(StatusRunTest, PrintsWithPreferencesThatItHasJustRead) {
    changePreferences = [this] { user.set("refreshInterval", 1.0); };
    start({});
    manual.advance(8s);
    EXPECT_THAT(times, ElementsAre(250ms, 2'250ms, 4'250ms, 6'250ms, 7'250ms));
    EXPECT_EQ(refreshes, 1);
}

TEST_F(StatusRunTest, KeepsOneTimer) {
    start({.detail = true});
    manual.advance(1min);
    EXPECT_EQ(manual.activeTimers(), 1u);
}

} // namespace
} // namespace tarvo::status
