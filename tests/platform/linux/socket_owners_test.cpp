#include "platform/linux/socket_owners.h"

#include "platform/posix/file_descriptor.h"
#include "support/process_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SocketInode, OnlyASocketsLinkHasOne) {
    EXPECT_EQ(socketInode("socket:[4711]"), 4711U);
    EXPECT_EQ(socketInode("socket:[]"), std::nullopt);
    EXPECT_EQ(socketInode("socket:[12"), std::nullopt);
    EXPECT_EQ(socketInode("socket:[-1]"), std::nullopt);
    EXPECT_EQ(socketInode("socket:["), std::nullopt);
    EXPECT_EQ(socketInode("pipe:[12]"), std::nullopt);
    EXPECT_EQ(socketInode("/home/me/socket:[12]"), std::nullopt);
    EXPECT_EQ(socketInode(""), std::nullopt);
}

TEST(SocketOwners, SocketsStandByProcessAndDescriptor) {
    ProcessTree tree;
    tree.openSocket(200, 10, 5);
    tree.openSocket(200, 9, 6);
    tree.openSocket(30, 4, 5);
    tree.folder.link("proc/30/fd/0", "/dev/null");
    tree.folder.link("proc/30/fd/1", "pipe:[77]");
    tree.folder.link("proc/30/fd/2",
                     "/a/very/long/path/that/does/not/fit/into/what/a/link/of/a/socket/needs/[1]");
    tree.folder.makeFolder("proc/31"); // ended meanwhile
    tree.folder.makeFolder("proc/32/fd");
    SocketOwners owners{Root(tree.root())};
    std::vector<SocketOwner> list(7);
    owners.list(list);
    EXPECT_THAT(list, ElementsAre(SocketOwner{30, 4, 5}, SocketOwner{200, 9, 6}, SocketOwner{200, 10, 5}));
}

TEST(SocketOwners, WithoutProcessesFilesThereAreNone) {
    const TemporaryFolder empty;
    SocketOwners owners{Root(empty.path().string())};
    std::vector<SocketOwner> list(7);
    owners.list(list);
    EXPECT_THAT(list, IsEmpty());
}

TEST(SocketOwners, AnOpenSocketOfThisProcessIsFound) {
    const FileDescriptor socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    struct stat status {};
    ASSERT_EQ(::fstat(socket.get(), &status), 0);
    SocketOwners owners{Root()};
    std::vector<SocketOwner> list;
    owners.list(list);
    const SocketOwner expected{::getpid(), socket.get(), status.st_ino};
    EXPECT_NE(std::find(list.begin(), list.end(), expected), list.end());
}

} // namespace
} // namespace tarvo::linux_platform
