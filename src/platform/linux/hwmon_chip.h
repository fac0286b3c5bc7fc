#pragma once

#include "platform/linux/root.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

enum class HwmonKind { temperature, fan, power, voltage, current };

/// One measuring point of a chip, named after its attribute, e.g. "temp3_input".
struct HwmonInput {
    HwmonKind kind = HwmonKind::temperature;
    int index = 0;
    std::string attribute;
    std::string label; ///< empty when the driver gives none
    bool hasFault = false;
    bool operator==(const HwmonInput&) const = default;
};

/// One chip of the kernel's hardware monitoring; its attributes as they were when it was listed.
/// Documentation/hwmon/sysfs-interface.rst of the kernel.
struct HwmonChip {
    std::string name;       ///< the driver's, e.g. "coretemp"
    std::string devicePath; ///< the machine's path of the device, links followed; empty when there is none
    std::string folder;     ///< where the attributes are opened
    std::vector<HwmonInput> inputs; ///< by kind, then by index
};

/// All chips, by name and then by the path of their device: their numbers change from boot to boot.
std::vector<HwmonChip> readHwmonChips(const Root& root);

/// "temp3_input" taken apart; also "power1_average". Absent for a name of another form.
std::optional<HwmonInput> parseHwmonAttribute(std::string_view name);

} // namespace tarvo::linux_platform
