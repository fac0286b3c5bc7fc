#pragma once

#include "platform/clock.h"
#include "platform/desktop/managed_objects.h"
#include "platform/desktop/system_bus.h"
#include "platform/volumes.h"

#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace tarvo::desktop {

/// What UDisks says of each block device, by every path that the device has; what is of another type than the
/// interfaces org.freedesktop.UDisks2.Block and .Drive have it is not known.
std::map<std::string, DeviceHint> udisksHints(const ManagedObjects& objects);

/// Block devices as UDisks knows them; nothing is known while it does not run, and it is never started. One
/// answer, or one silence, serves all questions of the next five seconds, and so a whole listing. Any thread
/// but the main one: a question may wait.
class UDisksDevices {
public:
    static constexpr std::chrono::milliseconds usualPatience{2000};

    /// `patience` is the longest wait for the bus and for UDisks each. The clock outlives this.
    UDisksDevices(ConnectBus connect, const Clock& clock, std::chrono::milliseconds patience = usualPatience)
        : connect_(std::move(connect)), clock_(clock), patience_(patience) {}

    DeviceHint hint(const std::string& device);

private:
    std::map<std::string, DeviceHint> ask();

    ConnectBus connect_;
    const Clock& clock_;
    std::chrono::milliseconds patience_;
    std::mutex mutex_;
    std::map<std::string, DeviceHint> hints_;
    std::optional<SteadyTime> askedAt_;
};

} // namespace tarvo::desktop
