#include "platform/linux/interface_facts.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <net/if.h>
#include <net/if_arp.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvo::linux_platform {

namespace {

constexpr unsigned typePPP = ARPHRD_PPP;
constexpr unsigned typeNone = 65534; // tun devices and WireGuard
constexpr int deepestStack = 8;

std::string folderOf(const Root& root, const std::string& name) {
    return root.path("/sys/class/net/" + name);
}

std::string deviceType(const std::string& folder) {
    constexpr std::string_view key = "DEVTYPE=";
    const auto text = readFile(folder + "/uevent");
    if (!text) return {};
    const auto begin = text->starts_with(key) ? 0 : text->find("\nDEVTYPE=");
    if (begin == std::string::npos) return {};
    const auto value = begin + (begin == 0 ? key.size() : key.size() + 1);
    return text->substr(value, text->find('\n', value) - value);
}

template <typename Range>
bool contains(const Range& values, std::string_view value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

// A team has no type of its own.
bool isStackedOverHardware(const std::string& type) {
    constexpr std::array<std::string_view, 5> types{"", "bridge", "bond", "team", "vlan"};
    return contains(types, type);
}

bool leadsToHardware(const Root& root, const std::string& name, int depth) {
    const auto folder = folderOf(root, name);
    if (pathExists(folder + "/device")) return true;
    if (depth == deepestStack || !isStackedOverHardware(deviceType(folder))) return false;
    constexpr std::string_view lower = "lower_";
    const auto entries = folderEntries(folder);
    return std::any_of(entries.begin(), entries.end(), [&](const std::string& entry) {
        return entry.starts_with(lower) && leadsToHardware(root, entry.substr(lower.size()), depth + 1);
    });
}

bool isHardware(const InterfaceFacts& facts) {
    const bool carriesItself = !facts.linkIndex || !facts.index || facts.linkIndex == facts.index;
    return facts.hasDevice && carriesItself && !facts.masterHasDevice;
}

bool canStandIn(const InterfaceFacts& facts) {
    constexpr std::array<std::string_view, 4> virtualTypes{"bridge", "bond", "vlan", "wireguard"};
    const bool isLoopback = (facts.flags & IFF_LOOPBACK) != 0;
    return !facts.hasDevice && !isLoopback && !facts.isPort && facts.type != typeNone &&
           !contains(virtualTypes, facts.deviceType);
}

} // namespace

InterfaceFacts readInterfaceFacts(const Root& root, const std::string& name) {
    const auto folder = folderOf(root, name);
    InterfaceFacts facts;
    if (const auto flags = readAttribute(folder + "/flags")) {
        facts.flags = parseHexadecimal<unsigned>(*flags).value_or(0);
    }
    facts.index = readNumber<unsigned>(folder + "/ifindex");
    facts.linkIndex = readNumber<unsigned>(folder + "/iflink");
    facts.type = readNumber<unsigned>(folder + "/type").value_or(0);
    facts.deviceType = deviceType(folder);
    facts.hasDevice = pathExists(folder + "/device");
    facts.isPort = pathExists(folder + "/master") || pathExists(folder + "/brport");
    facts.masterHasDevice = pathExists(folder + "/master/device");
    return facts;
}

bool leadsToHardware(const Root& root, const std::string& name) {
    return leadsToHardware(root, name, 0);
}

InterfaceRole interfaceRole(const InterfaceFacts& facts) {
    if (isHardware(facts)) return InterfaceRole::hardware;
    if (facts.type == typePPP) return InterfaceRole::dialUp;
    return canStandIn(facts) ? InterfaceRole::standIn : InterfaceRole::none;
}

} // namespace tarvo::linux_platform
