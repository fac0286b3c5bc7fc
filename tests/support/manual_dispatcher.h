#pragma once

#include "platform/dispatcher.h"
#include "support/manual_clock.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tarvo {

/// Queues that run when told and timers that fire when virtual time passes them, all on the calling thread.
class ManualDispatcher : public Dispatcher {
public:
    using Tasks = std::deque<Task>;

    explicit ManualDispatcher(ManualClock& clock) : clock_(clock) {}

    void async(Task task) override { main_.push_back(std::move(task)); }
    void after(std::chrono::milliseconds delay, Task task) override {
        timers_.push_back({clock_.steadyNow() + delay, std::nullopt, std::move(task), {}, next_++});
    }
    void global(QualityOfService, Task task) override { background_->push_back(std::move(task)); }
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string& label) override {
        serialLabels.push_back(label);
        return std::make_unique<Queue>(background_);
    }
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds period, Task task) override {
        auto alive = std::make_shared<int>();
        timers_.push_back({clock_.steadyNow() + period, period, std::move(task), alive, next_++});
        return std::make_unique<Handle>(std::move(alive));
    }

    /// Runs what the main queue holds, and what that adds to it. False when there was nothing.
    bool runMain() { return drain(main_); }
    /// Runs the background tasks that are queued now or added by them.
    bool runBackground() { return drain(*background_); }
    /// Takes the queued background tasks away: the caller runs them late or never.
    Tasks takeBackground() { return std::exchange(*background_, {}); }
    /// Runs both until nothing is left.
    void runAll() {
        while (runMain() || runBackground()) {
        }
    }
    /// Moves virtual time forward, firing each timer at its moment and running every queue in between.
    void advance(std::chrono::nanoseconds by) {
        const auto end = clock_.steadyNow() + by;
        runAll();
        while (const auto due = nextDue(end)) {
            clock_.advance(due->at - clock_.steadyNow());
            due->task();
            runAll();
        }
        clock_.advance(end - clock_.steadyNow());
    }

    std::size_t activeTimers() {
        dropStopped();
        return timers_.size();
    }
    std::size_t queuedBackground() const { return background_->size(); }

    std::vector<std::string> serialLabels;

private:
    struct Queue : SerialQueue {
        explicit Queue(std::shared_ptr<Tasks> held) : tasks(std::move(held)) {}
        void async(Task task) override { tasks->push_back(std::move(task)); }
        std::shared_ptr<Tasks> tasks;
    };
    struct Handle : Timer {
        explicit Handle(std::shared_ptr<int> held) : alive(std::move(held)) {}
        std::shared_ptr<int> alive;
    };
    struct Pending {
        SteadyTime at;
        std::optional<std::chrono::milliseconds> period; ///< absent: fires once and has no handle
        Task task;
        std::weak_ptr<int> alive;
        unsigned long order;
    };
    struct Due {
        SteadyTime at;
        Task task;
    };

    static bool drain(Tasks& tasks) {
        if (tasks.empty()) return false;
        while (!tasks.empty()) {
            const Task task = std::move(tasks.front());
            tasks.pop_front();
            task();
        }
        return true;
    }
    void dropStopped() {
        std::erase_if(timers_, [](const Pending& timer) { return timer.period && timer.alive.expired(); });
    }
    std::optional<Due> nextDue(SteadyTime end) {
        dropStopped();
        const auto first = std::min_element(timers_.begin(), timers_.end(), [](const auto& a, const auto& b) {
            return std::pair(a.at, a.order) < std::pair(b.at, b.order);
        });
        if (first == timers_.end() || first->at > end) return std::nullopt;
        Due due{first->at, first->task};
        if (first->period) {
            first->at += *first->period;
        } else {
            timers_.erase(first);
        }
        return due;
    }

    ManualClock& clock_;
    Tasks main_;
    std::shared_ptr<Tasks> background_ = std::make_shared<Tasks>();
    std::vector<Pending> timers_;
    unsigned long next_ = 0;
};

} // namespace tarvo
