#include "platform/desktop/qt_dispatcher.h"

#include <QTimer>

#include <utility>

namespace tarvo::desktop {

namespace {

class PoolQueue : public SerialQueue {
public:
    explicit PoolQueue(const std::string& label) {
        pool_.setObjectName(QString::fromStdString(label));
        pool_.setMaxThreadCount(1);
    }
    void async(Task task) override { pool_.start(std::move(task)); }

private:
    QThreadPool pool_;
};

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

QtDispatcher::QtDispatcher() = default;
QtDispatcher::~QtDispatcher() = default;

void QtDispatcher::async(Task task) {
    QMetaObject::invokeMethod(&main_, std::move(task), Qt::QueuedConnection);
}

void QtDispatcher::after(std::chrono::milliseconds delay, Task task) {
    QTimer::singleShot(delay, Qt::CoarseTimer, &main_, std::move(task));
}

void QtDispatcher::global(QualityOfService quality, Task task) {
    global_.start(std::move(task), quality == QualityOfService::userInitiated ? 1 : 0);
}

std::unique_ptr<SerialQueue> QtDispatcher::makeSerialQueue(const std::string& label) {
    return std::make_unique<PoolQueue>(label);
}

std::unique_ptr<Timer> QtDispatcher::repeat(std::chrono::milliseconds period, Task task) {
    return std::make_unique<RepeatingTimer>(period, std::move(task));
}

} // namespace tarvo::desktop
