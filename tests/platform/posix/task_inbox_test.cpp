#include "platform/posix/task_inbox.h"

#include <gtest/gtest.h>

#include <poll.h>

#include <memory>
#include <thread>
#include <vector>

namespace tarvo {
namespace {

bool isReadable(const TaskInbox& inbox) {
    pollfd descriptor{inbox.descriptor(), POLLIN, 0};
    return ::poll(&descriptor, 1, 0) == 1;
}

TEST(TaskInbox, IsReadableWhileTasksWait) {
    TaskInbox inbox;
    EXPECT_FALSE(isReadable(inbox));
    inbox.put([] {});
    inbox.put([] {});
    EXPECT_TRUE(isReadable(inbox));
    inbox.runWaiting();
    EXPECT_FALSE(isReadable(inbox));
}

TEST(TaskInbox, RunsTasksInOrderAndThoseTheyAddInTheNextTurn) {
    TaskInbox inbox;
    std::vector<int> order;
    inbox.put([&] {
        order.push_back(1);
        inbox.put([&] { order.push_back(3); });
    });
    inbox.put([&] { order.push_back(2); });
    inbox.runWaiting();
    EXPECT_EQ(order, (std::vector{1, 2}));
    EXPECT_TRUE(isReadable(inbox));
    inbox.runWaiting();
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST(TaskInbox, AnEmptyTurnDoesNothing) {
    TaskInbox inbox;
    inbox.runWaiting();
    EXPECT_FALSE(isReadable(inbox));
}

TEST(TaskInbox, WhatATaskHoldsIsReleasedBeforeTheNextOneRuns) {
    TaskInbox inbox;
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> weak = held;
    inbox.put([held = std::move(held)] {});
    bool released = false;
    inbox.put([&] { released = weak.expired(); });
    inbox.runWaiting();
    EXPECT_TRUE(released);
}

TEST(TaskInbox, ManyThreadsMayPutAtOnce) {
    TaskInbox inbox;
    int ran = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 1000; ++j)
                inbox.put([&] { ++ran; });
        });
    }
    while (ran < 4000)
        inbox.runWaiting();
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(ran, 4000);
    EXPECT_FALSE(isReadable(inbox));
}

} // namespace
} // namespace tarvo
