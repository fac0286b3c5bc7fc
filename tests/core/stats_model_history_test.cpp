#include "stats_model_fixture.h"

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST_F(StatsModelTest, TheFirstTickOffersASampleWithAFreshTemperature) {
    model->start();
    EXPECT_EQ(history.offers, 0); // the sensors are read in the background first
    dispatcher.runAll();
    EXPECT_THAT(history.samples, ElementsAre(RecordingHistory::Sample{12.5, 40, 55}));
    EXPECT_EQ(script.count("sensorReadings"), 1);
    EXPECT_EQ(script.count("gpuUtilizationPercent"), 0);
    EXPECT_FALSE(snap().cpuTemp); // the reading is for the history alone
}

TEST_F(StatsModelTest, ASampleIsTakenEveryMinute) {
    start();
    dispatcher.advance(1h);
    EXPECT_EQ(history.samples.size(), 61U);
    EXPECT_EQ(history.offers, 61);
    EXPECT_EQ(script.count("sampleProcessDemand"), 61);
}

TEST_F(StatsModelTest, WithADetailViewOpenThePublishedTemperatureIsRecordedAtOnce) {
    start();
    dispatcher.runAll();
    model->setDetailVisible(true);
    dispatcher.advance(58s);
    script.sensors.cpuTempCelsius = 71;
    script.calls.clear();
    tick();
    ASSERT_EQ(history.samples.size(), 2U);
    // what was published at the tick, not what its own hardware refresh brought afterwards
    EXPECT_EQ(history.samples.at(1).cpuTemp, 55);
    EXPECT_EQ(script.count("sensorReadings"), 1);
    EXPECT_EQ(script.count("sampleProcessDemand"), 1);
}

TEST_F(StatsModelTest, ASampleWithoutATemperatureIsRecordedToo) {
    script.sensors = {};
    start();
    dispatcher.runAll();
    EXPECT_THAT(history.samples, ElementsAre(RecordingHistory::Sample{12.5, 40, std::nullopt}));
}

TEST_F(StatsModelTest, TheSampleHoldsWhatIsPublishedWhenTheTemperatureArrives) {
    model->start();
    script.cpu.total = 80;
    clock.advance(2s);
    dispatcher.advance(0s);
    ASSERT_EQ(history.samples.size(), 1U);
    EXPECT_EQ(history.samples.at(0).cpu, 12.5); // no tick came between
    script.cpu.total = 90;
    dispatcher.advance(62s);
    ASSERT_EQ(history.samples.size(), 2U);
    EXPECT_EQ(history.samples.at(1).cpu, 90);
}

TEST_F(StatsModelTest, SensorsThatHangDoNotPileUpSamples) {
    model->start(); // the background never runs from here on
    const auto waiting = dispatcher.queuedBackground();
    for (int i = 0; i < 5; ++i) {
        clock.advance(2s);
        model->start();
    }
    EXPECT_EQ(dispatcher.queuedBackground(), waiting);
}

TEST_F(StatsModelTest, AWallClockThatIsSetBackPausesTheHistory) {
    start();
    dispatcher.runAll();
    clock.setWall(clock.wallNow() - 1h);
    dispatcher.advance(59min);
    EXPECT_EQ(history.samples.size(), 1U);
    dispatcher.advance(2min);
    EXPECT_EQ(history.samples.size(), 2U);
}

TEST_F(StatsModelTest, WithoutAHistoryNeitherSensorsNorDemandAreRead) {
    model = StatsModel::make(settings, clock, dispatcher, script.readers(), nullptr);
    start();
    dispatcher.advance(10min);
    EXPECT_EQ(script.count("sensorReadings"), 0);
    EXPECT_EQ(script.count("sampleProcessDemand"), 0);
}

TEST_F(StatsModelTest, ASampleWhoseModelIsGoneIsNotRecorded) {
    model->start();
    model.reset();
    dispatcher.runAll();
    EXPECT_EQ(history.offers, 0);
    EXPECT_EQ(script.count("sampleProcessDemand"), 0);
}

TEST_F(StatsModelTest, ADayOfTicksKeepsEveryCadence) {
    start();
    dispatcher.advance(24h);
    EXPECT_EQ(script.count("cpuUsage"), 43'200);
    EXPECT_EQ(script.count("diskSpace"), 8'640);
    EXPECT_EQ(history.samples.size(), 1'441U);
    EXPECT_EQ(model->cpuHistory().size(), 60U);
    EXPECT_EQ(dispatcher.activeTimers(), 1U);
    EXPECT_EQ(dispatcher.queuedBackground(), 0U);
}

} // namespace
} // namespace tarvo
