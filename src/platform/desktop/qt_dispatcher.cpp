#include "platform/desktop/qt_dispatcher.h"

#include <QTimer>

#include <utility>

namespace tarvo::desktop {

namespace {

class RepeatingTimer : public Timer {
public:
    RepeatingTimer(std::chrono::milliseconds period, Task task) {
        timer_.setTimerType(Qt::CoarseTimer);
        // The task may destroy the timer, and with it the function that is running.
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [task = std::move(task)] {
            const Task running = task;
            running();
        });
        timer_.start(period);
    }

private:
    QTimer timer_;
};

} // namespace

void QtDispatcher::async(Task task) {
    QMetaObject::invokeMethod(&main_, std::move(task), Qt::QueuedConnection);
}

void QtDispatcher::after(std::chrono::milliseconds delay, Task task) {
    QTimer::singleShot(delay, Qt::CoarseTimer, &main_, std::move(task));
}

void QtDispatcher::global(QualityOfService, Task task) {
    background_.global(std::move(task));
}

std::unique_ptr<SerialQueue> QtDispatcher::makeSerialQueue(const std::string&) {
    return background_.makeSerialQueue();
}

std::unique_ptr<Timer> QtDispatcher::repeat(std::chrono::milliseconds period, Task task) {
    return std::make_unique<RepeatingTimer>(period, std::move(task));
}

} // namespace tarvo::desktop
