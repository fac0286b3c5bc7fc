#include "platform/linux/linux_socket_table.h"

#include "platform/linux/kernel_sockets.h"
#include "support/loopback_sockets.h"
#include "support/process_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace tarvo::linux_platform {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr auto own = "platform_linux_"; // 15 bytes of this test program's name

SocketRow row(std::string protocol, std::string local, std::optional<std::string> remote,
              std::optional<std::string> state) {
    return {own, ::getpid(), std::move(protocol), std::move(local), std::move(remote), std::move(state)};
}

std::string at(std::uint16_t port) {
    return fmt::format("127.0.0.1:{}", port);
}

class RunningMachine : public testing::Test {
protected:
    std::vector<SocketRow> rows() {
        return LinuxSocketTable(Root(), std::make_unique<KernelSockets>(Root())).rows();
    }
};

TEST_F(RunningMachine, AConnectionIsListedFromBothEnds) {
    const loopback::Pair pair;
    const auto server = at(loopback::localPort(pair.listening));
    const auto client = at(loopback::localPort(pair.client));
    const auto list = rows();
    EXPECT_THAT(list, Contains(row("TCP", server, std::nullopt, "LISTEN")));
    EXPECT_THAT(list, Contains(row("TCP", client, server, "ESTABLISHED")));
    EXPECT_THAT(list, Contains(row("TCP", server, client, "ESTABLISHED")));
}

TEST_F(RunningMachine, AHalfClosedConnectionShowsItsStates) {
    loopback::Pair pair;
    const auto server = at(loopback::localPort(pair.listening));
    const auto client = at(loopback::localPort(pair.client));
    ASSERT_EQ(::shutdown(pair.client.get(), SHUT_WR), 0);
    char byte = 0;
    ASSERT_EQ(::recv(pair.server.get(), &byte, 1, 0), 0); // waits for the end to arrive
    loopback::acknowledge(pair.server);
    const auto list = rows();
    EXPECT_THAT(list, Contains(row("TCP", client, server, "FIN_WAIT_2")));
    EXPECT_THAT(list, Contains(row("TCP", server, client, "CLOSE_WAIT")));
}

TEST_F(RunningMachine, AConnectionNobodyAcceptedYetIsListedFromTheClientOnly) {
    const auto listening = loopback::listener();
    const auto client = loopback::open(AF_INET, SOCK_STREAM);
    ASSERT_TRUE(loopback::connect(client, loopback::address(loopback::localPort(listening))));
    const auto from = at(loopback::localPort(client));
    const auto to = at(loopback::localPort(listening));
    const auto list = rows();
    EXPECT_THAT(list, Contains(row("TCP", from, to, "ESTABLISHED")));
    EXPECT_THAT(list, Not(Contains(row("TCP", to, from, "ESTABLISHED"))));
}

TEST_F(RunningMachine, DatagramSocketsHaveNoState) {
    const auto bound = loopback::open(AF_INET, SOCK_DGRAM);
    ASSERT_TRUE(loopback::bind(bound, loopback::address()));
    const auto connected = loopback::open(AF_INET, SOCK_DGRAM);
    ASSERT_TRUE(loopback::connect(connected, loopback::address(loopback::localPort(bound))));
    const auto to = at(loopback::localPort(bound));
    const auto list = rows();
    EXPECT_THAT(list, Contains(row("UDP", to, std::nullopt, std::nullopt)));
    EXPECT_THAT(list, Contains(row("UDP", at(loopback::localPort(connected)), to, std::nullopt)));
}

TEST_F(RunningMachine, IPv6HostsStandInBracketsAndMappedOnesDoNot) {
    const auto listening = loopback::open(AF_INET6, SOCK_STREAM);
    if (!listening || !loopback::bind(listening, loopback::address6())) GTEST_SKIP() << "no IPv6 here";
    ASSERT_EQ(::listen(listening.get(), 1), 0);
    const auto any = loopback::open(AF_INET6, SOCK_STREAM);
    sockaddr_in6 anywhere{};
    anywhere.sin6_family = AF_INET6;
    const int no = 0;
    ASSERT_EQ(::setsockopt(any.get(), IPPROTO_IPV6, IPV6_V6ONLY, &no, sizeof(no)), 0);
    ASSERT_TRUE(loopback::bind(any, anywhere));
    ASSERT_EQ(::listen(any.get(), 1), 0);
    const auto client = loopback::open(AF_INET, SOCK_STREAM);
    ASSERT_TRUE(loopback::connect(client, loopback::address(loopback::localPort(any))));
    const auto accepted = loopback::accept(any);

    const auto list = rows();
    EXPECT_THAT(list, Contains(row("TCP", fmt::format("[::1]:{}", loopback::localPort(listening)),
                                   std::nullopt, "LISTEN")));
    EXPECT_THAT(list,
                Contains(row("TCP", fmt::format("*:{}", loopback::localPort(any)), std::nullopt, "LISTEN")));
    EXPECT_THAT(list, Contains(row("TCP", at(loopback::localPort(any)), at(loopback::localPort(client)),
                                   "ESTABLISHED")));
}

TEST_F(RunningMachine, EveryDescriptorOfASocketIsARow) {
    const auto bound = loopback::open(AF_INET, SOCK_DGRAM);
    ASSERT_TRUE(loopback::bind(bound, loopback::address()));
    const FileDescriptor copy(::dup(bound.get()));
    EXPECT_THAT(rows(),
                Contains(row("UDP", at(loopback::localPort(bound)), std::nullopt, std::nullopt)).Times(2));
}

TEST_F(RunningMachine, AnUnboundSocketIsNotInTheTables) {
    const auto unbound = loopback::open(AF_INET, SOCK_DGRAM);
    EXPECT_THAT(rows(), Not(Contains(row("UDP", "*:*", std::nullopt, std::nullopt))));
}

TEST(LinuxSocketTable, ARecordedMachineIsReadFromItsFiles) {
    ProcessTree tree;
    tree.folder.write("proc/net/tcp", "header\n"
                                      "0: 0100007F:1388 00000000:0000 0A 0:0 0:0 0 1000 0 501 1\n"
                                      "1: 0100007F:1388 0100007F:EA60 06 0:0 0:0 0 0 0 0 1\n"
                                      "2: 0100007F:1389 0100007F:EA61 08 0:0 0:0 0 0 0 777 1\n");
    tree.folder.write(
        "proc/net/udp6",
        "header\n0: 00000000000000000000000000000000:14E9 00000000000000000000000000000000:0000 07 "
        "0:0 0:0 0 0 0 502 1\n");
    MadeProcess made;
    made.name = "Web Content";
    tree.put(40, made);
    tree.openSocket(40, 3, 502);
    tree.openSocket(40, 12, 501);
    made.name = "a\nb";
    tree.put(9, made);
    tree.openSocket(9, 5, 501);
    tree.openSocket(9, 6, 999); // a socket of another kind
    LinuxSocketTable table(Root(tree.root()), std::make_unique<KernelSockets>(Root(tree.root())));
    EXPECT_THAT(table.rows(),
                ElementsAre(SocketRow{"a?b", 9, "TCP", "127.0.0.1:5000", std::nullopt, "LISTEN"},
                            SocketRow{"Web Content", 40, "UDP", "*:5353", std::nullopt, std::nullopt},
                            SocketRow{"Web Content", 40, "TCP", "127.0.0.1:5000", std::nullopt, "LISTEN"}));
}

TEST(LinuxSocketTable, AMachineWithoutTheFilesHasNoSockets) {
    ProcessTree tree;
    tree.openSocket(40, 3, 502);
    LinuxSocketTable table(Root(tree.root()), std::make_unique<KernelSockets>(Root(tree.root())));
    EXPECT_THAT(table.rows(), IsEmpty());
}

} // namespace
} // namespace tarvo::linux_platform
