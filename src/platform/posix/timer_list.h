#pragma once

#include "platform/clock.h"
#include "platform/dispatcher.h"

#include <memory>
#include <optional>
#include <vector>

namespace tarvo {

/// Timers in virtual or real time: it never waits itself. Main thread only.
class TimerList {
public:
    void after(SteadyTime due, Task task);
    std::unique_ptr<Timer> repeat(SteadyTime now, std::chrono::milliseconds period, Task task);

    /// When the next timer is due, absent when there is none.
    std::optional<SteadyTime> nextDue();
    /// Runs what is due at `now`, earliest first. A repeating timer is next due one period after `now`: so
    /// two firings are never closer together than its period, however late each of them is.
    void fire(SteadyTime now);

private:
    struct Entry {
        SteadyTime due;
        std::optional<std::chrono::milliseconds> period; ///< absent: fires once
        std::shared_ptr<Task> task;                      ///< a repeating timer's handle holds it too
    };

    void dropStopped();
    std::shared_ptr<Task> takeDue(SteadyTime now);

    std::vector<Entry> entries_;
};

} // namespace tarvo
