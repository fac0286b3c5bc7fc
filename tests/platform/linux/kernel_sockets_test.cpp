#include "platform/linux/kernel_sockets.h"

#include "platform/linux/read_file.h"
#include "platform/linux/socket_table_text.h"
#include "support/loopback_sockets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <bit>

namespace tarvo::linux_platform {
namespace {

std::uint64_t inodeOf(const FileDescriptor& socket) {
    struct stat status {};
    loopback::require(::fstat(socket.get(), &status) == 0);
    return status.st_ino;
}

const SocketRecord* find(const std::vector<SocketRecord>& sockets, const FileDescriptor& socket) {
    const auto position =
        std::find_if(sockets.begin(), sockets.end(),
                     [inode = inodeOf(socket)](const auto& record) { return record.inode == inode; });
    return position == sockets.end() ? nullptr : &*position;
}

TEST(KernelSockets, TheKernelsAnswerAndItsFilesAgree) {
    const loopback::Pair pair;
    std::vector<SocketRecord> asked;
    SocketDiag netlink;
    ASSERT_TRUE(netlink.append({SocketFamily::ipv4, SocketProtocol::tcp}, asked));
    std::vector<SocketRecord> read;
    parseSocketTableText(readFile("/proc/net/tcp").value_or(""), SocketFamily::ipv4, SocketProtocol::tcp,
                         std::endian::native, read);
    for (const auto* const socket : {&pair.listening, &pair.client, &pair.server}) {
        const auto* const fromKernel = find(asked, *socket);
        const auto* const fromFile = find(read, *socket);
        ASSERT_NE(fromKernel, nullptr);
        ASSERT_NE(fromFile, nullptr);
        auto withoutCookie = *fromKernel;
        EXPECT_NE(withoutCookie.cookie, 0U);
        withoutCookie.cookie = 0;
        EXPECT_EQ(withoutCookie, *fromFile);
    }
}

TEST(KernelSockets, ManySocketsArriveInBatches) {
    std::vector<FileDescriptor> sockets;
    for (int i = 0; i < 900; ++i) { // below the usual limit of 1024 descriptors
        sockets.push_back(loopback::open(AF_INET, SOCK_DGRAM));
        if (!sockets.back() || !loopback::bind(sockets.back(), loopback::address())) break;
    }
    ASSERT_GT(sockets.size(), 500U);
    KernelSockets source{Root()};
    std::vector<SocketRecord> records;
    source.list(records);
    for (std::size_t i = 0; i + 1 < sockets.size(); ++i)
        ASSERT_NE(find(records, sockets[i]), nullptr) << i;
}

TEST(KernelSockets, TrafficIsListedForConnectionsOnly) {
    const loopback::Pair pair;
    const std::string sent(1234, 'x');
    ASSERT_EQ(::send(pair.client.get(), sent.data(), sent.size(), 0), static_cast<ssize_t>(sent.size()));
    std::string received(sent.size(), ' ');
    ASSERT_EQ(::recv(pair.server.get(), received.data(), received.size(), MSG_WAITALL),
              static_cast<ssize_t>(sent.size()));
    loopback::acknowledge(pair.server);
    KernelSockets source{Root()};
    std::vector<SocketRecord> records;
    source.listTraffic(records);
    EXPECT_EQ(find(records, pair.listening), nullptr);
    const auto* const client = find(records, pair.client);
    const auto* const server = find(records, pair.server);
    ASSERT_NE(client, nullptr);
    ASSERT_NE(server, nullptr);
    EXPECT_EQ(client->traffic, (SocketTraffic{0, 1234}));
    EXPECT_EQ(server->traffic, (SocketTraffic{1234, 0}));
}

TEST(KernelSockets, ARecordedMachineHasNoTraffic) {
    KernelSockets source{Root("/nowhere")};
    std::vector<SocketRecord> records(3);
    source.listTraffic(records);
    EXPECT_TRUE(records.empty());
}

} // namespace
} // namespace tarvo::linux_platform
