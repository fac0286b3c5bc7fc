#include "platform/linux/netlink_message.h"

#include <linux/genetlink.h>
#include <linux/netlink.h>

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t alignment = 4;

std::size_t aligned(std::size_t length) {
    return (length + alignment - 1) / alignment * alignment;
}

template <typename Header>
std::optional<Header> headerOf(std::string_view bytes) {
    return bytes.size() < sizeof(Header) ? std::nullopt
                                         : netlinkValue<Header>(bytes.substr(0, sizeof(Header)));
}

template <typename Header>
void append(std::string& bytes, const Header& header) {
    bytes.append(reinterpret_cast<const char*>(&header), sizeof(header));
}

} // namespace

std::vector<NetlinkMessage> netlinkMessages(std::string_view datagram) {
    std::vector<NetlinkMessage> messages;
    while (const auto header = headerOf<nlmsghdr>(datagram)) {
        const std::size_t length = header->nlmsg_len;
        if (length < sizeof(nlmsghdr) || length > datagram.size()) break;
        messages.push_back(
            {header->nlmsg_type, datagram.substr(sizeof(nlmsghdr), length - sizeof(nlmsghdr))});
        datagram.remove_prefix(std::min(aligned(length), datagram.size()));
    }
    return messages;
}

std::optional<std::string_view> netlinkAttribute(std::string_view attributes, std::uint16_t type) {
    while (const auto header = headerOf<nlattr>(attributes)) {
        const std::size_t length = header->nla_len;
        if (length < sizeof(nlattr) || length > attributes.size()) break;
        if ((header->nla_type & NLA_TYPE_MASK) == type) {
            return attributes.substr(sizeof(nlattr), length - sizeof(nlattr));
        }
        attributes.remove_prefix(std::min(aligned(length), attributes.size()));
    }
    return std::nullopt;
}

std::string genericNetlinkRequest(std::uint16_t family, std::uint16_t flags, std::uint8_t command,
                                  std::string_view attributes) {
    nlmsghdr header{};
    header.nlmsg_len = static_cast<std::uint32_t>(sizeof(nlmsghdr) + sizeof(genlmsghdr) + attributes.size());
    header.nlmsg_type = family;
    header.nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | flags);
    genlmsghdr generic{};
    generic.cmd = command;
    generic.version = 1;
    std::string bytes;
    append(bytes, header);
    append(bytes, generic);
    return bytes.append(attributes);
}

std::string netlinkAttributeBytes(std::uint16_t type, std::string_view payload) {
    nlattr header{};
    header.nla_len = static_cast<std::uint16_t>(sizeof(nlattr) + payload.size());
    header.nla_type = type;
    std::string bytes;
    append(bytes, header);
    bytes.append(payload);
    bytes.resize(aligned(bytes.size()));
    return bytes;
}

} // namespace tarvo::linux_platform
