#pragma once

#include "platform/dispatcher.h"

#include <chrono>
#include <memory>
#include <optional>

namespace tarvo {

/// Threads that are made when tasks wait and end when they have found none for a while; at most `maximum` at
/// a time. With a maximum of one the tasks run one at a time and in order. Callable from any thread.
class WorkerThreads {
public:
    static constexpr std::chrono::milliseconds defaultIdleTime{10'000};

    explicit WorkerThreads(unsigned maximum, std::chrono::milliseconds idleTime = defaultIdleTime);
    /// Drops the tasks that wait and returns when the ones that run have ended.
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads&) = delete;
    WorkerThreads& operator=(const WorkerThreads&) = delete;

    void async(Task task);

    /// Takes no more tasks, drops those that wait and lets those that run end. False when one still runs
    /// after the limit.
    bool finish(std::optional<std::chrono::milliseconds> limit = std::nullopt);

    /// Threads that exist now.
    unsigned count() const;

private:
    struct State;
    std::shared_ptr<State> state_; ///< shared with the threads
};

} // namespace tarvo
