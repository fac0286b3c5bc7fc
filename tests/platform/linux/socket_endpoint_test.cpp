#include "platform/linux/socket_endpoint.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

std::string ipv4(const char* host, std::uint16_t port) {
    SocketAddress address;
    ::inet_pton(AF_INET, host, address.bytes.data());
    address.port = port;
    return endpointText(SocketFamily::ipv4, address);
}

std::string ipv6(const char* host, std::uint16_t port) {
    SocketAddress address;
    ::inet_pton(AF_INET6, host, address.bytes.data());
    address.port = port;
    return endpointText(SocketFamily::ipv6, address);
}

TEST(SocketEndpoint, AnIPv4EndpointIsNumeric) {
    EXPECT_EQ(ipv4("127.0.0.1", 5000), "127.0.0.1:5000");
    EXPECT_EQ(ipv4("255.255.255.255", 65535), "255.255.255.255:65535");
}

TEST(SocketEndpoint, AnIPv6HostStandsInBrackets) {
    EXPECT_EQ(ipv6("::1", 80), "[::1]:80");
    EXPECT_EQ(ipv6("2001:db8:0:0:1:0:0:1", 443), "[2001:db8::1:0:0:1]:443");
}

TEST(SocketEndpoint, AMappedHostIsPlainIPv4) {
    EXPECT_EQ(ipv6("::ffff:10.0.0.7", 22), "10.0.0.7:22");
    EXPECT_EQ(ipv6("::ffff:0.0.0.0", 22), "*:22");
}

TEST(SocketEndpoint, AnyHostAndPortZeroAreStars) {
    EXPECT_EQ(ipv4("0.0.0.0", 5353), "*:5353");
    EXPECT_EQ(ipv6("::", 22), "*:22");
    EXPECT_EQ(ipv4("127.0.0.1", 0), "127.0.0.1:*");
    EXPECT_EQ(ipv6("::", 0), "*:*");
}

TEST(SocketState, EveryStateHasTheNameThatTheColoursKnow) {
    EXPECT_EQ(socketStateName(1), "ESTABLISHED");
    EXPECT_EQ(socketStateName(2), "SYN_SENT");
    EXPECT_EQ(socketStateName(3), "SYN_RCVD");
    EXPECT_EQ(socketStateName(4), "FIN_WAIT_1");
    EXPECT_EQ(socketStateName(5), "FIN_WAIT_2");
    EXPECT_EQ(socketStateName(6), "TIME_WAIT");
    EXPECT_EQ(socketStateName(7), "CLOSED");
    EXPECT_EQ(socketStateName(8), "CLOSE_WAIT");
    EXPECT_EQ(socketStateName(9), "LAST_ACK");
    EXPECT_EQ(socketStateName(10), "LISTEN");
    EXPECT_EQ(socketStateName(11), "CLOSING");
    EXPECT_EQ(socketStateName(12), "SYN_RCVD");
    EXPECT_EQ(socketStateName(0), std::nullopt);
    EXPECT_EQ(socketStateName(13), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
