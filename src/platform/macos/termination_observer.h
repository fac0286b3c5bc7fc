#pragma once

#include <functional>
#include <memory>

namespace tarvo::macos_platform {

/// Tells that the application is about to end, by the user's log-out too. Main thread only.
class TerminationObserver {
public:
    explicit TerminationObserver(std::function<void()> willTerminate);
    ~TerminationObserver();
    TerminationObserver(const TerminationObserver&) = delete;
    TerminationObserver& operator=(const TerminationObserver&) = delete;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tarvo::macos_platform
