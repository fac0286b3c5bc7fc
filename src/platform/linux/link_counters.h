#pragma once

#include "platform/linux/interface_facts.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/proc_net_dev.h"
#include "platform/linux/root.h"
#include "platform/network_interfaces.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// The link-level entries of all interfaces, from /proc/net/dev and /sys/class/net. Which interfaces count is
/// found out anew when their names change; otherwise a call reads the counters and one flags file for each
/// that counts. Main thread only.
class LinkCounters {
public:
    explicit LinkCounters(const Root& root);

    /// Replaces the list, in the kernel's order; entries that must not be counted have no statistics. False
    /// when the counters cannot be read.
    bool read(std::vector<LinkEntry>& entries);

private:
    static constexpr std::size_t flagsRoom = 16; ///< more than "0xffffffff" and a line feed

    struct Interface {
        std::string name;
        InterfaceRole role;
        unsigned flags; ///< as last read
        KeptFile flagsFile;
        /// What the flags were read from; most ticks find the same again.
        std::array<char, flagsRoom> flagsText{};
        std::size_t flagsLength = 0;
    };

    bool namesAreKnown() const;
    void findRoles();
    bool readFlags();
    static bool readFlagsOf(Interface& interface);
    bool counts(const Interface& interface, bool hardwareIsUp) const;

    Root root_;
    KeptFile dev_;
    std::vector<InterfaceCounters> counters_;
    std::vector<Interface> interfaces_;
    bool hasHardware_ = false;
};

} // namespace tarvo::linux_platform
