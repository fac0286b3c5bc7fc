#include "tracking_dispatcher.h"

#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvo::status {
namespace {

using testing::ElementsAre;

class TrackingDispatcherTest : public testing::Test {
protected:
    Task note(const std::string& word) {
        return [this, word] { log.push_back(word); };
    }

    ManualClock clock;
    ManualDispatcher manual{clock};
    TrackingDispatcher dispatcher{manual};
    std::vector<std::string> log;
};

TEST_F(TrackingDispatcherTest, IsIdleWithoutBackgroundWork) {
    dispatcher.async(note("main"));
    dispatcher.whenIdle(note("idle"));
    EXPECT_THAT(log, ElementsAre("idle"));
}

TEST_F(TrackingDispatcherTest, IsIdleAfterABackgroundTaskAndWhatItLeftForTheMainThread) {
    dispatcher.global(QualityOfService::utility, [this] { dispatcher.async(note("patch")); });
    dispatcher.whenIdle(note("idle"));
    manual.runBackground();
    EXPECT_TRUE(log.empty());
    manual.runMain();
    EXPECT_THAT(log, ElementsAre("patch", "idle"));
}

TEST_F(TrackingDispatcherTest, WaitsForSerialQueuesToo) {
    const auto queue = dispatcher.makeSerialQueue("hardware");
    EXPECT_THAT(manual.serialLabels, ElementsAre("hardware"));
    queue->async(note("sensors"));
    dispatcher.global(QualityOfService::userInitiated, note("processes"));
    dispatcher.whenIdle(note("idle"));
    manual.runAll();
    EXPECT_THAT(log, ElementsAre("sensors", "processes", "idle"));
}

TEST_F(TrackingDispatcherTest, WaitsForWorkThatAPatchStarts) {
    dispatcher.global(QualityOfService::utility, [this] {
        dispatcher.async([this] { dispatcher.global(QualityOfService::utility, note("second")); });
    });
    dispatcher.whenIdle(note("idle"));
    manual.runAll();
    EXPECT_THAT(log, ElementsAre("second", "idle"));
}

TEST_F(TrackingDispatcherTest, TellsOnce) {
    dispatcher.global(QualityOfService::utility, [] {});
    dispatcher.whenIdle(note("idle"));
    manual.runAll();
    dispatcher.global(QualityOfService::utility, [] {});
    manual.runAll();
    EXPECT_THAT(log, ElementsAre("idle"));
}

TEST_F(TrackingDispatcherTest, PassesTimersThrough) {
    dispatcher.after(std::chrono::seconds(1), note("after"));
    const auto timer = dispatcher.repeat(std::chrono::seconds(2), note("repeat"));
    manual.advance(std::chrono::seconds(4));
    EXPECT_THAT(log, ElementsAre("after", "repeat", "repeat"));
}

} // namespace
} // namespace tarvo::status
