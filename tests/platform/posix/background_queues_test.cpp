#include "platform/posix/background_queues.h"

#include <gtest/gtest.h>

#include <future>
#include <vector>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

TEST(BackgroundQueues, ASerialQueueRunsItsTasksInOrder) {
    BackgroundQueues queues;
    const auto queue = queues.makeSerialQueue();
    std::vector<int> order;
    std::promise<void> done;
    for (int i = 0; i < 100; ++i)
        queue->async([&order, i] { order.push_back(i); });
    queue->async([&] { done.set_value(); });
    done.get_future().wait();
    ASSERT_EQ(order.size(), 100U);
    EXPECT_EQ(order.front(), 0);
    EXPECT_EQ(order.back(), 99);
}

TEST(BackgroundQueues, ASerialQueueThatHangsHoldsUpNeitherAnotherNorTheGlobalOne) {
    BackgroundQueues queues;
    std::promise<void> hangs;
    std::promise<void> release;
    const auto hanging = queues.makeSerialQueue();
    const auto other = queues.makeSerialQueue();
    hanging->async([&] {
        hangs.set_value();
        release.get_future().wait();
    });
    hangs.get_future().wait(); // a task that has not begun would be dropped at the end
    std::promise<void> otherRan;
    std::promise<void> globalRan;
    other->async([&] { otherRan.set_value(); });
    queues.global([&] { globalRan.set_value(); });
    otherRan.get_future().wait();
    globalRan.get_future().wait();
    EXPECT_FALSE(queues.finish(1ms));
    release.set_value();
    EXPECT_TRUE(queues.finish(30s));
}

TEST(BackgroundQueues, AQueueMayBeDestroyedWhileItsTaskRuns) {
    BackgroundQueues queues;
    std::promise<void> started;
    std::promise<void> release;
    std::promise<void> ended;
    auto queue = queues.makeSerialQueue();
    queue->async([&] {
        started.set_value();
        release.get_future().wait();
        ended.set_value();
    });
    started.get_future().wait();
    queue.reset(); // returns at once
    const auto another = queues.makeSerialQueue();
    release.set_value();
    ended.get_future().wait();
    EXPECT_TRUE(queues.finish(30s));
}

TEST(BackgroundQueues, SlowToolsMayWaitSideBySide) {
    BackgroundQueues queues;
    std::promise<void> first;
    std::promise<void> second;
    std::promise<void> waited;
    // Each ends only when the other has begun.
    queues.global([&] {
        first.set_value();
        second.get_future().wait();
        waited.set_value();
    });
    queues.global([&] {
        first.get_future().wait();
        second.set_value();
    });
    waited.get_future().wait(); // tasks that have not begun would be dropped at the end
    EXPECT_TRUE(queues.finish(30s));
}

} // namespace
} // namespace tarvo
