#include "platform/linux/netlink_message.h"

#include <gtest/gtest.h>
#include <linux/netlink.h>

namespace tarvo::linux_platform {

namespace {

std::string message(std::uint16_t type, const std::string& payload) {
    nlmsghdr header{};
    header.nlmsg_len = static_cast<std::uint32_t>(sizeof(header) + payload.size());
    header.nlmsg_type = type;
    std::string bytes(reinterpret_cast<const char*>(&header), sizeof(header));
    bytes += payload;
    bytes.resize((bytes.size() + 3) / 4 * 4);
    return bytes;
}

} // namespace

TEST(NetlinkMessage, SplitsADatagram) {
    const auto datagram = message(20, "abcde") + message(3, "");
    const auto messages = netlinkMessages(datagram);
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0].type, 20);
    EXPECT_EQ(messages[0].payload, "abcde");
    EXPECT_EQ(messages[1].type, 3);
    EXPECT_EQ(messages[1].payload, "");
}

TEST(NetlinkMessage, StopsAtWhatIsCutOrHasAnImpossibleLength) {
    const auto whole = message(20, "abcd");
    EXPECT_TRUE(netlinkMessages("").empty());
    EXPECT_TRUE(netlinkMessages(std::string_view(whole).substr(0, whole.size() - 1)).empty());
    EXPECT_EQ(netlinkMessages(whole + whole.substr(0, 7)).size(), 1U);
    EXPECT_TRUE(netlinkMessages(std::string(64, '\0')).empty());
}

TEST(NetlinkMessage, FindsAttributes) {
    const auto attributes =
        netlinkAttributeBytes(4, "wlan0") + netlinkAttributeBytes(5, std::string("\2\0\0\0", 4));
    EXPECT_EQ(netlinkAttribute(attributes, 4), "wlan0");
    EXPECT_EQ(netlinkValue<std::uint32_t>(netlinkAttribute(attributes, 5)), 2U);
    EXPECT_EQ(netlinkValue<std::uint16_t>(netlinkAttribute(attributes, 5)), std::nullopt);
    EXPECT_EQ(netlinkAttribute(attributes, 6), std::nullopt);
    EXPECT_EQ(netlinkAttribute(std::string(64, '\0'), 6), std::nullopt);
    EXPECT_EQ(netlinkAttribute(std::string_view(attributes).substr(0, 7), 4), std::nullopt);
}

TEST(NetlinkMessage, WritesRequestsThatItCanRead) {
    const auto request = genericNetlinkRequest(28, NLM_F_DUMP, 5, netlinkAttributeBytes(2, "x"));
    const auto messages = netlinkMessages(request);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].type, 28);
    EXPECT_EQ(messages[0].payload.front(), 5);
    EXPECT_EQ(netlinkAttribute(messages[0].payload.substr(4), 2), "x");
}

} // namespace tarvo::linux_platform
