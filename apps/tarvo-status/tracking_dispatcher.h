#pragma once

#include "platform/dispatcher.h"

#include <atomic>
#include <memory>
#include <utility>

namespace tarvo::status {

/// Another dispatcher's queues, with the knowledge whether background work is under way: a task on a
/// background queue together with what it left for the main thread.
class TrackingDispatcher : public Dispatcher {
public:
    /// `inner` outlives this, and this outlives every task.
    explicit TrackingDispatcher(Dispatcher& inner) : inner_(inner) {}

    void async(Task task) override { inner_.async(std::move(task)); }
    void after(std::chrono::milliseconds delay, Task task) override { inner_.after(delay, std::move(task)); }
    void global(QualityOfService quality, Task task) override {
        inner_.global(quality, tracked(std::move(task)));
    }
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string& label) override {
        return std::make_unique<Queue>(*this, inner_.makeSerialQueue(label));
    }
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds period, Task task) override {
        return inner_.repeat(period, std::move(task));
    }

    /// Runs the task once, as soon as no background work is under way: now, or later. Main thread only.
    void whenIdle(Task task) {
        waiting_ = std::move(task);
        runWhenIdle();
    }

private:
    struct Queue : SerialQueue {
        Queue(TrackingDispatcher& dispatcher, std::unique_ptr<SerialQueue> queue)
            : owner(dispatcher), inner(std::move(queue)) {}
        void async(Task task) override { inner->async(owner.tracked(std::move(task))); }
        TrackingDispatcher& owner;
        std::unique_ptr<SerialQueue> inner;
    };

    Task tracked(Task task) {
        ++underWay_;
        return [this, held = std::move(task)] {
            held();
            // Behind what the task itself left for the main thread.
            inner_.async([this] {
                --underWay_;
                runWhenIdle();
            });
        };
    }
    void runWhenIdle() {
        if (underWay_ == 0 && waiting_) std::exchange(waiting_, nullptr)();
    }

    Dispatcher& inner_;
    std::atomic<int> underWay_ = 0;
    Task waiting_;
};

} // namespace tarvo::status
