#pragma once

#include <cstdint>
#include <string>

namespace tarvo::desktop {

/// What BlueZ tells of the kind of a device.
struct DeviceKind {
    std::uint32_t classOfDevice = 0; ///< 0 for low-energy devices
    std::uint16_t appearance = 0;
    std::string icon; ///< of the icon naming specification, e.g. "input-mouse"
};

struct DeviceClass {
    std::uint32_t majorClass = 0;
    std::uint32_t minorClass = 0;
    bool operator==(const DeviceClass&) const = default;
};

/// The device's class: its own where it has one, else the one that its appearance stands for, else its icon.
/// Bluetooth Assigned Numbers, sections 2.6 and 2.8.
DeviceClass deviceClass(const DeviceKind& kind);

} // namespace tarvo::desktop
