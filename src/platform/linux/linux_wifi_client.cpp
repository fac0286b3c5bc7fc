#include "platform/linux/linux_wifi_client.h"

#include "platform/linux/net_route.h"
#include "platform/linux/read_file.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

std::vector<WirelessInterface> noInterfaces() {
    return {};
}

std::vector<std::string> byMetric(std::vector<DefaultRoute> routes) {
    std::stable_sort(routes.begin(), routes.end(), [](const DefaultRoute& left, const DefaultRoute& right) {
        return left.metric < right.metric;
    });
    std::vector<std::string> names;
    for (auto& route : routes)
        names.push_back(std::move(route.interfaceName));
    return names;
}

} // namespace

LinuxWiFiClient::LinuxWiFiClient(const Root& root)
    : LinuxWiFiClient(root, root.isLive() ? systemWirelessInterfaces : noInterfaces) {}

LinuxWiFiClient::LinuxWiFiClient(const Root& root, WirelessInterfaceList interfaces)
    : root_(root), interfaces_(std::move(interfaces)) {}

std::optional<std::string> LinuxWiFiClient::ssid() {
    const auto routes = readFile(root_.path("/proc/net/route"));
    return joinedNetwork(interfaces_(), byMetric(parseDefaultRoutes(routes.value_or(""))));
}

} // namespace tarvo::linux_platform
