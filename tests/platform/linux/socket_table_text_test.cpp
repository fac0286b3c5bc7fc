#include "platform/linux/socket_table_text.h"

#include "platform/linux/socket_endpoint.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarvo::linux_platform {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr auto header =
    "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout inode\n";

std::vector<SocketRecord> parse(const std::string& lines, SocketFamily family = SocketFamily::ipv4,
                                std::endian order = std::endian::little) {
    std::vector<SocketRecord> sockets;
    parseSocketTableText(header + lines, family, SocketProtocol::tcp, order, sockets);
    return sockets;
}

TEST(SocketTableText, ALineHoldsEndpointsStateAndInode) {
    const auto sockets =
        parse("   0: 0100007F:1388 0200007F:EA60 01 00000000:00000000 00:00000000 00000000  1000  "
              "      0 28561 2 0000000000000000 20 4 30 10 -1\n");
    ASSERT_THAT(sockets, SizeIs(1));
    EXPECT_EQ(endpointText(SocketFamily::ipv4, sockets[0].local), "127.0.0.1:5000");
    EXPECT_EQ(endpointText(SocketFamily::ipv4, sockets[0].remote), "127.0.0.2:60000");
    EXPECT_EQ(sockets[0].state, 1);
    EXPECT_EQ(sockets[0].inode, 28561U);
    EXPECT_EQ(sockets[0].cookie, 0U);
    EXPECT_FALSE(sockets[0].traffic);
}

TEST(SocketTableText, ABigEndianMachineWritesTheWordsTheOtherWay) {
    const auto sockets =
        parse("   0: 7F000001:1388 7F000002:EA60 0A 00000000:00000000 00:00000000 00000000  1000  "
              "      0 28561\n",
              SocketFamily::ipv4, std::endian::big);
    ASSERT_THAT(sockets, SizeIs(1));
    EXPECT_EQ(endpointText(SocketFamily::ipv4, sockets[0].local), "127.0.0.1:5000");
    EXPECT_EQ(socketStateName(sockets[0].state), "LISTEN");
}

TEST(SocketTableText, IPv6AddressesAreFourWords) {
    const auto little =
        parse("   0: B80D0120000000000000000001000000:0050 00000000000000000000000000000000:0000 0A "
              "00000000:00000000 00:00000000 00000000     0        0 77 1\n",
              SocketFamily::ipv6);
    ASSERT_THAT(little, SizeIs(1));
    EXPECT_EQ(endpointText(SocketFamily::ipv6, little[0].local), "[2001:db8::1]:80");
    EXPECT_EQ(endpointText(SocketFamily::ipv6, little[0].remote), "*:*");
    const auto big =
        parse("   0: 20010DB8000000000000000000000001:0050 00000000000000000000000000000000:0000 0A "
              "00000000:00000000 00:00000000 00000000     0        0 77 1\n",
              SocketFamily::ipv6, std::endian::big);
    ASSERT_THAT(big, SizeIs(1));
    EXPECT_EQ(endpointText(SocketFamily::ipv6, big[0].local), "[2001:db8::1]:80");
}

TEST(SocketTableText, AMappedAddressIsRecognisedInBothOrders) {
    const auto line = [](const char* address) {
        return std::string("   0: ") + address +
               ":0050 00000000000000000000000000000000:0000 0A "
               "00000000:00000000 00:00000000 00000000     0        0 77 1\n";
    };
    const auto little = parse(line("0000000000000000FFFF00000100007F"), SocketFamily::ipv6);
    const auto big = parse(line("00000000000000000000FFFF7F000001"), SocketFamily::ipv6, std::endian::big);
    ASSERT_THAT(little, SizeIs(1));
    ASSERT_THAT(big, SizeIs(1));
    EXPECT_EQ(endpointText(SocketFamily::ipv6, little[0].local), "127.0.0.1:80");
    EXPECT_EQ(endpointText(SocketFamily::ipv6, big[0].local), "127.0.0.1:80");
}

TEST(SocketTableText, SocketsAreAppendedInTheirOrder) {
    std::vector<SocketRecord> sockets(1);
    parseSocketTableText(std::string(header) + "  10: 00000000:0001 00000000:0000 07 0:0 00:0 0 0 0 5 2 0 0\n"
                                               "  11: 00000000:0002 00000000:0000 07 0:0 00:0 0 0 0 6 2 0 0",
                         SocketFamily::ipv4, SocketProtocol::udp, std::endian::little, sockets);
    ASSERT_THAT(sockets, SizeIs(3));
    EXPECT_EQ(sockets[1].inode, 5U);
    EXPECT_EQ(sockets[2].local.port, 2);
    EXPECT_EQ(sockets[2].protocol, SocketProtocol::udp);
}

TEST(SocketTableText, LinesThatDoNotParseAreLeftOut) {
    EXPECT_THAT(parse("\n"
                      "nonsense\n"
                      "0: 0100007F 0200007F:EA60 01 0:0 0:0 0 0 0 1\n"
                      "0: 0100007F: 0200007F:EA60 01 0:0 0:0 0 0 0 1\n"
                      "0: 0100007G:1388 0200007F:EA60 01 0:0 0:0 0 0 0 1\n"
                      "0: 0100007F:11388 0200007F:EA60 01 0:0 0:0 0 0 0 1\n"
                      "0: 0100007F:1388 0200007F:EA60 xx 0:0 0:0 0 0 0 1\n"
                      "0: 0100007F:1388 0200007F:EA60 01 0:0 0:0 0 0 0\n"
                      "0: 0100007F:1388 0200007F:EA60 01 0:0 0:0 0 0 0 -1\n"),
                IsEmpty());
}

TEST(SocketTableText, AnEmptyTableHasNoSockets) {
    EXPECT_THAT(parse(""), IsEmpty());
    std::vector<SocketRecord> sockets;
    parseSocketTableText("", SocketFamily::ipv4, SocketProtocol::tcp, std::endian::little, sockets);
    EXPECT_THAT(sockets, IsEmpty());
}

} // namespace
} // namespace tarvo::linux_platform
