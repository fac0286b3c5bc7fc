#pragma once

#include "platform/dispatcher.h"

#include <QObject>
#include <QThreadPool>

namespace tarvo::desktop {

/// The main queue is Qt's event loop; background queues are threads that end when they have been idle for a
/// while. Timers are coarse: they may be some percent late, so that the machine wakes up less often. Made and
/// destroyed on the main thread; destroying it waits for background tasks that run.
class QtDispatcher : public Dispatcher {
public:
    QtDispatcher();
    ~QtDispatcher() override;

    void async(Task task) override;
    void after(std::chrono::milliseconds delay, Task task) override;
    void global(QualityOfService quality, Task task) override;
    std::unique_ptr<SerialQueue> makeSerialQueue(const std::string& label) override;
    std::unique_ptr<Timer> repeat(std::chrono::milliseconds period, Task task) override;

private:
    QObject main_; ///< lives on the main thread; tasks for it die with it
    QThreadPool global_;
};

} // namespace tarvo::desktop
