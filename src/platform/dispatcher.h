#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace tarvo {

using Task = std::function<void()>;

/// A repeating timer; destroying it stops it. Used and destroyed on the main thread only.
class Timer {
public:
    virtual ~Timer() = default;
};

/// Runs its tasks one at a time, in order, off the main thread.
class SerialQueue {
public:
    virtual ~SerialQueue() = default;
    virtual void async(Task task) = 0;
};

enum class QualityOfService { userInitiated, utility };

/// The main queue, background queues and timers of the process.
/// async, global and the serial queues may be called from any thread; the rest on the main thread only.
class Dispatcher {
public:
    virtual ~Dispatcher() = default;

    /// Runs the task on the main thread in a later turn of its loop.
    virtual void async(Task task) = 0;
    /// Runs the task on the main thread once, after the delay.
    virtual void after(std::chrono::milliseconds delay, Task task) = 0;
    /// Runs the task on some background thread.
    virtual void global(QualityOfService quality, Task task) = 0;
    virtual std::unique_ptr<SerialQueue> makeSerialQueue(const std::string& label) = 0;
    /// Runs the task on the main thread every period, first after one period.
    virtual std::unique_ptr<Timer> repeat(std::chrono::milliseconds period, Task task) = 0;
};

} // namespace tarvo
