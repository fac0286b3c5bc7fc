#pragma once

#include "platform/dispatcher.h"
#include "platform/posix/background_queues.h"

#include <QObject>

namespace tarvo::desktop {

/// The main queue is Qt's event loop; background queues are threads that exist only while they are needed.
/// Timers are coarse: they may be some percent late, so that the machine wakes up less often. Made, used for
/// timers and destroyed on the main thread.
class QtDispatcher : public Dispatcher {
public:
    void async(Task task) override;
    void after(std::chrono::milliseconds delay, Task task) override;
    void global(QualityOfService quality, Task task) override;
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string& label) override;
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds period, Task task) override;

    /// Lets the background tasks that run end and drops the others. False when one still runs after the
    /// limit: then it may hang for good, and the program ends without destroying what such tasks use.
    bool finish(std::chrono::milliseconds limit) { return background_.finish(limit); }

private:
    QObject main_; ///< tasks for the main thread die with it
    BackgroundQueues background_;
};

} // namespace tarvo::desktop
