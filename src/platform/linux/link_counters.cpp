#include "platform/linux/link_counters.h"

#include <net/if.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

namespace tarvo::linux_platform {

namespace {

// "0x1003" and a line feed.
std::optional<unsigned> parseFlags(std::string_view text) {
    if (text.size() < 3 || text[0] != '0' || text[1] != 'x') return std::nullopt;
    if (text.back() == '\n') text.remove_suffix(1);
    return parseHexadecimal<unsigned>(text);
}

bool add(const LinkStatistics& statistics, LinkStatistics& sum) {
    LinkStatistics result;
    if (__builtin_add_overflow(sum.receivedBytes, statistics.receivedBytes, &result.receivedBytes) ||
        __builtin_add_overflow(sum.sentBytes, statistics.sentBytes, &result.sentBytes)) {
        return false;
    }
    sum = result;
    return true;
}

} // namespace

LinkCounters::LinkCounters(const Root& root) : root_(root), dev_(root.path("/proc/net/dev")) {}

bool LinkCounters::read(std::vector<LinkEntry>& entries) {
    const auto text = dev_.read();
    if (!text) return false;
    parseNetDev(*text, counters_);
    if (!namesAreKnown()) findRoles();
    const bool hardwareIsUp = readFlags();

    // Counters that cannot be true must not reach the readers' checked sums.
    LinkStatistics sum;
    entries.resize(counters_.size());
    for (std::size_t index = 0; index < counters_.size(); ++index) {
        const auto& interface = interfaces_[index];
        auto& entry = entries[index];
        entry = {.hasAddress = true,
                 .isUp = (interface.flags & IFF_UP) != 0,
                 .isLoopback = (interface.flags & IFF_LOOPBACK) != 0,
                 .statistics = std::nullopt};
        const LinkStatistics statistics{counters_[index].receivedBytes, counters_[index].sentBytes};
        if (counts(interface, hardwareIsUp) && add(statistics, sum)) entry.statistics = statistics;
    }
    return true;
}

bool LinkCounters::namesAreKnown() const {
    return std::equal(counters_.begin(), counters_.end(), interfaces_.begin(), interfaces_.end(),
                      [](const InterfaceCounters& counters, const Interface& known) {
                          return counters.name == known.name;
                      });
}

void LinkCounters::findRoles() {
    interfaces_.clear();
    hasHardware_ = false;
    for (const auto& counters : counters_) {
        std::string name(counters.name);
        const auto facts = readInterfaceFacts(root_, name);
        const auto role = interfaceRole(facts);
        hasHardware_ = hasHardware_ || role == InterfaceRole::hardware;
        auto flagsFile = KeptFile(root_.path("/sys/class/net/" + name + "/flags"));
        interfaces_.push_back({std::move(name), role, facts.flags, std::move(flagsFile), {}, 0});
    }
}

// Whether any interface that counts by itself is up. An interface whose flags cannot be read has gone,
// perhaps to come back as another one of the same name: it gets a name that no interface has, and is looked
// at again.
bool LinkCounters::readFlags() {
    bool hardwareIsUp = false;
    for (auto& interface : interfaces_) {
        const bool isStandIn = interface.role == InterfaceRole::standIn;
        if (interface.role == InterfaceRole::none || (isStandIn && hasHardware_)) continue;
        if (!readFlagsOf(interface)) interface.name.clear();
        const bool isUp = (interface.flags & IFF_UP) != 0;
        hardwareIsUp = hardwareIsUp || (isUp && interface.role != InterfaceRole::dialUp);
    }
    return hardwareIsUp;
}

// Done for every interface at every tick, so that only a text that differs is parsed.
bool LinkCounters::readFlagsOf(Interface& interface) {
    const auto text = interface.flagsFile.readBeginning(flagsRoom);
    if (text && text->size() == interface.flagsLength &&
        std::memcmp(text->data(), interface.flagsText.data(), text->size()) == 0) {
        return true;
    }
    const bool isWhole = text && text->size() < flagsRoom;
    const auto flags = isWhole ? parseFlags(*text) : std::nullopt;
    interface.flags = flags.value_or(0);
    interface.flagsLength = flags ? text->copy(interface.flagsText.data(), flagsRoom) : 0;
    return flags.has_value();
}

bool LinkCounters::counts(const Interface& interface, bool hardwareIsUp) const {
    switch (interface.role) {
    case InterfaceRole::hardware:
        return true;
    case InterfaceRole::dialUp:
        return !hardwareIsUp;
    case InterfaceRole::standIn:
        return !hasHardware_;
    case InterfaceRole::none:
        break;
    }
    return false;
}

} // namespace tarvo::linux_platform
