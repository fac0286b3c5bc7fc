#include "platform/linux/linux_process_icons.h"

#include "support/manual_dispatcher.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tarvo::linux_platform {
namespace {

namespace fs = std::filesystem;

void write(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

struct LinuxProcessIconsTest : ::testing::Test {
    LinuxProcessIconsTest() {
        addApplication("org.example.Editor", "edit", "editor-icon");
        addProcess(41, "/usr/bin/edit", "0::/init.scope\n");
    }
    void addApplication(const std::string& id, const std::string& program, const std::string& icon) {
        write(apps / (id + ".desktop"),
              "[Desktop Entry]\nType=Application\nIcon=" + icon + "\nExec=/usr/bin/" + program + " %U\n");
    }
    void addProcess(int pid, const std::string& program, const std::string& cgroup) {
        const fs::path process = root / "proc" / std::to_string(pid);
        write(process / "cgroup", cgroup);
        fs::create_symlink(program, process / "exe");
    }
    std::optional<std::string> iconName(int pid) {
        const auto icon = icons.icon(pid);
        return icon ? std::optional(std::get<NamedIcon>(*icon).nameOrPath) : std::nullopt;
    }
    std::optional<std::string> iconOnceRead(int pid) {
        (void)iconName(pid);
        dispatcher.runAll();
        return iconName(pid);
    }

    TemporaryFolder folder;
    fs::path root = fs::path(folder.path()) / "root";
    fs::path apps = fs::path(folder.path()) / "applications";
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    LinuxProcessIcons icons{Root(root.string()), {apps.string()}, clock, dispatcher};
};

} // namespace

TEST_F(LinuxProcessIconsTest, KnowsNothingUntilTheDesktopFilesAreRead) {
    EXPECT_FALSE(iconName(41));
    dispatcher.runAll();
    EXPECT_EQ(iconName(41), "editor-icon");
}

TEST_F(LinuxProcessIconsTest, FindsTheApplicationByItsUnit) {
    addProcess(42, "/usr/lib/editor/helper", "0::/app.slice/app-gnome-org.example.Editor-7.scope\n");
    EXPECT_EQ(iconOnceRead(42), "editor-icon");
}

TEST_F(LinuxProcessIconsTest, PrefersTheProgramToTheUnitThatStartedIt) {
    addApplication("org.example.Terminal", "term", "terminal-icon");
    addProcess(43, "/usr/bin/edit", "0::/app.slice/app-gnome-org.example.Terminal-7.scope\n");
    EXPECT_EQ(iconOnceRead(43), "editor-icon");
}

TEST_F(LinuxProcessIconsTest, KnowsAProgramThatWasReplacedWhileItRuns) {
    addProcess(44, "/usr/bin/edit (deleted)", "0::/init.scope\n");
    EXPECT_EQ(iconOnceRead(44), "editor-icon");
}

TEST_F(LinuxProcessIconsTest, HasNoIconForOtherProcessesAndForGoneOnes) {
    addProcess(45, "/usr/bin/compile", "0::/init.scope\n");
    EXPECT_FALSE(iconOnceRead(45));
    EXPECT_FALSE(iconOnceRead(46));
}

TEST_F(LinuxProcessIconsTest, ReadsTheDesktopFilesAgainAfterAWhile) {
    EXPECT_EQ(iconOnceRead(41), "editor-icon");
    addApplication("org.example.Player", "play", "player-icon");
    addProcess(47, "/usr/bin/play", "0::/init.scope\n");
    EXPECT_FALSE(iconOnceRead(47));
    clock.advance(LinuxProcessIcons::indexLifetime);
    EXPECT_EQ(iconOnceRead(47), "player-icon");
}

TEST(ApplicationIndex, TakesTheFirstOfTwoFoldersAndNamesSubfolders) {
    const TemporaryFolder folder;
    const fs::path base(folder.path());
    write(base / "own/tool.desktop", "[Desktop Entry]\nType=Application\nIcon=mine\nExec=tool\n");
    write(base / "all/tool.desktop", "[Desktop Entry]\nType=Application\nIcon=theirs\nExec=tool\n");
    write(base / "all/kde/shell.desktop", "[Desktop Entry]\nType=Application\nIcon=shell\nExec=shell\n");
    const auto index =
        ApplicationIndex::read({(base / "own").string(), (base / "all").string(), "/nonexistent"});
    ASSERT_NE(index.iconOfApplication("tool"), nullptr);
    EXPECT_EQ(*index.iconOfApplication("tool"), "mine");
    EXPECT_EQ(*index.iconOfProgram("tool"), "mine");
    ASSERT_NE(index.iconOfApplication("kde-shell"), nullptr);
    EXPECT_EQ(index.iconOfProgram("other"), nullptr);
}

TEST(ApplicationFolders, FollowTheBaseDirectories) {
    EXPECT_EQ(applicationFolders("/data", "/home/me", "/a:relative:/b"),
              (std::vector<std::string>{"/data/applications", "/a/applications", "/b/applications"}));
    EXPECT_EQ(applicationFolders("", "/home/me", ""),
              (std::vector<std::string>{"/home/me/.local/share/applications", "/usr/local/share/applications",
                                        "/usr/share/applications"}));
}

} // namespace tarvo::linux_platform
