#include "platform/linux/linux_desktop_actions.h"

#include "support/manual_dispatcher.h"
#include "support/scripted_child_processes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

namespace tarvo::linux_platform {
namespace {

ChildProcessResult ended(int status, std::string output = "", std::string errors = "") {
    return {.output = std::move(output), .errorTail = std::move(errors), .exitStatus = status};
}

class LinuxDesktopActionsTest : public testing::Test {
protected:
    LinuxDesktopActions actionsOn(Desktop desktop) {
        return {{desktop, false, true, "/home/jana"},
                tools,
                dispatcher,
                [this](std::string_view tool) {
                    return installed.contains(std::string(tool))
                               ? std::optional("/usr/bin/" + std::string(tool))
                               : std::nullopt;
                },
                [this] {
                    ++trashEmptied;
                    return trashFailure;
                }};
    }
    std::optional<FailureText> perform(Desktop desktop, QuickAction action) {
        auto actions = actionsOn(desktop);
        std::optional<FailureText> told = "not called";
        actions.perform(action, [&](std::optional<FailureText> failure) { told = std::move(failure); });
        EXPECT_EQ(told, "not called") << "the main thread waited";
        dispatcher.runAll();
        return told;
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    std::shared_ptr<ScriptedChildProcesses> tools = std::make_shared<ScriptedChildProcesses>();
    std::set<std::string> installed;
    int trashEmptied = 0;
    std::optional<std::string> trashFailure;
};

TEST_F(LinuxDesktopActionsTest, OfferOnlyWhatTheInstalledToolsCanDo) {
    installed = {"xset", "gsettings"};
    const auto actions = actionsOn(Desktop::gnome);
    EXPECT_TRUE(actions.canDo(QuickAction::emptyTrash));
    EXPECT_TRUE(actions.canDo(QuickAction::sleepDisplay));
    EXPECT_TRUE(actions.canDo(QuickAction::toggleDarkMode));
    EXPECT_FALSE(actions.canDo(QuickAction::newFileManagerWindow));
    EXPECT_FALSE(actions.canDo(QuickAction::restartFileManager));
    EXPECT_FALSE(actions.canDo(QuickAction::restartDock));
}

TEST_F(LinuxDesktopActionsTest, NeedAKnownFileManagerToRestartOne) {
    installed = {"xdg-mime", "dbus-send"};
    EXPECT_FALSE(actionsOn(Desktop::gnome).canDo(QuickAction::restartFileManager));
    installed.insert("nautilus");
    EXPECT_TRUE(actionsOn(Desktop::gnome).canDo(QuickAction::restartFileManager));
}

TEST_F(LinuxDesktopActionsTest, RunToolsByTheirPathWithALimitAndPlainMessages) {
    installed = {"xset"};
    tools->results["/usr/bin/xset"] = ended(0);
    EXPECT_FALSE(perform(Desktop::other, QuickAction::sleepDisplay));
    ASSERT_EQ(tools->requests.size(), 1U);
    EXPECT_EQ(tools->requests[0].executable, "/usr/bin/xset");
    EXPECT_EQ(tools->requests[0].timeLimit, std::chrono::seconds(10));
    EXPECT_EQ(tools->requests[0].environment,
              (std::vector<std::pair<std::string, std::string>>{{"LC_ALL", "C"}}));
}

TEST_F(LinuxDesktopActionsTest, AskForThePresentStateFirst) {
    installed = {"gsettings"};
    tools->results["/usr/bin/gsettings"] =
        ended(0, "org.gnome.desktop.interface color-scheme 'prefer-dark'\n");
    EXPECT_FALSE(perform(Desktop::gnome, QuickAction::toggleDarkMode));
    ASSERT_EQ(tools->requests.size(), 2U);
    EXPECT_EQ(tools->requests[1].arguments.back(), "default");
}

TEST_F(LinuxDesktopActionsTest, TellTheToolsLastWords) {
    installed = {"gsettings"};
    tools->results["/usr/bin/gsettings"] = ended(1, "", "warning\nNo such schema\n");
    EXPECT_EQ(perform(Desktop::gnome, QuickAction::toggleDarkMode), "No such schema");
}

TEST_F(LinuxDesktopActionsTest, NameAToolThatFailsWithoutAWord) {
    installed = {"gsettings"};
    tools->results["/usr/bin/gsettings"] = ended(3);
    EXPECT_EQ(perform(Desktop::gnome, QuickAction::toggleDarkMode),
              FailureText("gsettings: skončilo se stavem 3", "gsettings: ended with status 3"));
    tools->results.clear();
    EXPECT_EQ(perform(Desktop::gnome, QuickAction::toggleDarkMode),
              FailureText("gsettings: nelze spustit", "gsettings: could not be started"));
    auto late = ended(0);
    late.exitStatus = std::nullopt;
    late.exceededTimeLimit = true;
    tools->results["/usr/bin/gsettings"] = late;
    EXPECT_EQ(perform(Desktop::gnome, QuickAction::toggleDarkMode),
              FailureText("gsettings: neodpovědělo včas", "gsettings: did not answer in time"));
}

TEST_F(LinuxDesktopActionsTest, TryTheNextMeansWhenOneFails) {
    installed = {"dbus-send", "xdg-open", "thunar"};
    tools->results["/usr/bin/dbus-send"] = ended(1, "", "no such service\n");
    tools->results["/usr/bin/xdg-open"] = ended(0);
    EXPECT_FALSE(perform(Desktop::other, QuickAction::newFileManagerWindow));
    ASSERT_EQ(tools->requests.size(), 2U);
    EXPECT_EQ(tools->requests[1].executable, "/usr/bin/xdg-open");
}

TEST_F(LinuxDesktopActionsTest, LeaveAWindowOpenThatStaysInTheUsersLanguage) {
    installed = {"xdg-open", "thunar"};
    ChildProcessResult stays;
    stays.exceededTimeLimit = true;
    tools->results["/usr/bin/xdg-open"] = stays;
    EXPECT_FALSE(perform(Desktop::other, QuickAction::newFileManagerWindow));
    ASSERT_EQ(tools->requests.size(), 1U);
    EXPECT_TRUE(tools->requests[0].mayGoOn);
    EXPECT_TRUE(tools->requests[0].environment.empty());
    tools->results["/usr/bin/xdg-open"] = ended(3, "", "no method available\n");
    EXPECT_EQ(perform(Desktop::other, QuickAction::newFileManagerWindow), "no method available");
}

TEST_F(LinuxDesktopActionsTest, OfferNoWindowWithoutAFileManager) {
    installed = {"dbus-send", "xdg-open"};
    EXPECT_FALSE(actionsOn(Desktop::other).canDo(QuickAction::newFileManagerWindow));
    EXPECT_EQ(perform(Desktop::other, QuickAction::newFileManagerWindow),
              FailureText("Toto prostředí to nepodporuje.", "This desktop does not support it."));
}

TEST_F(LinuxDesktopActionsTest, EmptyTheTrashWithoutAToolWhereThereIsNone) {
    EXPECT_FALSE(perform(Desktop::other, QuickAction::emptyTrash));
    EXPECT_EQ(trashEmptied, 1);
    trashFailure = "a.txt: Permission denied";
    EXPECT_EQ(perform(Desktop::other, QuickAction::emptyTrash), "a.txt: Permission denied");
}

TEST_F(LinuxDesktopActionsTest, EmptyTheTrashThemselvesWhereTheToolCannot) {
    installed = {"gio"};
    tools->results["/usr/bin/gio"] = ended(1, "", "gio: trash:///: Operation not supported\n");
    EXPECT_FALSE(perform(Desktop::other, QuickAction::emptyTrash));
    EXPECT_EQ(trashEmptied, 1);
}

TEST_F(LinuxDesktopActionsTest, LeaveTheTrashToTheToolWhereThereIsOne) {
    installed = {"gio"};
    tools->results["/usr/bin/gio"] = ended(0);
    EXPECT_FALSE(perform(Desktop::other, QuickAction::emptyTrash));
    EXPECT_EQ(trashEmptied, 0);
    EXPECT_EQ(tools->requests.size(), 1U);
}

TEST(ToolInPath, IsTheFirstExecutableFile) {
    const TemporaryFolder folder;
    folder.write("first/tool", "no");
    folder.makeFolder("second/tool");
    folder.write("third/tool", "yes");
    std::filesystem::permissions(folder.path("third/tool"), std::filesystem::perms::owner_all);
    const auto path =
        folder.path("first") + "::relative:" + folder.path("second") + ":" + folder.path("third");
    EXPECT_EQ(toolInPath("tool", path), folder.path("third/tool"));
    EXPECT_FALSE(toolInPath("missing", path));
    EXPECT_FALSE(toolInPath("tool", ""));
}

} // namespace
} // namespace tarvo::linux_platform
