#include "platform/posix/poll_dispatcher.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace tarvo {
namespace {

// An interrupted wait is a turn in which nothing is due.
void systemPoll(std::span<pollfd> descriptors, int timeout) {
    if (::poll(descriptors.data(), static_cast<nfds_t>(descriptors.size()), timeout) >= 0) return;
    for (auto& descriptor : descriptors)
        descriptor.revents = 0;
}

} // namespace

PollDispatcher::PollDispatcher(Clock& clock) : PollDispatcher(clock, systemPoll) {}

PollDispatcher::PollDispatcher(Clock& clock, Poll poll) : clock_(clock), poll_(std::move(poll)) {}

void PollDispatcher::async(Task task) {
    inbox_.put(std::move(task));
}

void PollDispatcher::after(std::chrono::milliseconds delay, Task task) {
    timers_.after(clock_.steadyNow() + delay, std::move(task));
}

void PollDispatcher::global(QualityOfService, Task task) {
    queues_.global(std::move(task));
}

std::unique_ptr<SerialQueue> PollDispatcher::makeSerialQueue(const std::string&) {
    return queues_.makeSerialQueue();
}

std::unique_ptr<Timer> PollDispatcher::repeat(std::chrono::milliseconds period, Task task) {
    return timers_.repeat(clock_.steadyNow(), period, std::move(task));
}

void PollDispatcher::watchHangUp(int descriptor, Task hungUp) {
    watched_ = descriptor;
    hungUp_ = std::move(hungUp);
}

void PollDispatcher::run() {
    while (!stopped_)
        turn();
}

void PollDispatcher::turn() {
    // No events are asked for on the watched one: errors and hang-ups are told always. -1 is passed over.
    std::array<pollfd, 2> descriptors{{{inbox_.descriptor(), POLLIN, 0}, {watched_, 0, 0}}};
    poll_(descriptors, timeoutUntilDue());
    if (descriptors[1].revents != 0) {
        watched_ = -1;
        std::exchange(hungUp_, nullptr)();
    }
    inbox_.runWaiting();
    timers_.fire(clock_.steadyNow());
}

int PollDispatcher::timeoutUntilDue() {
    const auto due = timers_.nextDue();
    if (!due) return -1;
    // Rounded up, so that it never wakes up too early only to wait again.
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - clock_.steadyNow()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, std::numeric_limits<int>::max()));
}

} // namespace tarvo
