#include "platform/linux/automation_folder.h"

#include "platform/posix/eventually.h"
#include "platform/posix/posix_child_processes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvo::linux_platform {
namespace {

using Names = std::vector<std::string>;

class AutomationFolderTest : public testing::Test {
protected:
    void SetUp() override { folder.makeFolder("home"); }
    void script(const std::string& name, const std::string& body) {
        folder.write("automations/" + name, "#!/bin/sh\n" + body + "\n");
        std::filesystem::permissions(folder.path("automations/" + name), std::filesystem::perms::owner_all);
    }
    std::string recorded() const {
        std::ifstream file(folder.path("out"));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TemporaryFolder folder;
    AutomationFolder automations{
        folder.path("automations"), folder.path("home"), "cs", std::make_shared<POSIXChildProcesses>(),
        [](std::string_view tool) { return std::optional("/bin/" + std::string(tool)); }};
};

TEST_F(AutomationFolderTest, IsMadeOnFirstUse) {
    EXPECT_EQ(automations.list(), Names{});
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("automations")));
}

TEST_F(AutomationFolderTest, IsMadeForTheUserAlone) {
    const mode_t before = ::umask(0);
    automations.list();
    ::umask(before);
    script("a", "true");
    EXPECT_EQ(automations.list(), Names{"a"});
}

TEST_F(AutomationFolderTest, ListsExecutablesByCodePoint) {
    script("b", "true");
    script("Z", "true");
    script(R"(say "hi" \now)", "true");
    script("-dash", "true");
    folder.write("automations/plain.txt", "not executable");
    script(".hidden", "true");
    script("two\nlines", "true");
    folder.makeFolder("automations/folder");
    EXPECT_EQ(automations.list(), (Names{"-dash", "Z", "b", R"(say "hi" \now)"}));
}

TEST_F(AutomationFolderTest, FollowsLinksToFiles) {
    folder.write("elsewhere/tool", "#!/bin/sh\n");
    std::filesystem::permissions(folder.path("elsewhere/tool"), std::filesystem::perms::owner_all);
    folder.link("automations/linked", folder.path("elsewhere/tool"));
    folder.link("automations/broken", "/nowhere/at/all");
    EXPECT_EQ(automations.list(), Names{"linked"});
}

TEST_F(AutomationFolderTest, NamesDesktopEntriesInTheLanguage) {
    folder.write("automations/x.desktop", "[Desktop Entry]\nName=Tidy\nName[cs]=Uklidit\nExec=true %U\n");
    folder.write("automations/broken.desktop", "[Desktop Entry]\nName=No command\n");
    EXPECT_EQ(automations.list(), Names{"Uklidit"});
    EXPECT_TRUE(automations.run("Uklidit").succeeded);
}

TEST_F(AutomationFolderTest, OfferNothingWhereOthersMayWrite) {
    script("a", "true");
    ASSERT_EQ(automations.list(), Names{"a"});
    ASSERT_EQ(::chmod(folder.path("automations").c_str(), 0777), 0);
    EXPECT_EQ(automations.list(), Names{});
    EXPECT_FALSE(automations.run("a").succeeded);
}

TEST_F(AutomationFolderTest, OfferNothingBehindALink) {
    script("a", "true");
    folder.link("link", folder.path("automations"));
    AutomationFolder linked(folder.path("link"), "/", "en", std::make_shared<POSIXChildProcesses>(), nullptr);
    EXPECT_EQ(linked.list(), Names{});
}

TEST_F(AutomationFolderTest, RunByTheExactName) {
    script(R"(say "hi" \now)", "echo ran >" + folder.path("out"));
    EXPECT_TRUE(automations.run(R"(say "hi" \now)").succeeded);
    EXPECT_EQ(recorded(), "ran\n");
    script("-dash", "echo dash >" + folder.path("out"));
    EXPECT_TRUE(automations.run("-dash").succeeded);
    EXPECT_EQ(recorded(), "dash\n");
}

TEST_F(AutomationFolderTest, RunInTheHomeFolder) {
    script("where", "pwd -P >" + folder.path("out"));
    EXPECT_TRUE(automations.run("where").succeeded);
    EXPECT_EQ(recorded(), std::filesystem::canonical(folder.path("home")).string() + "\n");
}

TEST_F(AutomationFolderTest, TellTheLastWordsOfAFailure) {
    script("fails", "echo first >&2; echo 'disk is full' >&2; echo >&2; exit 3");
    const auto outcome = automations.run("fails");
    EXPECT_FALSE(outcome.succeeded);
    EXPECT_EQ(outcome.message, "disk is full");
}

TEST_F(AutomationFolderTest, EndWithTheirOwnProgramWhateverItLeavesRunning) {
    script("starts", "(while [ ! -e '" + folder.path("go") + "' ]; do sleep 0.05; done; echo ran >'" +
                         folder.path("out") + "') &");
    EXPECT_TRUE(automations.run("starts").succeeded);
    folder.write("go", "");
    EXPECT_TRUE(eventually([&] { return recorded() == "ran\n"; }));
}

TEST_F(AutomationFolderTest, SayNothingForASilentFailure) {
    script("silent", "exit 1");
    const auto outcome = automations.run("silent");
    EXPECT_FALSE(outcome.succeeded);
    EXPECT_FALSE(outcome.message);
}

TEST_F(AutomationFolderTest, NameOneThatIsGone) {
    script("gone", "true");
    ASSERT_EQ(automations.list(), Names{"gone"});
    folder.remove("automations/gone");
    const auto outcome = automations.run("gone");
    EXPECT_FALSE(outcome.succeeded);
    EXPECT_EQ(outcome.message, FailureText("gone: nenalezeno", "gone: not found"));
}

TEST_F(AutomationFolderTest, NameOneThatCannotStart) {
    folder.write("automations/odd", "#!/no/such/interpreter\n");
    std::filesystem::permissions(folder.path("automations/odd"), std::filesystem::perms::owner_all);
    EXPECT_EQ(automations.run("odd").message, FailureText("odd: nelze spustit", "odd: could not be started"));
}

} // namespace
} // namespace tarvo::linux_platform
