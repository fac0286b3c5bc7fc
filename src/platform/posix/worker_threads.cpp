#include "platform/posix/worker_threads.h"

#include "platform/posix/blocked_signals.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tarvo {

struct WorkerThreads::State {
    State(unsigned most, std::chrono::milliseconds longestIdle) : maximum(most), idleTime(longestIdle) {}

    /// A thread's life: tasks until there was none for the idle time.
    void work();
    /// The next task, absent when the thread shall end. Called and returns with the lock held.
    std::optional<Task> next(std::unique_lock<std::mutex>& lock);

    const unsigned maximum;
    const std::chrono::milliseconds idleTime;
    std::mutex mutex;
    std::condition_variable taskCame;
    std::condition_variable threadEnded;
    std::deque<Task> tasks;
    unsigned threads = 0;
    unsigned idle = 0;
    bool finishing = false;
};

std::optional<Task> WorkerThreads::State::next(std::unique_lock<std::mutex>& lock) {
    ++idle;
    taskCame.wait_for(lock, idleTime, [this] { return finishing || !tasks.empty(); });
    --idle;
    if (tasks.empty()) return std::nullopt;
    Task task = std::move(tasks.front());
    tasks.pop_front();
    return task;
}

void WorkerThreads::State::work() {
    std::unique_lock lock(mutex);
    while (auto task = next(lock)) {
        lock.unlock();
        (*task)();
        task.reset(); // what it holds may be large, or may want the lock when destroyed
        lock.lock();
    }
    --threads;
    threadEnded.notify_all();
}

WorkerThreads::WorkerThreads(unsigned maximum, std::chrono::milliseconds idleTime)
    : state_(std::make_shared<State>(maximum, idleTime)) {}

WorkerThreads::~WorkerThreads() {
    finish();
}

void WorkerThreads::async(Task task) {
    const std::lock_guard lock(state_->mutex);
    if (state_->finishing) return;
    state_->tasks.push_back(std::move(task));
    if (state_->tasks.size() <= state_->idle) {
        state_->taskCame.notify_one();
    } else if (state_->threads < state_->maximum) {
        // Signals stay the business of the main thread.
        const BlockedSignals blocked;
        try {
            std::thread([state = state_] { state->work(); }).detach();
            ++state_->threads;
        } catch (const std::system_error&) {
            // No thread to be had now: the task waits for the next one.
        }
    }
}

bool WorkerThreads::finish(std::optional<std::chrono::milliseconds> limit) {
    std::deque<Task> dropped; // destroyed without the lock
    std::unique_lock lock(state_->mutex);
    state_->finishing = true;
    dropped.swap(state_->tasks);
    state_->taskCame.notify_all();
    const auto allEnded = [this] { return state_->threads == 0; };
    if (limit) return state_->threadEnded.wait_for(lock, *limit, allEnded);
    state_->threadEnded.wait(lock, allEnded);
    return true;
}

unsigned WorkerThreads::count() const {
    const std::lock_guard lock(state_->mutex);
    return state_->threads;
}

} // namespace tarvo
