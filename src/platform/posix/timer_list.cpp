#include "platform/posix/timer_list.h"

#include <algorithm>
#include <utility>

namespace tarvo {
namespace {

class Handle : public Timer {
public:
    explicit Handle(std::shared_ptr<Task> task) : task_(std::move(task)) {}

private:
    std::shared_ptr<Task> task_;
};

template <typename Entry>
bool isEarlier(const Entry& one, const Entry& other) {
    return one.due < other.due;
}

} // namespace

void TimerList::after(SteadyTime due, Task task) {
    entries_.push_back({due, std::nullopt, std::make_shared<Task>(std::move(task))});
}

std::unique_ptr<Timer> TimerList::repeat(SteadyTime now, std::chrono::milliseconds period, Task task) {
    auto held = std::make_shared<Task>(std::move(task));
    entries_.push_back({now + period, period, held});
    return std::make_unique<Handle>(std::move(held));
}

// A repeating timer whose handle is gone is held by the list alone.
void TimerList::dropStopped() {
    std::erase_if(entries_, [](const Entry& entry) { return entry.period && entry.task.use_count() == 1; });
}

std::optional<SteadyTime> TimerList::nextDue() {
    dropStopped();
    const auto first = std::min_element(entries_.begin(), entries_.end(), isEarlier<Entry>);
    return first == entries_.end() ? std::nullopt : std::optional(first->due);
}

std::shared_ptr<Task> TimerList::takeDue(SteadyTime now) {
    dropStopped();
    const auto first = std::min_element(entries_.begin(), entries_.end(), isEarlier<Entry>);
    if (first == entries_.end() || first->due > now) return nullptr;
    auto task = first->task;
    if (first->period) {
        first->due = now + std::max(*first->period, std::chrono::milliseconds{1});
    } else {
        entries_.erase(first);
    }
    return task;
}

void TimerList::fire(SteadyTime now) {
    while (const auto task = takeDue(now))
        (*task)();
}

} // namespace tarvo
