#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

namespace tarvo::desktop {

/// Tells when windows of other programs came or went, by the root window's _NET_CLIENT_LIST (Extended Window
/// Manager Hints): the work area says nothing of a dock that goes while ours reserves more. Silent without an
/// X server.
class X11ClientWatcher : public QAbstractNativeEventFilter {
public:
    /// `changed` runs on the main thread, inside the handling of the event.
    explicit X11ClientWatcher(std::function<void()> changed);
    ~X11ClientWatcher() override;
    X11ClientWatcher(const X11ClientWatcher&) = delete;
    X11ClientWatcher& operator=(const X11ClientWatcher&) = delete;

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

private:
    std::function<void()> changed_;
    std::uint32_t root_ = 0;
    std::uint32_t clientList_ = 0;
};

} // namespace tarvo::desktop
