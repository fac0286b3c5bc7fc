#include "platform/linux/process_command.h"

#include "platform/posix/file_descriptor.h"
#include "support/process_tree.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <string_view>

namespace tarvo::linux_platform {
namespace {

using namespace std::string_view_literals;

class ProcessCommandTest : public testing::Test {
protected:
    std::string command(std::string_view name) {
        const FileDescriptor folder(::open(tree_.folder.path("proc").c_str(), O_RDONLY | O_DIRECTORY));
        return processCommand(folder.get(), 7, name);
    }

    ProcessTree tree_;
};

TEST_F(ProcessCommandTest, TheExecutablesPathComesFirst) {
    tree_.setExecutable(7, "/opt/Some App/Some App");
    tree_.setCommandLine(7, "/bin/other\0x\0"sv);
    EXPECT_EQ(command("Some App"), "/opt/Some App/Some App");
}

TEST_F(ProcessCommandTest, ARemovedExecutableKeepsItsPath) {
    tree_.setExecutable(7, "/usr/bin/thing (deleted)");
    EXPECT_EQ(command("thing"), "/usr/bin/thing");
}

TEST_F(ProcessCommandTest, AnotherUsersPathIsTheFirstArgument) {
    tree_.setCommandLine(7, "/usr/lib/chromium/chromium-browser\0--type=renderer\0"sv);
    EXPECT_EQ(command("chromium-browse"), "/usr/lib/chromium/chromium-browser");
}

TEST_F(ProcessCommandTest, AnArgumentThatIsNotThePathGivesWayToTheName) {
    tree_.setCommandLine(7, "sshd: user [priv]\0"sv);
    EXPECT_EQ(command("sshd"), "sshd");
    tree_.setCommandLine(7, "/usr/bin/python3\0/usr/bin/thing\0"sv);
    EXPECT_EQ(command("thing"), "thing");
}

TEST_F(ProcessCommandTest, WithoutAnyPathTheNameIsLeft) {
    EXPECT_EQ(command("kworker/0:1"), "kworker/0:1");
    EXPECT_EQ(command(""), "?");
}

TEST_F(ProcessCommandTest, ACommandIsOneLineOfUTF8) {
    EXPECT_EQ(command("a\nb\xFF"), "a?b?");
    tree_.setExecutable(7, "/opt/a\nb\xC3/\xC5\xBElu\xC5\xA5");
    EXPECT_EQ(command("x"), "/opt/a?b?/\xC5\xBElu\xC5\xA5");
}

TEST(PathInCommandLine, OnlyAWholePathWhoseLastPartBeginsWithTheNameCounts) {
    EXPECT_EQ(pathInCommandLine("/sbin/init\0splash\0"sv, "init"), "/sbin/init");
    EXPECT_EQ(pathInCommandLine("/opt/a b/c d\0", "c d"), "/opt/a b/c d");
    EXPECT_EQ(pathInCommandLine("/sbin/init", "systemd"), "");
    EXPECT_EQ(pathInCommandLine("sbin/init", "init"), "");
    EXPECT_EQ(pathInCommandLine("/sbin/", ""), "");
    EXPECT_EQ(pathInCommandLine("", "init"), "");
}

TEST(PathInExecutableLink, WhatTheKernelAddsIsTakenOff) {
    EXPECT_EQ(pathInExecutableLink("/bin/a (deleted)"), "/bin/a");
    EXPECT_EQ(pathInExecutableLink("(unreachable)/bin/a"), "/bin/a");
    EXPECT_EQ(pathInExecutableLink("/bin/a"), "/bin/a");
    EXPECT_EQ(pathInExecutableLink(""), "");
}

} // namespace
} // namespace tarvo::linux_platform
