#pragma once

#include "platform/linux/root.h"

#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// A graphics card as the kernel's display drivers list it.
struct GPUCard {
    std::string folder;  ///< "/sys/class/drm/card0"
    std::string driver;  ///< "amdgpu"
    std::string address; ///< of the device on its bus: "0000:03:00.0" on PCI
    bool startedTheScreen = false;
    unsigned number = 0;
};

/// The cards, that of the boot screen first, then by address and number.
std::vector<GPUCard> listGPUCards(const Root& root);

/// Whether a reading would wake the card. Asking this does not.
bool isSleeping(const Root& root, const GPUCard& card);

} // namespace tarvo::linux_platform
