#include "processes/lsof_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarvo {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr auto header = "COMMAND PID USER FD TYPE DEVICE SIZE/OFF NODE NAME\n";

std::vector<NetworkConnection> parse(const std::string& lines) {
    return parseOpenFilesText(header + lines);
}

TEST(OpenFilesText, AConnectionHasTwoEndpointsAndAState) {
    const auto list = parse("Python  4711 user   5u  IPv4 0x1234567890      0t0  TCP "
                            "127.0.0.1:5000->127.0.0.1:60000 (ESTABLISHED)\n");
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].process, "Python");
    EXPECT_EQ(list[0].pid, 4711);
    EXPECT_EQ(list[0].proto_, "TCP");
    EXPECT_EQ(list[0].localAddress, "127.0.0.1:5000");
    EXPECT_EQ(list[0].remoteAddress, "127.0.0.1:60000");
    EXPECT_EQ(list[0].state, "ESTABLISHED");
}

TEST(OpenFilesText, ASocketWithoutPeerShowsDashes) {
    const auto list = parse("mdns 200 user 6u IPv4 0x12 0t0 UDP *:5353\n");
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].localAddress, "*:5353");
    EXPECT_EQ(list[0].remoteAddress, "—");
    EXPECT_EQ(list[0].state, "—");
}

TEST(OpenFilesText, AListenerHasAStateButNoPeer) {
    const auto list = parse("sshd 1 root 3u IPv6 0x12 0t0 TCP [::1]:22 (LISTEN)\n");
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].localAddress, "[::1]:22");
    EXPECT_EQ(list[0].remoteAddress, "—");
    EXPECT_EQ(list[0].state, "LISTEN");
}

TEST(OpenFilesText, ALineOfEightFieldsHasAnEmptyName) {
    const auto list = parse("a 1 root 3u IPv6 0x12 0t0 TCP\nb 2 root 3u IPv6 0x12 TCP\n");
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].process, "a");
    EXPECT_EQ(list[0].localAddress, "");
    EXPECT_EQ(list[0].remoteAddress, "—");
    EXPECT_EQ(list[0].state, "—");
}

TEST(OpenFilesText, TheNameIsItsFieldsJoinedBySingleSpaces) {
    const auto list = parse("a 1 root 3u IPv6 0x12 0t0 TCP x   y (A B   C)\n");
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].localAddress, "x y");
    EXPECT_EQ(list[0].state, "A B C");
}

TEST(OpenFilesText, OnlyTheLastParenthesesAreTheState) {
    const auto list = parse("a 1 root 3u IPv6 0x12 0t0 TCP (x)->(y) (LISTEN)\n"
                            "a 1 root 3u IPv6 0x12 0t0 TCP (x) y\n"
                            "a 1 root 3u IPv6 0x12 0t0 TCP x)\n"
                            "a 1 root 3u IPv6 0x12 0t0 TCP ()\n");
    ASSERT_THAT(list, SizeIs(4));
    EXPECT_EQ(list[0].localAddress, "(x)");
    EXPECT_EQ(list[0].remoteAddress, "(y)");
    EXPECT_EQ(list[1].localAddress, "(x) y");
    EXPECT_EQ(list[1].state, "—");
    EXPECT_EQ(list[2].localAddress, "x)");
    EXPECT_EQ(list[3].localAddress, "");
    EXPECT_EQ(list[3].state, "");
}

TEST(OpenFilesText, OnlyTheFirstArrowParts) {
    const auto list = parse("a 1 root 3u IPv6 0x12 0t0 TCP a->b->c\n");
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].localAddress, "a");
    EXPECT_EQ(list[0].remoteAddress, "b->c");
}

TEST(OpenFilesText, ALineWithoutANumericPidIsSkipped) {
    EXPECT_THAT(parse("a x root 3u IPv6 0x12 0t0 TCP *:1\na 12345678901 root 3u IPv6 0x12 0t0 TCP *:1\n"),
                IsEmpty());
}

TEST(OpenFilesText, TheFirstLineIsAlwaysTheHeader) {
    const std::string line = "a 1 root 3u IPv6 0x12 0t0 TCP *:1\n";
    EXPECT_THAT(parseOpenFilesText(line), IsEmpty());
    EXPECT_THAT(parseOpenFilesText("\n" + line + "\n" + line), SizeIs(1));
    EXPECT_THAT(parseOpenFilesText(""), IsEmpty());
}

TEST(OpenFilesText, ASocketSharedByDescriptorsAppearsOnceALine) {
    const std::string line = "a 1 root 3u IPv6 0x12 0t0 TCP *:1\n";
    const auto list = parse(line + line);
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_NE(list[0].id, list[1].id);
}

TEST(OpenFilesText, TextThatIsNotUTF8GivesNothing) {
    EXPECT_THAT(parse("a 1 root 3u IPv6 0x12 0t0 TCP *:1\nb\xC3 1 root 3u IPv6 0x12 0t0 TCP *:1\n"),
                IsEmpty());
}

} // namespace
} // namespace tarvo
