#include "platform/linux/file_manager_means.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using ::testing::Contains;
using ::testing::Not;
using Commands = std::vector<ToolCommand>;

DesktopEnvironment session(Desktop desktop) {
    return {desktop, false, true, "/home/jana", {}, 1000};
}

Commands restart(Desktop desktop, std::string_view handler) {
    return restartFileManagerMeans(session(desktop)).front().commands(handler);
}

} // namespace

TEST(FileManagerMeans, OpenTheHomeFolderAndFallBackToTheGeneralOpener) {
    const auto means = newWindowMeans(session(Desktop::gnome));
    ASSERT_EQ(means.size(), 2U);
    EXPECT_EQ(means[0].needs, std::vector<std::string>{"dbus-send"});
    EXPECT_EQ(means[0].commands("").front().arguments[6], "array:string:file:///home/jana");
    EXPECT_FALSE(means[0].commands("").front().staysOpen);
    EXPECT_EQ(means[1].commands(""), (Commands{{"xdg-open", {"/home/jana"}, true}}));
}

TEST(FileManagerMeans, NeedAFileManagerThatCouldShowTheWindow) {
    for (const auto& means : newWindowMeans(session(Desktop::other))) {
        EXPECT_THAT(means.needsOneOf, Contains("thunar"));
        EXPECT_THAT(means.needsOneOf, Contains("peony"));
    }
    EXPECT_THAT(restartFileManagerMeans(session(Desktop::other)).front().needsOneOf, Not(Contains("peony")));
}

TEST(FileManagerMeans, AreNoneWithoutAHome) {
    EXPECT_TRUE(newWindowMeans({Desktop::gnome, false, true, ""}).empty());
    EXPECT_TRUE(restartFileManagerMeans({Desktop::gnome, false, true, ""}).empty());
}

TEST(FileManagerMeans, RestartTheDefaultOneAndShowItAgain) {
    const auto commands = restart(Desktop::gnome, "org.gnome.Nautilus.desktop\n");
    ASSERT_EQ(commands.size(), 2U);
    EXPECT_EQ(commands[0], (ToolCommand{"nautilus", {"-q"}}));
    EXPECT_EQ(commands[1].tool, "dbus-send");
    EXPECT_EQ(restart(Desktop::gnome, "thunar.desktop\n")[0], (ToolCommand{"thunar", {"-q"}}));
    EXPECT_EQ(restart(Desktop::mate, "caja-folder-handler.desktop\n")[0], (ToolCommand{"caja", {"-q"}}));
}

TEST(FileManagerMeans, EndOnlyTheUsersOwnWhereTheFileManagerHasNoWordForIt) {
    EXPECT_EQ(restart(Desktop::kde, "org.kde.dolphin.desktop\n")[0],
              (ToolCommand{"pkill", {"-TERM", "-u", "1000", "-x", "dolphin"}}));
    EXPECT_EQ(restart(Desktop::lxqt, "pcmanfm-qt.desktop\n")[0].arguments.back(), "pcmanfm-qt");
    EXPECT_EQ(restart(Desktop::other, "pcmanfm.desktop\n")[0].arguments.back(), "pcmanfm");
}

TEST(FileManagerMeans, TakeTheDesktopsOwnWhereTheDefaultIsUnknown) {
    EXPECT_EQ(restart(Desktop::xfce, "vim.desktop\n")[0], (ToolCommand{"thunar", {"-q"}}));
    EXPECT_EQ(restart(Desktop::gnome, "")[0].tool, "nautilus");
    EXPECT_TRUE(restart(Desktop::sway, "vim.desktop\n").empty());
}

TEST(FileAddress, EscapesWhatAnyReaderCouldTakeForAMark) {
    EXPECT_EQ(fileAddress("/home/jana"), "file:///home/jana");
    EXPECT_EQ(fileAddress("/home/a b,c'd%e"), "file:///home/a%20b%2Cc%27d%25e");
    EXPECT_EQ(fileAddress("/home/ž"), "file:///home/%C5%BE");
    EXPECT_EQ(fileAddress("/home/a-b_c.d~"), "file:///home/a-b_c.d~");
}

} // namespace tarvo::linux_platform
