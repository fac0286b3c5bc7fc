#include "stats_model_fixture.h"

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// The same machine, every answer another one.
void changeEveryReading(ScriptedReaders& script) {
    script.cpu = {99, {98, 100}};
    script.memory.memPercent = 90;
    script.memory.memUsedGB = 14.4;
    script.load = LoadAverages{4, 2, 1};
    script.network = {3'000, 1'500};
    script.space = DiskSpace{1, 2};
    script.battery = BatteryInfo{.percentage = 5};
    script.diskIO = {};
    script.localIP.reset();
    script.sensors = {};
    script.gpuUtil.reset();
    script.byCPU.clear();
    script.byMemory.clear();
    script.netProcesses.clear();
    script.timeMachine = {};
    script.ssid.reset();
}

TEST_F(StatsModelTest, WithNoDetailViewOpenTheDetailedReadingsAreNeverTaken) {
    start();
    dispatcher.advance(1h);
    for (const char* name : {"diskIOTotals", "localIPAddress", "fetchPublicIP", "gpuUtilizationPercent",
                             "topCPU", "topMem", "topNetworkProcesses", "timeMachineInfo", "currentSSID"}) {
        EXPECT_EQ(script.count(name), 0) << name;
    }
}

TEST_F(StatsModelTest, OpeningADetailViewPrimesTheDiskCountersAnew) {
    start();
    dispatcher.advance(1min);
    script.diskIO = {1'000'000, 1'000'000};
    model->setDetailVisible(true);
    script.diskIO = {1'004'000, 1'002'000};
    tick();
    EXPECT_EQ(snap().diskReadRate, 2'000.0);
    EXPECT_EQ(snap().diskWriteRate, 1'000.0);
}

TEST_F(StatsModelTest, TheFirstDetailRefreshMeasuresOnlyTheTimeSinceOpening) {
    start();
    dispatcher.advance(61s); // one second after a tick
    model->setDetailVisible(true);
    script.diskIO.read += 500;
    dispatcher.advance(1s);
    EXPECT_EQ(snap().diskReadRate, 500.0);
}

TEST_F(StatsModelTest, AskingAgainForAnOpenDetailViewPrimesNothing) {
    start();
    model->setDetailVisible(true);
    script.calls.clear();
    model->setDetailVisible(true);
    EXPECT_THAT(script.calls, IsEmpty());
}

TEST_F(StatsModelTest, ADiskCounterThatIsResetGivesOneVeryLargeRate) {
    start();
    model->setDetailVisible(true);
    script.diskIO = {0, 2'000};
    tick();
    EXPECT_GT(snap().diskReadRate, 1e18);
    EXPECT_EQ(snap().diskWriteRate, 0.0);
    tick();
    EXPECT_EQ(snap().diskReadRate, 0.0);
}

TEST_F(StatsModelTest, DiskRatesAndTheAddressAreReadyWhenTheTickEnds) {
    start();
    model->setDetailVisible(true);
    std::optional<std::string> seen;
    model->onUpdate = [&](const StatsSnapshot& snapshot) { seen = snapshot.localIP; };
    tick();
    EXPECT_EQ(seen, "192.0.2.10");
}

TEST_F(StatsModelTest, AnAddressThatIsGoneBecomesAbsent) {
    start();
    model->setDetailVisible(true);
    tick();
    script.localIP.reset();
    tick();
    EXPECT_FALSE(snap().localIP);
}

TEST_F(StatsModelTest, OnlyWhatNeedsNoDetailViewFollowsTheMachineWhenTheViewCloses) {
    start();
    store.set("wifiSSIDEnabled", true);
    model->setDetailVisible(true);
    script.diskIO = {6'000, 5'000};
    tick();
    script.publicIPRequests.at(0)("203.0.113.5");
    dispatcher.runMain();
    const StatsSnapshot open = snap();
    EXPECT_EQ(open.diskReadRate, 1'000);
    EXPECT_EQ(open.cpuTemp, 55);
    EXPECT_EQ(open.publicIP, "203.0.113.5");
    EXPECT_EQ(open.wifiSSID, "Attic");

    model->setDetailVisible(false);
    changeEveryReading(script);
    tick();
    StatsSnapshot expected = open;
    expected.cpu = 99;
    expected.perCore = {98, 100};
    expected.memPercent = 90;
    expected.memUsedGB = 14.4;
    expected.loadAvg1 = 4;
    expected.loadAvg5 = 2;
    expected.loadAvg15 = 1;
    expected.netInRate = 1'000;
    expected.netOutRate = 500;
    expected.totalNetIn = 3'000;
    expected.totalNetOut = 1'500;
    EXPECT_EQ(snap(), expected);

    dispatcher.advance(1min);
    expected.netInRate = expected.netOutRate = 0;
    expected.diskFreeGB = 1;
    expected.diskTotalGB = 2;
    expected.battery = BatteryInfo{.percentage = 5};
    EXPECT_EQ(snap(), expected);
}

TEST_F(StatsModelTest, WithoutDisksTheirRatesStayZero) {
    script.diskIO = {};
    start();
    model->setDetailVisible(true);
    for (int i = 0; i < 3; ++i) {
        tick();
        EXPECT_EQ(snap().diskReadRate, 0);
        EXPECT_EQ(snap().diskWriteRate, 0);
    }
}

TEST_F(StatsModelTest, ThePublicAddressIsFetchedOnceAndThenEveryFiveMinutesForGood) {
    start();
    model->setDetailVisible(true);
    tick();
    EXPECT_EQ(script.count("fetchPublicIP"), 1);
    tick();
    EXPECT_EQ(script.count("fetchPublicIP"), 1);
    model->setDetailVisible(false);
    dispatcher.advance(298s); // 300 s after the first fetch
    EXPECT_EQ(script.count("fetchPublicIP"), 2);
    dispatcher.advance(600s);
    EXPECT_EQ(script.count("fetchPublicIP"), 4);
}

TEST_F(StatsModelTest, ThePublicAddressIsWrittenInALaterTurnAndClearedByAFailedFetch) {
    start();
    model->setDetailVisible(true);
    tick();
    script.publicIPRequests.at(0)("203.0.113.5");
    EXPECT_FALSE(snap().publicIP);
    dispatcher.runMain();
    EXPECT_EQ(snap().publicIP, "203.0.113.5");
    dispatcher.advance(300s);
    script.publicIPRequests.at(1)(std::nullopt);
    dispatcher.runMain();
    EXPECT_FALSE(snap().publicIP);
}

TEST_F(StatsModelTest, AnAddressThatArrivesAfterTheModelIsGoneIsDropped) {
    start();
    model->setDetailVisible(true);
    tick();
    model.reset();
    script.publicIPRequests.at(0)("203.0.113.5");
    EXPECT_TRUE(dispatcher.runMain());
    dispatcher.advance(10min);
    EXPECT_EQ(script.count("fetchPublicIP"), 1);
}

TEST_F(StatsModelTest, ADetailTickPublishesItsSnapshotFirstAndThenFieldByField) {
    start();
    dispatcher.runAll();
    model->setDetailVisible(true);
    std::vector<StatsSnapshot> before;
    const auto subscription = model->publishedSnap().observeWillChange([&] { before.push_back(snap()); });
    script.diskIO = {6'000, 4'000};
    script.cpu.total = 20;
    tick();
    // tick, read rate, write rate, local address, then six hardware fields, two lists, three extras
    EXPECT_EQ(before.size(), 4U + 6U + 2U + 3U);
    EXPECT_EQ(before.at(0).cpu, 12.5);
    EXPECT_EQ(before.at(1).cpu, 20);
    EXPECT_EQ(before.at(1).diskReadRate, 0);
    EXPECT_GT(before.at(2).diskReadRate, 0);
    EXPECT_EQ(before.at(2).diskWriteRate, 0);
    EXPECT_GT(before.at(3).diskWriteRate, 0);
    EXPECT_FALSE(before.at(3).localIP);
    EXPECT_TRUE(before.at(4).localIP);
}

} // namespace
} // namespace tarvo
