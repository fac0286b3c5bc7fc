#include "platform/linux/inode_index.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

std::vector<SocketRecord> withInodes(const std::vector<std::uint64_t>& inodes) {
    std::vector<SocketRecord> sockets;
    for (const auto inode : inodes)
        sockets.emplace_back().inode = inode;
    return sockets;
}

TEST(InodeIndex, EverySocketIsFoundByItsInode) {
    std::vector<std::uint64_t> inodes;
    for (std::uint64_t i = 1; i <= 5000; ++i)
        inodes.push_back(i * 7 % 40961);
    const auto sockets = withInodes(inodes);
    const InodeIndex index(sockets);
    for (std::size_t i = 0; i < inodes.size(); ++i)
        ASSERT_EQ(index.find(inodes[i]), &sockets[i]);
    EXPECT_EQ(index.find(40961), nullptr);
    EXPECT_EQ(index.find(UINT64_MAX), nullptr);
}

TEST(InodeIndex, SocketsWithoutAnInodeAreNotFound) {
    const auto sockets = withInodes({0, 0, 3});
    const InodeIndex index(sockets);
    EXPECT_EQ(index.find(0), nullptr);
    EXPECT_EQ(index.find(3), &sockets[2]);
}

TEST(InodeIndex, TheFirstOfSeveralIsFound) {
    const auto sockets = withInodes({9, 9});
    EXPECT_EQ(InodeIndex(sockets).find(9), &sockets[0]);
}

TEST(InodeIndex, AnEmptyListHoldsNothing) {
    const std::vector<SocketRecord> none;
    EXPECT_EQ(InodeIndex(none).find(1), nullptr);
}

} // namespace
} // namespace tarvo::linux_platform
