#include "platform/posix/worker_threads.h"

#include "eventually.h"

#include <gtest/gtest.h>

#include <signal.h>

#include <atomic>
#include <future>
#include <latch>
#include <thread>
#include <vector>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

TEST(WorkerThreads, NoThreadExistsUntilATaskComes) {
    WorkerThreads workers(4);
    EXPECT_EQ(workers.count(), 0U);
    std::promise<std::thread::id> ran;
    workers.async([&] { ran.set_value(std::this_thread::get_id()); });
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
    EXPECT_EQ(workers.count(), 1U);
}

TEST(WorkerThreads, TasksThatBlockMakeItGrowToItsMaximumOnly) {
    WorkerThreads workers(3);
    std::latch allRun(3);
    std::latch release(1);
    std::atomic<int> ended = 0;
    for (int i = 0; i < 3; ++i) {
        workers.async([&] {
            allRun.count_down();
            release.wait();
            ++ended;
        });
    }
    allRun.wait();
    for (int i = 0; i < 5; ++i)
        workers.async([&] { ++ended; });
    EXPECT_EQ(workers.count(), 3U);
    EXPECT_EQ(ended, 0);
    release.count_down();
    EXPECT_TRUE(eventually([&] { return ended == 8; }));
    EXPECT_LE(workers.count(), 3U);
}

TEST(WorkerThreads, AnIdleThreadIsUsedAgain) {
    WorkerThreads workers(4);
    for (int i = 0; i < 50; ++i) {
        std::promise<void> ran;
        workers.async([&] { ran.set_value(); });
        ran.get_future().wait();
    }
    EXPECT_LE(workers.count(), 4U);
}

TEST(WorkerThreads, IdleThreadsEndAndANewOneComesWhenNeeded) {
    WorkerThreads workers(4, 1ms);
    for (int round = 0; round < 3; ++round) {
        std::promise<void> ran;
        workers.async([&] { ran.set_value(); });
        ran.get_future().wait();
        EXPECT_TRUE(eventually([&] { return workers.count() == 0; }));
    }
}

TEST(WorkerThreads, WithOneThreadTheTasksRunInOrderAndOneAtATime) {
    WorkerThreads workers(1, 0ms);
    std::vector<int> order; // without a lock: a second thread at the same time would be a race
    std::promise<void> done;
    for (int i = 0; i < 1000; ++i)
        workers.async([&order, i] { order.push_back(i); });
    workers.async([&] { done.set_value(); });
    done.get_future().wait();
    ASSERT_EQ(order.size(), 1000U);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
}

TEST(WorkerThreads, ATaskMayAddAnother) {
    WorkerThreads workers(1);
    std::promise<void> done;
    workers.async([&] { workers.async([&] { done.set_value(); }); });
    done.get_future().wait();
    EXPECT_EQ(workers.count(), 1U);
}

TEST(WorkerThreads, WhatATaskHoldsIsReleasedWhenItHasRun) {
    WorkerThreads workers(1);
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> weak = held;
    workers.async([held = std::move(held)] {});
    EXPECT_TRUE(eventually([&] { return weak.expired(); }));
}

TEST(WorkerThreads, DestroyingItWaitsForTheTaskThatRunsAndDropsTheOthers) {
    std::promise<void> started;
    std::promise<void> queued;
    std::atomic<bool> ended = false;
    std::atomic<bool> second = false;
    {
        WorkerThreads workers(1);
        workers.async([&] {
            started.set_value();
            queued.get_future().wait();
            for (int i = 0; i < 1000; ++i)
                std::this_thread::yield();
            ended = true;
        });
        started.get_future().wait();
        workers.async([&] { second = true; });
        queued.set_value();
    }
    EXPECT_TRUE(ended);
    EXPECT_FALSE(second);
}

TEST(WorkerThreads, FinishGivesUpOnATaskThatHangs) {
    WorkerThreads workers(1);
    std::promise<void> release;
    std::promise<void> started;
    workers.async([&] {
        started.set_value();
        release.get_future().wait();
    });
    started.get_future().wait();
    EXPECT_FALSE(workers.finish(1ms));
    release.set_value();
    EXPECT_TRUE(workers.finish());
}

TEST(WorkerThreads, NoTaskIsTakenOnceItIsFinished) {
    WorkerThreads workers(1);
    EXPECT_TRUE(workers.finish(0ms));
    std::atomic<bool> ran = false;
    workers.async([&] { ran = true; });
    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(ran);
}

TEST(WorkerThreads, SignalsAreLeftToTheMainThread) {
    WorkerThreads workers(1);
    std::promise<bool> blocked;
    workers.async([&] {
        sigset_t mask;
        pthread_sigmask(SIG_SETMASK, nullptr, &mask);
        blocked.set_value(sigismember(&mask, SIGTERM) == 1);
    });
    EXPECT_TRUE(blocked.get_future().get());
    sigset_t own;
    pthread_sigmask(SIG_SETMASK, nullptr, &own);
    EXPECT_EQ(sigismember(&own, SIGTERM), 0);
}

} // namespace
} // namespace tarvo
