#include "stats_model_fixture.h"

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(StatsModelTest, DetailFieldsKeepTheirLastValuesWhenTheViewCloses) {
    start();
    store.set("wifiSSIDEnabled", true);
    model->setDetailVisible(true);
    script.diskIO.read += 2'000;
    tick();
    const StatsSnapshot open = snap();
    model->setDetailVisible(false);
    script.diskIO = {};
    script.localIP.reset();
    script.sensors = {};
    script.cpu.total = 99;
    script.space = DiskSpace{1, 2};
    dispatcher.advance(1min);
    EXPECT_EQ(snap().diskReadRate, open.diskReadRate);
    EXPECT_EQ(snap().localIP, open.localIP);
    EXPECT_EQ(snap().cpuTemp, 55);
    EXPECT_EQ(snap().fanRPMs, open.fanRPMs);
    EXPECT_EQ(snap().gpuUtil, 33);
    EXPECT_EQ(snap().topCPU, open.topCPU);
    EXPECT_EQ(snap().timeMachine, open.timeMachine);
    EXPECT_EQ(snap().wifiSSID, "Attic");
    EXPECT_EQ(snap().cpu, 99);
    EXPECT_EQ(snap().diskFreeGB, 1);
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
