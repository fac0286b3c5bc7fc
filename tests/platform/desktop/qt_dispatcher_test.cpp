#include "platform/desktop/qt_dispatcher.h"

#include "support/qt_wait.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace tarvo::desktop {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(QtDispatcher, RunsMainTasksInOrderInALaterTurn) {
    QtDispatcher dispatcher;
    std::vector<int> order;
    dispatcher.async([&] { order.push_back(1); });
    dispatcher.async([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty());
    EXPECT_TRUE(waitUntil([&] { return order.size() == 2; }));
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST(QtDispatcher, ABackgroundTaskComesBackToTheMainThread) {
    QtDispatcher dispatcher;
    const auto main = std::this_thread::get_id();
    std::optional<std::thread::id> background;
    std::optional<std::thread::id> back;
    dispatcher.global(QualityOfService::utility, [&] {
        background = std::this_thread::get_id();
        dispatcher.async([&] { back = std::this_thread::get_id(); });
    });
    EXPECT_TRUE(waitUntil([&] { return back.has_value(); }));
    EXPECT_NE(*background, main);
    EXPECT_EQ(*back, main);
}

TEST(QtDispatcher, ASerialQueueRunsItsTasksInOrder) {
    QtDispatcher dispatcher;
    const auto queue = dispatcher.makeSerialQueue("test");
    std::vector<int> order;
    std::atomic<bool> done = false;
    for (int task = 0; task < 20; ++task)
        queue->async([&order, task] { order.push_back(task); });
    queue->async([&] { done = true; });
    EXPECT_TRUE(waitUntil([&] { return done.load(); }));
    EXPECT_EQ(order.size(), 20U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(QtDispatcher, ATimerRepeatsUntilItIsDestroyed) {
    QtDispatcher dispatcher;
    int fired = 0;
    std::unique_ptr<Timer> timer;
    timer = dispatcher.repeat(1ms, [&] {
        if (++fired == 3) timer.reset();
    });
    EXPECT_TRUE(waitUntil([&] { return timer == nullptr; }));
    bool later = false;
    dispatcher.after(20ms, [&] { later = true; });
    EXPECT_TRUE(waitUntil([&] { return later; }));
    EXPECT_EQ(fired, 3);
}

TEST(QtDispatcher, ADelayedTaskRunsOnceAndDiesWithTheDispatcher) {
    int fired = 0;
    {
        QtDispatcher dispatcher;
        dispatcher.after(1ms, [&] { ++fired; });
        EXPECT_TRUE(waitUntil([&] { return fired == 1; }));
        dispatcher.after(1ms, [&] { ++fired; });
    }
    QtDispatcher other;
    bool later = false;
    other.after(20ms, [&] { later = true; });
    EXPECT_TRUE(waitUntil([&] { return later; }));
    EXPECT_EQ(fired, 1);
}

} // namespace
} // namespace tarvo::desktop
