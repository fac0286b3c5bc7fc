#pragma once

#include "platform/linux/root.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// What /sys/class/net says of one interface. Format: the kernel's sysfs-class-net document.
struct InterfaceFacts {
    unsigned flags = 0; ///< IFF_ bits; 0 when unknown
    std::optional<unsigned> index;
    std::optional<unsigned>
        linkIndex;                ///< of the interface that carries this one; its own index when none does
    unsigned type = 0;            ///< ARPHRD_ number
    std::string deviceType;       ///< "bridge", "vlan", "wlan"; empty for plain Ethernet
    bool hasDevice = false;       ///< stands for a piece of hardware
    bool isPort = false;          ///< belongs to a bridge, bond or the like
    bool masterHasDevice = false; ///< is the fast path of another interface that is hardware itself
};

InterfaceFacts readInterfaceFacts(const Root& root, const std::string& name);

/// Whether addresses of the interface are reached through hardware: it is hardware, or a bridge, bond, team
/// or VLAN over hardware.
bool leadsToHardware(const Root& root, const std::string& name);

/// How an interface takes part in the traffic totals, so that each byte is counted once, at the hardware's
/// edge.
enum class InterfaceRole {
    none,
    hardware,
    dialUp, ///< counts while no hardware is up: its bytes do not pass any
    standIn ///< counts where no interface is hardware, as in a container
};
InterfaceRole interfaceRole(const InterfaceFacts& facts);

} // namespace tarvo::linux_platform
