#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>

#include <chrono>

namespace tarvo {

/// Runs the event loop until the condition holds; false when it still does not after the limit.
template <typename Condition>
bool waitUntil(Condition condition, std::chrono::seconds limit = std::chrono::seconds{20}) {
    const QDeadlineTimer deadline(limit);
    QEventLoop loop;
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        loop.processEvents(QEventLoop::WaitForMoreEvents, 50);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

/// Runs what the event loop holds now, deferred deletions too.
inline void runPostedEvents() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace tarvo
