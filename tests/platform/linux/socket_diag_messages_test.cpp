#include "platform/linux/socket_diag_messages.h"

#include "platform/linux/socket_endpoint.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/inet_diag.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <linux/sock_diag.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <cstring>
#include <string>

namespace tarvo::linux_platform {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr std::uint32_t sequence = 42;
constexpr std::size_t presentTCPInfo = 248;

/// A batch of messages as the kernel lays them out.
class Batch {
public:
    void add(std::uint16_t type, const std::vector<std::byte>& payload, std::uint32_t number = sequence) {
        nlmsghdr header{};
        header.nlmsg_len = static_cast<std::uint32_t>(sizeof(header) + payload.size());
        header.nlmsg_type = type;
        header.nlmsg_seq = number;
        append(&header, sizeof(header));
        append(payload.data(), payload.size());
    }
    void append(const void* data, std::size_t length) {
        const auto* const begin = static_cast<const std::byte*>(data);
        bytes.insert(bytes.end(), begin, begin + length);
        bytes.resize((bytes.size() + 3) / 4 * 4);
    }

    std::vector<std::byte> bytes;
};

std::vector<std::byte> socketMessage(std::uint8_t family = AF_INET) {
    inet_diag_msg message{};
    message.idiag_family = family;
    message.idiag_state = 1;
    message.id.idiag_sport = htons(5000);
    message.id.idiag_dport = htons(60000);
    message.id.idiag_src[0] = htonl(family == AF_INET ? 0x7F000001 : 0x20010DB8);
    message.id.idiag_src[3] = family == AF_INET ? 0 : htonl(1);
    message.id.idiag_dst[0] = message.id.idiag_src[0];
    message.id.idiag_cookie[0] = 7;
    message.id.idiag_cookie[1] = 1;
    message.idiag_inode = 4711;
    std::vector<std::byte> bytes(sizeof(message));
    std::memcpy(bytes.data(), &message, sizeof(message));
    return bytes;
}

void addAttribute(std::vector<std::byte>& payload, std::uint16_t type, const std::vector<std::byte>& value) {
    rtattr attribute{};
    attribute.rta_type = type;
    attribute.rta_len = static_cast<std::uint16_t>(sizeof(attribute) + value.size());
    const auto at = payload.size();
    payload.resize(at + (sizeof(attribute) + value.size() + 3) / 4 * 4);
    std::memcpy(payload.data() + at, &attribute, sizeof(attribute));
    std::memcpy(payload.data() + at + sizeof(attribute), value.data(), value.size());
}

/// A tcp_info of 100,000 bytes sent, 77 of them twice, and 7 received.
std::vector<std::byte> tcpInfo(std::size_t length = presentTCPInfo) {
    std::vector<std::byte> info(presentTCPInfo);
    const auto put = [&](std::size_t offset, std::uint64_t value) {
        std::memcpy(info.data() + offset, &value, sizeof(value));
    };
    put(120, 100'001); // acknowledged, with one for the opening
    put(128, 7);
    put(200, 100'077);
    put(208, 77);
    info.resize(length);
    return info;
}

SocketDiagQuery query(bool onlyWithTraffic = false) {
    return {SocketFamily::ipv4, SocketProtocol::tcp, onlyWithTraffic, sequence};
}

std::vector<SocketRecord> parse(const Batch& batch, const SocketDiagQuery& asked = query(),
                                SocketDiagProgress expected = SocketDiagProgress::more) {
    std::vector<SocketRecord> sockets;
    EXPECT_EQ(parseSocketDiagMessages(batch.bytes, asked, sockets), expected);
    return sockets;
}

TEST(SocketDiagMessages, AMessageHoldsOneSocket) {
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, socketMessage());
    const auto sockets = parse(batch);
    ASSERT_THAT(sockets, SizeIs(1));
    EXPECT_EQ(sockets[0].family, SocketFamily::ipv4);
    EXPECT_EQ(sockets[0].protocol, SocketProtocol::tcp);
    EXPECT_EQ(sockets[0].state, 1);
    EXPECT_EQ(endpointText(SocketFamily::ipv4, sockets[0].local), "127.0.0.1:5000");
    EXPECT_EQ(endpointText(SocketFamily::ipv4, sockets[0].remote), "127.0.0.1:60000");
    EXPECT_EQ(sockets[0].inode, 4711U);
    EXPECT_EQ(sockets[0].cookie, 0x100000007U);
    EXPECT_FALSE(sockets[0].traffic);
}

TEST(SocketDiagMessages, AnIPv6SocketHasItsWholeAddress) {
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, socketMessage(AF_INET6));
    const auto sockets = parse(batch);
    ASSERT_THAT(sockets, SizeIs(1));
    EXPECT_EQ(endpointText(sockets[0].family, sockets[0].local), "[2001:db8::1]:5000");
}

TEST(SocketDiagMessages, TheCountersAreFoundAmongTheAttributes) {
    auto payload = socketMessage();
    addAttribute(payload, INET_DIAG_SHUTDOWN, {std::byte{0}});
    addAttribute(payload, INET_DIAG_INFO, tcpInfo());
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, payload);
    const auto sockets = parse(batch, query(true));
    ASSERT_THAT(sockets, SizeIs(1));
    EXPECT_EQ(sockets[0].traffic, (SocketTraffic{7, 100'000}));
    EXPECT_FALSE(parse(batch).at(0).traffic) << "not asked for";
}

std::optional<SocketTraffic> trafficWith(const std::vector<std::byte>& info) {
    auto payload = socketMessage();
    addAttribute(payload, INET_DIAG_INFO, info);
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, payload);
    return parse(batch, query(true)).at(0).traffic;
}

TEST(SocketDiagMessages, AnOlderKernelsAcknowledgedBytesCountWithoutTheOpening) {
    EXPECT_EQ(trafficWith(tcpInfo(136)), (SocketTraffic{7, 100'000}));
    EXPECT_EQ(trafficWith(tcpInfo(215)), (SocketTraffic{7, 100'000}));
    EXPECT_EQ(trafficWith(std::vector<std::byte>(136)), (SocketTraffic{0, 0}));
}

TEST(SocketDiagMessages, AKernelWithoutTheCountersGivesNone) {
    for (const std::size_t length : {std::size_t{0}, std::size_t{104}, std::size_t{135}})
        EXPECT_EQ(trafficWith(tcpInfo(length)), std::nullopt) << length;
}

TEST(SocketDiagMessages, TheListEndsWithItsLastMessage) {
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, socketMessage());
    batch.add(NLMSG_DONE, std::vector<std::byte>(4));
    batch.add(SOCK_DIAG_BY_FAMILY, socketMessage());
    EXPECT_THAT(parse(batch, query(), SocketDiagProgress::done), SizeIs(1));
}

TEST(SocketDiagMessages, ARefusalFails) {
    Batch batch;
    batch.add(NLMSG_ERROR, std::vector<std::byte>(sizeof(nlmsgerr)));
    parse(batch, query(), SocketDiagProgress::failed);
}

TEST(SocketDiagMessages, AnswersToAnotherQuestionArePassedOver) {
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, socketMessage(), sequence - 1);
    batch.add(NLMSG_DONE, std::vector<std::byte>(4), sequence - 1);
    batch.add(NLMSG_ERROR, std::vector<std::byte>(4), sequence - 1);
    EXPECT_THAT(parse(batch), IsEmpty());
}

TEST(SocketDiagMessages, BytesThatAreNoMessageFail) {
    Batch batch;
    batch.append("abc", 3);
    parse(batch, query(), SocketDiagProgress::failed);

    Batch tooLong;
    tooLong.add(SOCK_DIAG_BY_FAMILY, socketMessage());
    tooLong.bytes.resize(tooLong.bytes.size() - 4);
    parse(tooLong, query(), SocketDiagProgress::failed);

    Batch tooShort;
    nlmsghdr header{};
    header.nlmsg_len = 4;
    tooShort.append(&header, sizeof(header));
    parse(tooShort, query(), SocketDiagProgress::failed);
}

TEST(SocketDiagMessages, ASocketThatIsCutShortIsLeftOut) {
    Batch batch;
    auto payload = socketMessage();
    payload.resize(payload.size() - 4);
    batch.add(SOCK_DIAG_BY_FAMILY, payload);
    batch.add(SOCK_DIAG_BY_FAMILY, socketMessage());
    EXPECT_THAT(parse(batch), SizeIs(1));
}

TEST(SocketDiagMessages, AnAttributeThatIsCutShortEndsTheSearch) {
    auto payload = socketMessage();
    rtattr attribute{};
    attribute.rta_len = 400;
    attribute.rta_type = INET_DIAG_INFO;
    payload.resize(payload.size() + sizeof(attribute));
    std::memcpy(payload.data() + payload.size() - sizeof(attribute), &attribute, sizeof(attribute));
    Batch batch;
    batch.add(SOCK_DIAG_BY_FAMILY, payload);
    EXPECT_FALSE(parse(batch, query(true)).at(0).traffic);
}

TEST(SocketDiagMessages, TheRequestAsksForOneFamilyAndProtocol) {
    const auto bytes = socketDiagRequest({SocketFamily::ipv6, SocketProtocol::udp, false, 9});
    nlmsghdr header{};
    inet_diag_req_v2 body{};
    ASSERT_EQ(bytes.size(), sizeof(header) + sizeof(body));
    std::memcpy(&header, bytes.data(), sizeof(header));
    std::memcpy(&body, bytes.data() + sizeof(header), sizeof(body));
    EXPECT_EQ(header.nlmsg_len, bytes.size());
    EXPECT_EQ(header.nlmsg_type, SOCK_DIAG_BY_FAMILY);
    EXPECT_EQ(header.nlmsg_flags, NLM_F_REQUEST | NLM_F_DUMP);
    EXPECT_EQ(header.nlmsg_seq, 9U);
    EXPECT_EQ(body.sdiag_family, AF_INET6);
    EXPECT_EQ(body.sdiag_protocol, IPPROTO_UDP);
    EXPECT_EQ(body.idiag_states, 0xFFFFFFFFU);
    EXPECT_EQ(body.idiag_ext, 0);
}

} // namespace
} // namespace tarvo::linux_platform
