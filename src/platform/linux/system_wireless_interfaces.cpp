#include "platform/linux/linux_wifi_client.h"
#include "platform/linux/netlink_message.h"
#include "platform/posix/file_descriptor.h"

#include <linux/genetlink.h>
#include <linux/netlink.h>
#include <linux/nl80211.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <optional>
#include <string>

namespace tarvo::linux_platform {

namespace {

constexpr time_t longestWaitSeconds = 2;
constexpr std::size_t largestDatagram = 64U << 10U;

FileDescriptor genericSocket() {
    FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_GENERIC));
    const timeval limit{longestWaitSeconds, 0};
    if (socket && ::setsockopt(socket.get(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit)) != 0)
        socket.reset();
    return socket;
}

bool sendRequest(const FileDescriptor& socket, const std::string& request) {
    sockaddr_nl kernel{};
    kernel.nl_family = AF_NETLINK;
    const auto* const address = reinterpret_cast<const sockaddr*>(&kernel);
    const auto sent = ::sendto(socket.get(), request.data(), request.size(), 0, address, sizeof(kernel));
    return sent == static_cast<ssize_t>(request.size());
}

// Payloads of the family's messages in the reply, up to its end, an error or a silence.
std::vector<std::string> receivePayloads(const FileDescriptor& socket, std::uint16_t family, bool isDump) {
    std::vector<std::string> payloads;
    std::string datagram(largestDatagram, '\0');
    for (;;) {
        const auto length = ::recv(socket.get(), datagram.data(), datagram.size(), 0);
        if (length <= 0) return payloads;
        for (const auto& message :
             netlinkMessages(std::string_view(datagram).substr(0, static_cast<std::size_t>(length)))) {
            if (message.type == NLMSG_DONE || message.type == NLMSG_ERROR) return payloads;
            if (message.type == family) payloads.emplace_back(message.payload);
        }
        if (!isDump) return payloads;
    }
}

std::optional<std::uint16_t> wirelessFamily(const FileDescriptor& socket) {
    const std::string name(NL80211_GENL_NAME, sizeof(NL80211_GENL_NAME));
    const auto attributes = netlinkAttributeBytes(CTRL_ATTR_FAMILY_NAME, name);
    if (!sendRequest(socket, genericNetlinkRequest(GENL_ID_CTRL, 0, CTRL_CMD_GETFAMILY, attributes))) {
        return std::nullopt;
    }
    for (const auto& payload : receivePayloads(socket, GENL_ID_CTRL, false)) {
        if (const auto number = parseFamilyNumber(payload)) return number;
    }
    return std::nullopt;
}

} // namespace

std::vector<WirelessInterface> systemWirelessInterfaces() {
    std::vector<WirelessInterface> interfaces;
    const auto socket = genericSocket();
    if (!socket) return interfaces;
    const auto family = wirelessFamily(socket);
    if (!family) return interfaces;
    if (!sendRequest(socket, genericNetlinkRequest(*family, NLM_F_DUMP, NL80211_CMD_GET_INTERFACE, {}))) {
        return interfaces;
    }
    for (const auto& payload : receivePayloads(socket, *family, true)) {
        if (auto interface = parseWirelessInterface(payload)) interfaces.push_back(std::move(*interface));
    }
    return interfaces;
}

} // namespace tarvo::linux_platform
