#pragma once

#include "platform/dispatcher.h"
#include "platform/posix/pipe.h"

#include <mutex>
#include <optional>
#include <vector>

namespace tarvo {

/// Tasks that any thread leaves for the thread that owns the inbox; its descriptor becomes readable when some
/// wait.
class TaskInbox {
public:
    TaskInbox();

    /// From any thread.
    void put(Task task);
    /// Runs the tasks that wait now, in order; what they put comes in the next call. Owner's thread only.
    void runWaiting();
    /// Readable while tasks wait; -1 when the process had no descriptor left.
    int descriptor() const { return pipe_ ? pipe_->readEnd.get() : -1; }

private:
    void announce();
    void takeAnnouncement();

    std::optional<Pipe> pipe_;
    std::mutex mutex_;
    std::vector<Task> waiting_;
    std::vector<Task> running_; ///< kept, so that taking tasks finds its storage ready
};

} // namespace tarvo
