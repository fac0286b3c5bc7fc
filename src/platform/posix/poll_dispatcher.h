#pragma once

#include "platform/dispatcher.h"
#include "platform/posix/background_queues.h"
#include "platform/posix/task_inbox.h"
#include "platform/posix/timer_list.h"

#include <poll.h>

#include <functional>
#include <span>

namespace tarvo {

/// A main queue and timers on poll(2), for programs without a desktop. It sleeps until a timer is due, a task
/// comes or a watched descriptor is hung up; a program with one timer wakes up once a period.
/// The thread that made it is the main thread.
class PollDispatcher : public Dispatcher {
public:
    /// poll(2): waits at most so many milliseconds, without end for -1.
    using Poll = std::function<void(std::span<pollfd>, int timeout)>;

    explicit PollDispatcher(Clock& clock);
    /// For tests: `poll` stands for the system's.
    PollDispatcher(Clock& clock, Poll poll);

    void async(Task task) override;
    void after(std::chrono::milliseconds delay, Task task) override;
    void global(QualityOfService quality, Task task) override;
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string& label) override;
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds period, Task task) override;

    /// Runs `hungUp` once when the reader of a pipe or the peer of a socket or terminal is gone.
    void watchHangUp(int descriptor, Task hungUp);

    /// Runs tasks and timers until stop() is called.
    void run();
    /// On the main thread.
    void stop() { stopped_ = true; }

    /// Ends the background queues, see BackgroundQueues::finish.
    bool finish(std::chrono::milliseconds limit) { return queues_.finish(limit); }

private:
    void turn();
    int timeoutUntilDue();

    Clock& clock_;
    Poll poll_;
    TaskInbox inbox_;
    TimerList timers_;
    int watched_ = -1;
    Task hungUp_;
    bool stopped_ = false;
    BackgroundQueues queues_; ///< last: its threads end before the inbox that they use
};

} // namespace tarvo
