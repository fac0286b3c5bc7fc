#pragma once

#include "platform/dispatcher.h"
#include "platform/posix/worker_threads.h"

#include <memory>
#include <string>
#include <vector>

namespace tarvo {

/// The global queue and the serial queues of a dispatcher. A program that never uses them has no thread for
/// them. Made, destroyed and asked for serial queues on the main thread.
class BackgroundQueues {
public:
    /// As many background tasks as may be under way at once: some of them wait for tools that are slow.
    static constexpr unsigned maximumThreads = 8;

    explicit BackgroundQueues(std::chrono::milliseconds idleTime = WorkerThreads::defaultIdleTime)
        : idleTime_(idleTime), global_(maximumThreads, idleTime) {}

    void global(Task task) { global_.async(std::move(task)); }
    /// A queue may be destroyed while a task of it runs; its tasks are done all the same.
    std::unique_ptr<SerialQueue> makeSerialQueue();

    /// Lets the tasks that run end and drops the others. False when one still runs after the limit: then it
    /// may hang for good, and the program ends without destroying what such tasks use.
    bool finish(std::chrono::milliseconds limit);

private:
    std::chrono::milliseconds idleTime_;
    WorkerThreads global_;
    std::vector<std::shared_ptr<WorkerThreads>> serial_;
};

} // namespace tarvo
