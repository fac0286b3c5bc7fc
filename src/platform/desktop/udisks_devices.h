#pragma once

#include "platform/clock.h"
#include "platform/desktop/managed_objects.h"
#include "platform/desktop/system_bus.h"
#include "platform/volumes.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace tarvo::desktop {

/// What UDisks says of each block device, by every path that the device has. doc/ of UDisks,
/// org.freedesktop.UDisks2.Block and .Drive.
std::map<std::string, DeviceHint> udisksHints(const ManagedObjects& objects);

/// Block devices as UDisks knows them; nothing without it. One answer serves a whole listing. Waits for it,
/// two seconds at most: any thread but the main one.
class UDisksDevices {
public:
    /// The clock outlives this.
    UDisksDevices(ConnectBus connect, const Clock& clock) : connect_(std::move(connect)), clock_(clock) {}

    DeviceHint hint(const std::string& device);

private:
    std::map<std::string, DeviceHint> ask();

    ConnectBus connect_;
    const Clock& clock_;
    std::mutex mutex_;
    std::map<std::string, DeviceHint> hints_;
    std::optional<SteadyTime> askedAt_;
};

} // namespace tarvo::desktop
