#pragma once

#include "platform/posix/pipe.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo::desktop {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the main thread. One in a process; once it is gone, the
/// process ends and these signals do nothing.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> asked);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::optional<Pipe> signals_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tarvo::desktop
