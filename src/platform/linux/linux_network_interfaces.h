#pragma once

#include "platform/linux/interface_addresses.h"
#include "platform/linux/link_counters.h"
#include "platform/linux/root.h"
#include "platform/network_interfaces.h"

namespace tarvo::linux_platform {

/// Network interfaces from /proc/net, /sys/class/net and the kernel's list of addresses, which a recorded
/// machine does not have unless one is given. Main thread only.
class LinuxNetworkInterfaces : public NetworkInterfaces {
public:
    explicit LinuxNetworkInterfaces(const Root& root);
    LinuxNetworkInterfaces(const Root& root, AddressList addressList);

    bool links(std::vector<LinkEntry>& entries) override { return links_.read(entries); }
    std::optional<std::vector<IPv4Entry>> addresses() override;

private:
    Root root_;
    LinkCounters links_;
    AddressList addressList_;
};

} // namespace tarvo::linux_platform
