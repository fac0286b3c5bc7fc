#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace tarvo::ui {

/// Runs a task in the next turn of the event loop, once however often it was asked for before.
class Later : public QObject {
public:
    explicit Later(std::function<void()> task, QObject* parent = nullptr) : QObject(parent) {
        timer_.setSingleShot(true);
        timer_.setInterval(0);
        connect(&timer_, &QTimer::timeout, this, [task = std::move(task)] { task(); });
    }
    void ask() {
        if (!timer_.isActive()) timer_.start();
    }

private:
    QTimer timer_;
};

} // namespace tarvo::ui
