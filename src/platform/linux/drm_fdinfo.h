#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// Work of one engine for one client since the client began.
struct DRMEngine {
    std::uint64_t busyNanoseconds = 0;
    std::optional<std::uint64_t> cycles;      ///< busy; with totalCycles in place of the time
    std::optional<std::uint64_t> totalCycles; ///< that passed
    std::uint64_t capacity = 1;               ///< engines of this kind
    bool operator==(const DRMEngine&) const = default;
};

/// One user of a graphics card. Several descriptors can stand for the same one.
struct DRMClient {
    std::string driver;
    std::string address; ///< of the card on PCI; empty on other buses
    std::uint64_t id = 0;
    std::map<std::string, DRMEngine> engines;
    bool operator==(const DRMClient&) const = default;
};

/// What /proc/PID/fdinfo/N says of a descriptor of a graphics card; absent for any other descriptor and
/// without a client's number. Format: the kernel's gpu/drm-usage-stats document.
std::optional<DRMClient> parseDRMFdinfo(std::string_view text);

} // namespace tarvo::linux_platform
