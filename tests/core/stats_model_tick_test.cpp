#include "stats_model_fixture.h"

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST_F(StatsModelTest, BeforeItStartsItPublishesTheEmptySnapshotAndReadsNothing) {
    EXPECT_EQ(snap(), StatsSnapshot{});
    EXPECT_TRUE(model->cpuHistory().empty());
    EXPECT_TRUE(model->memHistory().empty());
    EXPECT_FALSE(model->detailVisible());
    EXPECT_TRUE(script.calls.empty());
    EXPECT_EQ(dispatcher.activeTimers(), 0U);
}

TEST_F(StatsModelTest, TheHardwareQueueIsNamedAfterTheApplication) {
    EXPECT_THAT(dispatcher.serialLabels, ElementsAre("io.github.tarvo.Tarvo.hardware"));
}

TEST_F(StatsModelTest, StartPrimesTheCountersThenTicksOnce) {
    model->start();
    EXPECT_THAT(script.calls, ElementsAre("cpuUsage", "diskIOTotals", "networkTotals", // primed
                                          "cpuUsage", "memoryUsage", "loadAverages", "networkTotals",
                                          "diskSpace", "batteryInfo"));
    EXPECT_EQ(dispatcher.activeTimers(), 1U);
}

TEST_F(StatsModelTest, APlainTickReadsOnlyCheapCounters) {
    start();
    dispatcher.runAll();
    script.calls.clear();
    tick();
    EXPECT_THAT(script.calls, ElementsAre("cpuUsage", "memoryUsage", "loadAverages", "networkTotals"));
}

TEST_F(StatsModelTest, ATickStoresTheProcessorMemoryAndLoad) {
    script.memory = {.memPercent = 50,
                     .memUsedGB = 8,
                     .memTotalGB = 16,
                     .memActiveGB = 4,
                     .memWiredGB = 3,
                     .memCompressedGB = 1,
                     .memInactiveGB = 5,
                     .memFreeGB = 2,
                     .swapUsedGB = 0.5,
                     .swapTotalGB = 2};
    start();
    EXPECT_EQ(snap().cpu, 12.5);
    EXPECT_THAT(snap().perCore, ElementsAre(10, 15));
    EXPECT_EQ(snap().memPercent, 50);
    EXPECT_EQ(snap().memUsedGB, 8);
    EXPECT_EQ(snap().memTotalGB, 16);
    EXPECT_EQ(snap().memActiveGB, 4);
    EXPECT_EQ(snap().memWiredGB, 3);
    EXPECT_EQ(snap().memCompressedGB, 1);
    EXPECT_EQ(snap().memInactiveGB, 5);
    EXPECT_EQ(snap().memFreeGB, 2);
    EXPECT_EQ(snap().swapUsedGB, 0.5);
    EXPECT_EQ(snap().swapTotalGB, 2);
    EXPECT_EQ(snap().loadAvg1, 0.5);
    EXPECT_EQ(snap().loadAvg5, 0.25);
    EXPECT_EQ(snap().loadAvg15, 0.125);
}

TEST_F(StatsModelTest, ACoreThatGoesOfflineLeavesTheList) {
    start();
    script.cpu = {7, {7}};
    tick();
    EXPECT_THAT(snap().perCore, ElementsAre(7));
}

TEST_F(StatsModelTest, LoadAveragesThatCannotBeReadKeepTheirValues) {
    start();
    script.load.reset();
    tick();
    EXPECT_EQ(snap().loadAvg1, 0.5);
    EXPECT_EQ(snap().loadAvg15, 0.125);
}

TEST_F(StatsModelTest, TheFirstTickMeasuresTheNetworkOverAtLeastAMillisecond) {
    model = StatsModel::make(
        settings, clock, dispatcher,
        [this] {
            auto readers = script.readers();
            readers.networkTotals = [this] {
                script.network.inBytes += 10;
                return script.network;
            };
            return readers;
        }(),
        &history);
    model->start();
    EXPECT_EQ(snap().netInRate, 10'000.0);
    EXPECT_EQ(snap().netOutRate, 0.0);
}

TEST_F(StatsModelTest, NetworkRatesAreTheAdvanceSinceTheTickBefore) {
    start();
    script.network = {5'000, 1'500};
    tick();
    EXPECT_EQ(snap().netInRate, 2'000.0);
    EXPECT_EQ(snap().netOutRate, 500.0);
    EXPECT_EQ(snap().totalNetIn, 5'000U);
    EXPECT_EQ(snap().totalNetOut, 1'500U);
    tick();
    EXPECT_EQ(snap().netInRate, 0.0);
}

TEST_F(StatsModelTest, ANetworkCounterThatIsResetGivesOneVeryLargeRate) {
    start();
    script.network = {0, 500};
    tick();
    EXPECT_GT(snap().netInRate, 9e18);
    EXPECT_EQ(snap().netOutRate, 0.0);
    script.network = {200, 500};
    tick();
    EXPECT_EQ(snap().netInRate, 100.0);
}

TEST_F(StatsModelTest, DiskSpaceAndBatteryAreReadEveryTenSeconds) {
    start();
    for (int i = 0; i < 4; ++i)
        tick();
    EXPECT_EQ(script.count("diskSpace"), 0);
    tick();
    EXPECT_EQ(script.count("diskSpace"), 1);
    EXPECT_EQ(script.count("batteryInfo"), 1);
}

TEST_F(StatsModelTest, ATickJustShortOfTenSecondsIsNotASlowOne) {
    store.set("refreshInterval", 9.999);
    start();
    dispatcher.advance(9999ms);
    EXPECT_EQ(script.count("diskSpace"), 0);
    dispatcher.advance(9999ms);
    EXPECT_EQ(script.count("diskSpace"), 1);
}

TEST_F(StatsModelTest, DiskSpaceThatCannotBeReadKeepsItsValuesWhileTheBatteryBecomesAbsent) {
    start();
    EXPECT_EQ(snap().diskFreeGB, 100);
    EXPECT_EQ(snap().battery->percentage, 80);
    script.space.reset();
    script.battery.reset();
    dispatcher.advance(10s);
    EXPECT_EQ(snap().diskFreeGB, 100);
    EXPECT_EQ(snap().diskTotalGB, 500);
    EXPECT_FALSE(snap().battery);
}

TEST_F(StatsModelTest, ATickIsPublishedAsOneChange) {
    start();
    int changes = 0;
    double before = -1;
    const auto subscription = model->publishedSnap().observeWillChange([&] {
        ++changes;
        before = snap().cpu;
    });
    script.cpu.total = 77;
    tick();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(before, 12.5);
    EXPECT_EQ(snap().cpu, 77);
}

TEST_F(StatsModelTest, SparklinesKeepTheLastSixtyValuesOldestFirst) {
    start();
    for (int i = 1; i <= 60; ++i) {
        script.cpu.total = i;
        script.memory.memPercent = 100 - i;
        tick();
    }
    ASSERT_EQ(model->cpuHistory().size(), 60U);
    ASSERT_EQ(model->memHistory().size(), 60U);
    EXPECT_EQ(model->cpuHistory().front(), 1); // the value of the first tick has gone
    EXPECT_EQ(model->cpuHistory().back(), 60);
    EXPECT_EQ(model->memHistory().front(), 99);
    EXPECT_EQ(model->memHistory().back(), 40);
}

TEST_F(StatsModelTest, OnUpdateSeesThePublishedSnapshotAndTheSparklinesOfTheTick) {
    std::vector<std::size_t> lengths;
    const StatsSnapshot* seen = nullptr;
    model->onUpdate = [&](const StatsSnapshot& snapshot) {
        seen = &snapshot;
        lengths.push_back(model->cpuHistory().size());
    };
    start();
    tick();
    EXPECT_EQ(seen, &snap());
    EXPECT_THAT(lengths, ElementsAre(1U, 2U));
}

TEST_F(StatsModelTest, TheTimerFollowsTheIntervalFromItsNextRestartOn) {
    start();
    store.set("refreshInterval", 5.0);
    tick();
    EXPECT_EQ(script.count("cpuUsage"), 1);
    model->restartTimer();
    EXPECT_EQ(dispatcher.activeTimers(), 1U);
    dispatcher.advance(4999ms);
    EXPECT_EQ(script.count("cpuUsage"), 1);
    dispatcher.advance(1ms);
    EXPECT_EQ(script.count("cpuUsage"), 2);
}

TEST_F(StatsModelTest, AnIntervalOfZeroOrLessIsTwoSeconds) {
    for (const double stored : {0.0, -1.0}) {
        store.set("refreshInterval", stored);
        model->restartTimer();
        script.calls.clear();
        dispatcher.advance(1999ms);
        EXPECT_EQ(script.count("cpuUsage"), 0) << stored;
        dispatcher.advance(1ms);
        EXPECT_EQ(script.count("cpuUsage"), 1) << stored;
    }
}

TEST_F(StatsModelTest, AbsurdIntervalsStillGiveATimer) {
    store.set("refreshInterval", 1e300);
    model->restartTimer();
    dispatcher.advance(24h);
    EXPECT_EQ(script.count("cpuUsage"), 0);
    store.set("refreshInterval", 1e-300);
    model->restartTimer();
    dispatcher.advance(3ms);
    EXPECT_EQ(script.count("cpuUsage"), 3);
}

TEST_F(StatsModelTest, TheTimerMayBeRestartedFromWithinATick) {
    model->onUpdate = [this](const StatsSnapshot&) { model->restartTimer(); };
    start();
    tick();
    tick();
    EXPECT_EQ(script.count("cpuUsage"), 2);
    EXPECT_EQ(dispatcher.activeTimers(), 1U);
}

TEST_F(StatsModelTest, WithoutAnyReaderItTicksAndKeepsTheEmptyValues) {
    model = StatsModel::make(settings, clock, dispatcher, {}, nullptr);
    model->start();
    model->setDetailVisible(true);
    dispatcher.advance(2min);
    EXPECT_EQ(snap(), StatsSnapshot{});
    EXPECT_EQ(model->cpuHistory().size(), 60U);
}

TEST_F(StatsModelTest, ATickAfterTheModelIsGoneDoesNothing) {
    start();
    model.reset();
    dispatcher.advance(1min);
    EXPECT_TRUE(script.calls.empty());
}

} // namespace
} // namespace tarvo
