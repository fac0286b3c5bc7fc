#include "platform/posix/timer_list.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

constexpr SteadyTime start{1h};

TEST(TimerList, AnEmptyListIsNeverDue) {
    TimerList timers;
    EXPECT_FALSE(timers.nextDue());
    timers.fire(start);
    EXPECT_FALSE(timers.nextDue());
}

TEST(TimerList, ARepeatingTimerFiresAfterEachPeriod) {
    TimerList timers;
    int fired = 0;
    const auto timer = timers.repeat(start, 2s, [&] { ++fired; });
    EXPECT_EQ(timers.nextDue(), start + 2s);
    timers.fire(start + 1999ms);
    EXPECT_EQ(fired, 0);
    timers.fire(start + 2s);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(timers.nextDue(), start + 4s);
}

TEST(TimerList, ALateFiringIsNeverFollowedByAShortPeriod) {
    TimerList timers;
    int fired = 0;
    const auto timer = timers.repeat(start, 2s, [&] { ++fired; });
    timers.fire(start + 7s); // three periods late, as after a stop of the process
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(timers.nextDue(), start + 9s);
}

TEST(TimerList, ADestroyedTimerIsDueNoMore) {
    TimerList timers;
    int fired = 0;
    auto timer = timers.repeat(start, 2s, [&] { ++fired; });
    timer.reset();
    EXPECT_FALSE(timers.nextDue());
    timers.fire(start + 2s);
    EXPECT_EQ(fired, 0);
}

TEST(TimerList, ATimerMayReplaceItselfWhileItFires) {
    TimerList timers;
    int fired = 0;
    std::unique_ptr<Timer> timer;
    timer = timers.repeat(start, 2s, [&] { timer = timers.repeat(start + 2s, 5s, [&] { ++fired; }); });
    timers.fire(start + 2s);
    EXPECT_EQ(timers.nextDue(), start + 7s);
    timers.fire(start + 7s);
    EXPECT_EQ(fired, 1);
}

TEST(TimerList, ATimerMayDestroyAnotherThatIsDueToo) {
    TimerList timers;
    int fired = 0;
    std::unique_ptr<Timer> second;
    const auto first = timers.repeat(start, 1s, [&] { second.reset(); });
    second = timers.repeat(start, 2s, [&] { ++fired; });
    timers.fire(start + 2s);
    EXPECT_EQ(fired, 0);
}

TEST(TimerList, ASingleShotFiresOnceAndNeedsNoHandle) {
    TimerList timers;
    int fired = 0;
    timers.after(start + 3s, [&] { ++fired; });
    timers.fire(start + 3s);
    timers.fire(start + 30s);
    EXPECT_EQ(fired, 1);
    EXPECT_FALSE(timers.nextDue());
}

TEST(TimerList, DueTimersFireInTheOrderOfTheirMoments) {
    TimerList timers;
    std::vector<int> order;
    timers.after(start + 3s, [&] { order.push_back(3); });
    timers.after(start + 1s, [&] { order.push_back(1); });
    timers.after(start + 2s, [&] { order.push_back(2); });
    timers.fire(start + 5s);
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST(TimerList, APeriodOfZeroDoesNotFireForever) {
    TimerList timers;
    int fired = 0;
    const auto timer = timers.repeat(start, 0ms, [&] { ++fired; });
    timers.fire(start);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(timers.nextDue(), start + 1ms);
}

TEST(TimerList, AHandleMayOutliveTheList) {
    std::optional<TimerList> timers(std::in_place);
    const auto timer = timers->repeat(start, 1s, [] {});
    timers.reset();
    EXPECT_NE(timer, nullptr);
}

} // namespace
} // namespace tarvo
