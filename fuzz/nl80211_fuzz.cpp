// A datagram of generic netlink.

#include "platform/linux/netlink_message.h"
#include "platform/linux/nl80211.h"
#include "platform/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view datagram(reinterpret_cast<const char*>(data), size);
    std::vector<WirelessInterface> interfaces;
    for (const auto& message : netlinkMessages(datagram)) {
        parseFamilyNumber(message.payload);
        if (auto interface = parseWirelessInterface(message.payload)) interfaces.push_back(*interface);
    }
    const auto network = joinedNetwork(interfaces, {"wlan0"});
    if (network && (network->empty() || !tarvo::isUTF8(*network))) std::abort();
    return 0;
}
