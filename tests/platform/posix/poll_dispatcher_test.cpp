#include "platform/posix/poll_dispatcher.h"

#include "platform/posix/system_clock.h"
#include "support/manual_clock.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

/// A system whose waits end at once: virtual time moves on instead.
struct VirtualPoll {
    void operator()(std::span<pollfd> descriptors, int timeout) {
        waits.push_back(timeout);
        for (auto& descriptor : descriptors)
            descriptor.revents = 0;
        // A task that waits ends the wait before any time passes.
        if (::poll(descriptors.data(), 1, 0) == 1 || timeout < 0) return;
        clock.advance(std::chrono::milliseconds{timeout} + lateness);
    }

    ManualClock& clock;
    std::chrono::nanoseconds lateness{0};
    std::vector<int> waits{};
};

struct PollDispatcherTest : testing::Test {
    ManualClock clock;
    VirtualPoll poll{clock};
    PollDispatcher dispatcher{clock, std::ref(poll)};
};

TEST_F(PollDispatcherTest, OneTimerMeansOneWakeUpAPeriod) {
    int fired = 0;
    const auto timer = dispatcher.repeat(2s, [&] {
        if (++fired == 100) dispatcher.stop();
    });
    dispatcher.run();
    EXPECT_EQ(fired, 100);
    EXPECT_EQ(poll.waits, std::vector<int>(100, 2000));
}

TEST_F(PollDispatcherTest, WakeUpsThatComeLateStayOneAPeriod) {
    poll.lateness = 370us;
    int fired = 0;
    std::vector<SteadyTime> moments;
    const auto timer = dispatcher.repeat(2s, [&] {
        moments.push_back(clock.steadyNow());
        if (++fired == 50) dispatcher.stop();
    });
    dispatcher.run();
    EXPECT_EQ(poll.waits.size(), 50U);
    for (std::size_t i = 1; i < moments.size(); ++i)
        EXPECT_GE(moments[i] - moments[i - 1], 2s);
}

TEST_F(PollDispatcherTest, AWaitIsRoundedUpToWholeMilliseconds) {
    dispatcher.after(5ms, [&] { dispatcher.stop(); });
    clock.advance(4500us);
    dispatcher.run();
    EXPECT_EQ(poll.waits, (std::vector{1}));
}

TEST_F(PollDispatcherTest, WithoutTimersItWaitsWithoutEnd) {
    dispatcher.async([&] { dispatcher.stop(); });
    dispatcher.run();
    EXPECT_EQ(poll.waits, (std::vector{-1}));
}

TEST_F(PollDispatcherTest, ATimerThatIsWeeksAwayWaitsAsLongAsPollCan) {
    dispatcher.after(std::chrono::hours{24 * 60}, [] {});
    dispatcher.async([&] { dispatcher.stop(); });
    dispatcher.run();
    EXPECT_EQ(poll.waits, (std::vector{2147483647}));
}

TEST_F(PollDispatcherTest, AStopBeforeTheRunEndsItAtOnce) {
    dispatcher.stop();
    dispatcher.run();
    EXPECT_TRUE(poll.waits.empty());
}

TEST_F(PollDispatcherTest, ATaskThatPutsItselfAgainStarvesNoTimer) {
    Task again = [&] { dispatcher.async(again); };
    int turns = 0;
    dispatcher.async([&] {
        again();
        clock.advance(2s);
    });
    const auto timer = dispatcher.repeat(1s, [&] {
        if (++turns == 1) dispatcher.stop();
    });
    dispatcher.run();
    EXPECT_EQ(turns, 1);
}

TEST(PollDispatcher, ATaskFromAnotherThreadWakesTheLoop) {
    SystemClock clock;
    PollDispatcher dispatcher(clock);
    const auto main = std::this_thread::get_id();
    std::thread::id background;
    std::thread::id back;
    dispatcher.global(QualityOfService::utility, [&] {
        background = std::this_thread::get_id();
        dispatcher.async([&] {
            back = std::this_thread::get_id();
            dispatcher.stop();
        });
    });
    dispatcher.run();
    EXPECT_NE(background, main);
    EXPECT_EQ(back, main);
}

TEST(PollDispatcher, ARealTimerFiresNotBeforeItsTime) {
    SystemClock clock;
    PollDispatcher dispatcher(clock);
    const auto begun = clock.steadyNow();
    int fired = 0;
    const auto timer = dispatcher.repeat(2ms, [&] {
        if (++fired == 3) dispatcher.stop();
    });
    dispatcher.run();
    EXPECT_GE(clock.steadyNow() - begun, 6ms);
}

TEST(PollDispatcher, AReaderThatIsGoneIsNoticedOnce) {
    SystemClock clock;
    PollDispatcher dispatcher(clock);
    auto pipe = makePipe();
    ASSERT_TRUE(pipe);
    int hangUps = 0;
    dispatcher.watchHangUp(pipe->writeEnd.get(), [&] {
        ++hangUps;
        dispatcher.after(1ms, [&] { dispatcher.stop(); });
    });
    dispatcher.async([&] { pipe->readEnd.reset(); });
    dispatcher.run();
    EXPECT_EQ(hangUps, 1);
}

TEST(PollDispatcher, APipeWhoseReaderIsThereIsNoReasonToWakeUp) {
    SystemClock clock;
    int waits = 0;
    PollDispatcher dispatcher(clock, [&](std::span<pollfd> descriptors, int timeout) {
        ++waits;
        ::poll(descriptors.data(), descriptors.size(), timeout);
    });
    const auto pipe = makePipe();
    ASSERT_TRUE(pipe);
    int hangUps = 0;
    dispatcher.watchHangUp(pipe->writeEnd.get(), [&] { ++hangUps; });
    dispatcher.after(3ms, [&] { dispatcher.stop(); });
    dispatcher.run();
    EXPECT_EQ(hangUps, 0);
    EXPECT_EQ(waits, 1);
}

TEST(PollDispatcher, SerialQueuesWorkInTheBackground) {
    SystemClock clock;
    PollDispatcher dispatcher(clock);
    const auto queue = dispatcher.makeSerialQueue("io.github.tarvo.Tarvo.hardware");
    std::vector<int> order;
    for (int i = 0; i < 3; ++i)
        queue->async([&order, i] { order.push_back(i); });
    queue->async([&] { dispatcher.async([&] { dispatcher.stop(); }); });
    dispatcher.run();
    EXPECT_EQ(order, (std::vector{0, 1, 2}));
    EXPECT_TRUE(dispatcher.finish(30s));
}

} // namespace
} // namespace tarvo
