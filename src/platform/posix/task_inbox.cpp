#include "platform/posix/task_inbox.h"

#include <unistd.h>

#include <utility>

namespace tarvo {

TaskInbox::TaskInbox() : pipe_(makePipe()) {
    if (!pipe_) return;
    setNonBlocking(pipe_->readEnd);
    setNonBlocking(pipe_->writeEnd);
}

void TaskInbox::put(Task task) {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(task));
    if (waiting_.size() == 1) announce();
}

void TaskInbox::runWaiting() {
    {
        const std::lock_guard lock(mutex_);
        if (waiting_.empty()) return;
        takeAnnouncement();
        running_.swap(waiting_);
    }
    for (auto& task : running_)
        std::exchange(task, nullptr)();
    running_.clear();
}

// One byte stands for any number of tasks, so the pipe is never full.
void TaskInbox::announce() {
    if (!pipe_) return;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(pipe_->writeEnd.get(), &byte, 1);
}

void TaskInbox::takeAnnouncement() {
    if (!pipe_) return;
    char byte;
    [[maybe_unused]] const auto taken = ::read(pipe_->readEnd.get(), &byte, 1);
}

} // namespace tarvo
