#include "platform/linux/linux_network_interfaces.h"

#include "platform/linux/read_file.h"

namespace tarvo::linux_platform {

namespace {

std::optional<std::vector<InterfaceAddress>> noAddresses() {
    return std::nullopt;
}

} // namespace

LinuxNetworkInterfaces::LinuxNetworkInterfaces(const Root& root)
    : LinuxNetworkInterfaces(root, root.isLive() ? AddressList(systemAddresses) : AddressList(noAddresses)) {}

LinuxNetworkInterfaces::LinuxNetworkInterfaces(const Root& root, AddressList addressList)
    : root_(root), links_(root), addressList_(std::move(addressList)) {}

std::optional<std::vector<IPv4Entry>> LinuxNetworkInterfaces::addresses() {
    auto list = addressList_();
    if (!list) return std::nullopt;
    std::vector<PlacedAddress> placed;
    for (auto& entry : *list) {
        const auto index = readNumber<unsigned>(root_.path("/sys/class/net/" + entry.name + "/ifindex"));
        const bool isPhysical = leadsToHardware(root_, entry.name);
        placed.push_back({std::move(entry), index.value_or(0), isPhysical});
    }
    const auto routes = readFile(root_.path("/proc/net/route"));
    return orderedAddresses(std::move(placed), parseDefaultRoutes(routes.value_or("")));
}

} // namespace tarvo::linux_platform
