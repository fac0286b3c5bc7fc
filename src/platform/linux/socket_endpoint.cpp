#include "platform/linux/socket_endpoint.h"

#include <arpa/inet.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace tarvo::linux_platform {

namespace {

using Bytes = std::array<std::uint8_t, 16>;

constexpr std::array<std::string_view, 13> stateNames{
    "",       "ESTABLISHED", "SYN_SENT", "SYN_RCVD", "FIN_WAIT_1", "FIN_WAIT_2", "TIME_WAIT",
    "CLOSED", "CLOSE_WAIT",  "LAST_ACK", "LISTEN",   "CLOSING",    "SYN_RCVD"};

constexpr std::array<std::uint8_t, 12> mappedPrefix{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF};

bool isZero(const std::uint8_t* begin, const std::uint8_t* end) {
    return std::all_of(begin, end, [](std::uint8_t byte) { return byte == 0; });
}

void appendIPv4(fmt::memory_buffer& text, const std::uint8_t* bytes) {
    if (isZero(bytes, bytes + 4)) {
        text.push_back('*');
        return;
    }
    fmt::format_to(std::back_inserter(text), "{}.{}.{}.{}", bytes[0], bytes[1], bytes[2], bytes[3]);
}

void appendIPv6(fmt::memory_buffer& text, const Bytes& bytes) {
    if (std::equal(mappedPrefix.begin(), mappedPrefix.end(), bytes.begin()))
        return appendIPv4(text, bytes.data() + mappedPrefix.size());
    if (isZero(bytes.data(), bytes.data() + bytes.size())) return text.push_back('*');
    std::array<char, INET6_ADDRSTRLEN> host{};
    ::inet_ntop(AF_INET6, bytes.data(), host.data(), host.size());
    fmt::format_to(std::back_inserter(text), "[{}]", host.data());
}

} // namespace

std::string endpointText(SocketFamily family, const SocketAddress& address) {
    fmt::memory_buffer text;
    if (family == SocketFamily::ipv4) {
        appendIPv4(text, address.bytes.data());
    } else {
        appendIPv6(text, address.bytes);
    }
    if (address.port == 0) {
        fmt::format_to(std::back_inserter(text), ":*");
    } else {
        fmt::format_to(std::back_inserter(text), ":{}", address.port);
    }
    return fmt::to_string(text);
}

std::optional<std::string_view> socketStateName(std::uint8_t state) {
    if (state == 0 || state >= stateNames.size()) return std::nullopt;
    return stateNames[state];
}

} // namespace tarvo::linux_platform
