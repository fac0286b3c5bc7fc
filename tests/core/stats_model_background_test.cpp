#include "stats_model_fixture.h"

#include <algorithm>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct BackgroundTest : StatsModelTest {
    void SetUp() override {
        start();
        dispatcher.runAll();
        model->setDetailVisible(true);
        script.calls.clear();
    }
};

/// A queue that keeps its tasks until the test asks for them: the reader that does not return.
class HeldQueues : public ManualDispatcher {
public:
    using ManualDispatcher::ManualDispatcher;

    void global(QualityOfService quality, Task task) override {
        qualities.push_back(quality);
        heldGlobal.push_back(std::move(task));
    }
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string&) override {
        struct HeldQueue : SerialQueue {
            explicit HeldQueue(std::vector<Task>& tasks) : held(tasks) {}
            void async(Task task) override { held.push_back(std::move(task)); }
            std::vector<Task>& held;
        };
        return std::make_unique<HeldQueue>(heldSerial);
    }

    std::vector<Task> heldGlobal;
    std::vector<Task> heldSerial;
    std::vector<QualityOfService> qualities;
};

struct HeldTest : testing::Test {
    void SetUp() override {
        model->start();
        model->setDetailVisible(true);
        queues.heldGlobal.clear();
        queues.heldSerial.clear();
        queues.qualities.clear();
    }
    void tick() { queues.advance(2s); }

    ManualClock clock;
    HeldQueues queues{clock};
    MemoryPreferenceStore store;
    Settings settings{store};
    ScriptedReaders script;
    std::shared_ptr<StatsModel> model = StatsModel::make(settings, clock, queues, script.readers(), nullptr);
};

TEST_F(BackgroundTest, TheHardwareRefreshFillsTheSensorFields) {
    tick();
    EXPECT_EQ(snap().cpuTemp, 55);
    EXPECT_EQ(snap().gpuTemp, 48);
    EXPECT_TRUE(snap().hasFan);
    EXPECT_THAT(snap().fanRPMs, ElementsAre(1200));
    EXPECT_EQ(snap().powerWatts, 9);
    EXPECT_EQ(snap().gpuUtil, 33);
}

TEST_F(BackgroundTest, SensorsThatAnswerNothingMakeTheirFieldsAbsent) {
    tick();
    script.sensors = {};
    script.gpuUtil.reset();
    tick();
    EXPECT_FALSE(snap().cpuTemp || snap().gpuTemp || snap().powerWatts || snap().gpuUtil);
    EXPECT_FALSE(snap().hasFan);
    EXPECT_THAT(snap().fanRPMs, IsEmpty());
}

TEST_F(BackgroundTest, EveryDetailTickReadsTheSensorsOnce) {
    for (int i = 0; i < 10; ++i)
        tick();
    EXPECT_EQ(script.count("sensorReadings"), 10);
    EXPECT_EQ(script.count("gpuUtilizationPercent"), 10);
}

TEST_F(BackgroundTest, ProcessListsAreReadAtMostEveryThreeSeconds) {
    for (int i = 0; i < 6; ++i)
        tick(); // at 2, 4, 6 ... 12 seconds: every other one is 3 s after the last
    EXPECT_EQ(script.count("topCPU"), 3);
    EXPECT_EQ(script.count("topMem"), 3);
    EXPECT_EQ(snap().topCPU, script.byCPU);
    EXPECT_EQ(snap().topMem, script.byMemory);
}

TEST_F(BackgroundTest, ATickExactlyThreeSecondsLaterReadsTheProcessesAgain) {
    store.set("refreshInterval", 3.0);
    model->restartTimer();
    dispatcher.advance(30s);
    EXPECT_EQ(script.count("topCPU"), 10);
}

TEST_F(BackgroundTest, OpeningADetailViewAgainMakesTheProcessListsDue) {
    tick();
    EXPECT_EQ(script.count("topCPU"), 1);
    model->setDetailVisible(false);
    model->setDetailVisible(true);
    tick(); // 2 seconds after the last list
    EXPECT_EQ(script.count("topCPU"), 2);
}

TEST_F(BackgroundTest, ARefreshOfTheProcessesFromOutsideDoesNotMoveTheirCadence) {
    tick();
    model->refreshProcessesAsync();
    dispatcher.runAll();
    EXPECT_EQ(script.count("topCPU"), 2);
    tick();
    EXPECT_EQ(script.count("topCPU"), 2);
    tick();
    EXPECT_EQ(script.count("topCPU"), 3);
}

TEST_F(BackgroundTest, FiveOfEachAreAskedFor) {
    tick();
    EXPECT_THAT(script.limits, ElementsAre(5, 5, 5));
}

TEST_F(BackgroundTest, ExtrasAreReadAtMostEveryFifteenSeconds) {
    for (int i = 0; i < 30; ++i)
        tick(); // 60 s; the first tick that is 15 s after the last comes at 16 s
    EXPECT_EQ(script.count("topNetworkProcesses"), 4);
    EXPECT_EQ(script.count("timeMachineInfo"), 4);
    EXPECT_EQ(snap().topNetProcesses, script.netProcesses);
    EXPECT_EQ(snap().timeMachine, script.timeMachine);
}

TEST_F(BackgroundTest, ATickExactlyFifteenSecondsLaterReadsTheExtrasAgain) {
    store.set("refreshInterval", 5.0);
    model->restartTimer();
    dispatcher.advance(60s); // at 5, 20, 35 and 50 seconds
    EXPECT_EQ(script.count("timeMachineInfo"), 4);
}

TEST_F(BackgroundTest, ReopeningADetailViewDoesNotMakeTheExtrasDue) {
    tick();
    model->setDetailVisible(false);
    model->setDetailVisible(true);
    tick();
    EXPECT_EQ(script.count("timeMachineInfo"), 1);
}

TEST_F(BackgroundTest, TheNetworkNameIsReadOnlyWhenTheUserWantsIt) {
    tick();
    EXPECT_EQ(script.count("currentSSID"), 0);
    EXPECT_FALSE(snap().wifiSSID);
    store.set("wifiSSIDEnabled", true);
    dispatcher.advance(16s);
    EXPECT_EQ(snap().wifiSSID, "Attic");
    store.set("wifiSSIDEnabled", false);
    dispatcher.advance(16s);
    EXPECT_FALSE(snap().wifiSSID);
    EXPECT_EQ(script.count("currentSSID"), 1);
}

TEST_F(HeldTest, AHardwareRefreshThatNeverReturnsIsNotQueuedAgain) {
    for (int i = 0; i < 1000; ++i)
        tick();
    EXPECT_EQ(queues.heldSerial.size(), 1U);
    EXPECT_EQ(script.count("cpuUsage"), 1002); // and the ticks went on
}

TEST_F(HeldTest, TheNextHardwareRefreshFollowsWhenTheResultHasArrived) {
    tick();
    queues.heldSerial.at(0)(); // read, but not yet applied: that takes a turn of the main queue
    EXPECT_FALSE(model->snap().cpuTemp);
    tick();
    EXPECT_EQ(model->snap().cpuTemp, 55);
    EXPECT_EQ(queues.heldSerial.size(), 2U);
}

TEST_F(HeldTest, ExtrasThatNeverReturnAreNotStartedAgainWhileTheProcessListsGoOn) {
    for (int i = 0; i < 300; ++i)
        tick(); // 600 s: lists every 4 s, extras once
    EXPECT_EQ(std::count(queues.qualities.begin(), queues.qualities.end(), QualityOfService::utility), 1);
    EXPECT_EQ(std::count(queues.qualities.begin(), queues.qualities.end(), QualityOfService::userInitiated),
              150);
}

TEST_F(HeldTest, ExtrasThatReturnLateStartAgainAtTheNextTick) {
    tick();
    const Task extras = queues.heldGlobal.back();
    for (int i = 0; i < 20; ++i)
        tick();
    extras();
    const auto before =
        std::count(queues.qualities.begin(), queues.qualities.end(), QualityOfService::utility);
    tick(); // the result is applied in this turn, before the tick
    EXPECT_EQ(std::count(queues.qualities.begin(), queues.qualities.end(), QualityOfService::utility),
              before + 1);
}

TEST_F(HeldTest, ExtrasStillAppearWhenTheDetailViewWasClosedMeanwhile) {
    tick();
    const Task extras = queues.heldGlobal.back();
    model->setDetailVisible(false);
    for (int i = 0; i < 10; ++i)
        tick();
    extras();
    queues.runMain();
    EXPECT_EQ(model->snap().timeMachine, script.timeMachine);
}

TEST_F(HeldTest, TheSettingForTheNetworkNameIsTheOneAtTheStartOfTheRefresh) {
    store.set("wifiSSIDEnabled", true);
    tick();
    store.set("wifiSSIDEnabled", false);
    queues.heldGlobal.back()();
    queues.runMain();
    EXPECT_EQ(model->snap().wifiSSID, "Attic");
}

TEST_F(HeldTest, ProcessListsAreReadAtUserInitiatedAndExtrasAtUtilityQuality) {
    tick();
    EXPECT_THAT(queues.qualities, ElementsAre(QualityOfService::userInitiated, QualityOfService::utility));
}

TEST_F(HeldTest, HardwareFieldsAreWrittenOneByOneInOrder) {
    tick();
    queues.heldSerial.at(0)();
    std::vector<StatsSnapshot> before;
    const auto subscription =
        model->publishedSnap().observeWillChange([&] { before.push_back(model->snap()); });
    queues.runMain();
    before.push_back(model->snap());
    ASSERT_EQ(before.size(), 7U);
    EXPECT_FALSE(before.at(0).cpuTemp);
    EXPECT_TRUE(before.at(1).cpuTemp && !before.at(1).gpuTemp);
    EXPECT_TRUE(before.at(2).gpuTemp && !before.at(2).hasFan);
    EXPECT_TRUE(before.at(3).hasFan && before.at(3).fanRPMs.empty());
    EXPECT_TRUE(!before.at(4).fanRPMs.empty() && !before.at(4).powerWatts);
    EXPECT_TRUE(before.at(5).powerWatts && !before.at(5).gpuUtil);
    EXPECT_TRUE(before.at(6).gpuUtil);
}

TEST_F(HeldTest, ListsAndExtrasAreWrittenOneByOneInOrder) {
    store.set("wifiSSIDEnabled", true);
    tick();
    ASSERT_EQ(queues.heldGlobal.size(), 2U);
    for (const auto& task : queues.heldGlobal)
        task();
    std::vector<StatsSnapshot> before;
    const auto subscription =
        model->publishedSnap().observeWillChange([&] { before.push_back(model->snap()); });
    queues.runMain();
    before.push_back(model->snap());
    ASSERT_EQ(before.size(), 6U);
    EXPECT_TRUE(!before.at(1).topCPU.empty() && before.at(1).topMem.empty());
    EXPECT_TRUE(!before.at(2).topMem.empty() && before.at(2).topNetProcesses.empty());
    EXPECT_TRUE(!before.at(3).topNetProcesses.empty() && !before.at(3).timeMachine);
    EXPECT_TRUE(before.at(4).timeMachine && !before.at(4).wifiSSID);
    EXPECT_TRUE(before.at(5).wifiSSID);
}

TEST_F(HeldTest, WorkThatIsStillQueuedWhenTheModelGoesIsNotDone) {
    tick();
    const auto serial = std::move(queues.heldSerial);
    const auto global = std::move(queues.heldGlobal);
    model.reset();
    script.calls.clear();
    for (const auto& task : serial)
        task();
    for (const auto& task : global)
        task();
    EXPECT_THAT(script.calls, IsEmpty());
    EXPECT_FALSE(queues.runMain());
}

TEST_F(HeldTest, ResultsThatArriveAfterTheModelIsGoneAreDropped) {
    tick();
    for (const auto& task : queues.heldSerial)
        task();
    for (const auto& task : queues.heldGlobal)
        task();
    model.reset();
    EXPECT_TRUE(queues.runMain()); // five results find nobody
}

TEST_F(HeldTest, ADestroyedModelIsNotKeptAliveByWorkThatIsUnderWay) {
    tick();
    const std::weak_ptr<StatsModel> weak = model;
    model.reset();
    EXPECT_TRUE(weak.expired());
}

} // namespace
} // namespace tarvo
