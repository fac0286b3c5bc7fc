// The backup tools that are asked through busctl and gsettings: the real tools, services of the test's own.

#include "platform/linux/backup_sources.h"
#include "platform/linux/bus_tool.h"
#include "platform/linux/deja_dup.h"
#include "platform/linux/folder.h"
#include "platform/linux/snapper.h"
#include "platform/linux/systemd_backups.h"
#include "support/manual_clock.h"
#include "support/mock_snapper.h"
#include "support/mock_systemd.h"
#include "support/temporary_folder.h"
#include "support/tools_on_bus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarvo::linux_platform {
namespace {

using std::chrono::seconds;

const WallTime noon{seconds(1752580800)}; // 2025-07-15T12:00:00Z
constexpr qulonglong noonMicroseconds = 1752580800'000'000;
const BackupState idle{false, std::nullopt, std::nullopt};

class BackupTools : public testing::Test {
protected:
    void SetUp() override {
        if (!pathExists("/usr/bin/busctl")) GTEST_SKIP() << "busctl is not installed";
        if (!MockService::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
        tools.environment = {{"DBUS_SYSTEM_BUS_ADDRESS", systemBus.address().toStdString()},
                             {"DBUS_SESSION_BUS_ADDRESS", userBus.address().toStdString()}};
    }
    /// The daemon's own file, by which it is known to be installed.
    void installSnapper() {
        machine.write("usr/share/dbus-1/system-services/org.opensuse.Snapper.service", "");
    }
    Root root() const { return Root(machine.path().string()); }
    bool wasAsked(const std::string& argument) const {
        return std::any_of(tools.requests.begin(), tools.requests.end(), [&](const auto& request) {
            const auto& given = request.arguments;
            return std::find(given.begin(), given.end(), argument) != given.end();
        });
    }

    TemporaryFolder machine;
    TestBus systemBus;
    TestBus userBus;
    ToolsOnBus tools;
};

TEST_F(BackupTools, TheBusToolGivesWhatBusctlPrints) {
    MockSystemd systemd(systemBus);
    ASSERT_TRUE(systemd.start());
    const BusTool::Object manager{"org.freedesktop.systemd1", "/org/freedesktop/systemd1",
                                  "org.freedesktop.systemd1.Manager"};
    BusTool tool(tools);
    EXPECT_EQ(tool.properties(Bus::system, manager, {"Version"}), "s \"v246\"\n");
    EXPECT_EQ(tool.properties(Bus::user, manager, {"Version"}), std::nullopt) << "it is on the other bus";
    EXPECT_EQ(tool.properties(Bus::system, manager, {"Colour"}), std::nullopt);
    EXPECT_EQ(tool.call(Bus::system, manager, "GetUnit", "s", {"none.service"}), std::nullopt);
    EXPECT_EQ(tools.requests.front().timeLimit, seconds(2));
}

TEST_F(BackupTools, TheBusToolGivesNothingWithoutABus) {
    systemBus.stop();
    BusTool tool(tools);
    EXPECT_EQ(tool.call(Bus::system, {"org.example", "/", "org.example"}, "Ask"), std::nullopt);
}

TEST_F(BackupTools, AServiceOfSystemdTellsItsLastSuccessAndWhetherItWorks) {
    MockSystemd systemd(systemBus);
    ASSERT_TRUE(systemd.start());
    systemd.listUnits();
    SystemdBackups backups(tools);
    EXPECT_EQ(backups.state(), std::nullopt) << "nothing is called so";

    systemd.addUnit("ssh.service", "active", "running");
    EXPECT_EQ(backups.state(), std::nullopt);
    systemd.addUnit("nightly-backup.timer", "active", "waiting");
    EXPECT_EQ(backups.state(), idle) << "set up, not yet run";

    systemd.addService("borgmatic.service", "inactive", "dead", "oneshot", "success", noonMicroseconds);
    systemd.addService("restic-home.service", "failed", "failed", "oneshot", "exit-code",
                       noonMicroseconds + 1'000'000);
    systemd.addService("kopia.service", "active", "running", "simple", "success", 0);
    EXPECT_EQ(backups.state(), (BackupState{false, std::nullopt, noon}));

    systemd.setState("borgmatic.service", "activating", "start");
    EXPECT_EQ(backups.state(), (BackupState{true, std::nullopt, noon}));
    systemd.setState("borgmatic.service", "active", "exited");
    EXPECT_EQ(backups.state(), (BackupState{false, std::nullopt, noon})) << "its work is done";
}

TEST_F(BackupTools, AServiceOfTheUsersSystemdCounts) {
    MockSystemd systemd(userBus);
    ASSERT_TRUE(systemd.start());
    systemd.listUnits();
    systemd.addService("my-backup.service", "inactive", "dead", "oneshot", "success", noonMicroseconds);
    EXPECT_EQ(SystemdBackups(tools).state(), (BackupState{false, std::nullopt, noon}));
}

TEST_F(BackupTools, SnapperTellsTheNewestSnapshotThatItMayShow) {
    Snapper snapper(root(), tools);
    EXPECT_EQ(snapper.state(), std::nullopt);
    EXPECT_TRUE(tools.requests.empty()) << "what is not installed is not asked";
    installSnapper();
    EXPECT_EQ(snapper.state(), std::nullopt) << "installed, but it does not answer";

    MockSnapper daemon(systemBus);
    ASSERT_TRUE(daemon.start());
    daemon.setUp();
    daemon.setSnapshots("1752580800", "1752580700");
    EXPECT_EQ(snapper.state(), (BackupState{false, std::nullopt, noon}));
    daemon.setSnapshots("-1", "-1");
    EXPECT_EQ(snapper.state(), idle);
}

TEST_F(BackupTools, SnapshotsAreNotAskedForWhereABackupIsSetUp) {
    installSnapper();
    MockSnapper snapper(systemBus);
    ASSERT_TRUE(snapper.start());
    snapper.setUp();
    snapper.setSnapshots("1752580800", "1752580700");
    MockSystemd systemd(systemBus);
    ASSERT_TRUE(systemd.start());
    systemd.listUnits();
    ManualClock clock;
    const Environment nothing = [](const std::string&) { return std::optional<std::string>(); };
    const auto backups = makeLinuxBackups(root(), nothing, clock, &tools);
    EXPECT_EQ(backups->state(), (BackupState{false, std::nullopt, noon}));

    systemd.addUnit("nightly-backup.timer", "active", "waiting");
    EXPECT_EQ(backups->state().latestBackup, noon) << "asked a moment ago";
    clock.advance(std::chrono::minutes(1));
    tools.requests.clear();
    EXPECT_EQ(backups->state(), idle);
    EXPECT_TRUE(wasAsked("ListUnitsByPatterns"));
    EXPECT_FALSE(wasAsked("org.opensuse.Snapper"));
}

class DejaDupSettings : public testing::Test {
protected:
    void SetUp() override {
        if (!pathExists("/usr/bin/gsettings") || !pathExists(compiler))
            GTEST_SKIP() << "gsettings is not installed";
        tools.environment = {{"GSETTINGS_BACKEND", "keyfile"},
                             {"GSETTINGS_SCHEMA_DIR", home.path("schemas")},
                             {"HOME", home.path().string()},
                             {"XDG_CONFIG_HOME", home.path("config")}};
    }
    void installSchema() {
        home.write("schemas/org.gnome.DejaDup.gschema.xml",
                   "<schemalist><schema id='org.gnome.DejaDup' path='/org/gnome/deja-dup/'>"
                   "<key name='last-backup' type='s'><default>''</default></key></schema></schemalist>");
        const auto compiled = tools.run({.executable = compiler, .arguments = {home.path("schemas")}});
        ASSERT_TRUE(compiled && compiled->exitStatus == 0);
    }
    void set(const char* value) {
        const auto done = tools.run({.executable = "/usr/bin/gsettings",
                                     .arguments = {"set", "org.gnome.DejaDup", "last-backup", value}});
        ASSERT_TRUE(done && done->exitStatus == 0);
    }

    static constexpr const char* compiler = "/usr/bin/glib-compile-schemas";

    TemporaryFolder home;
    ToolsOnBus tools;
};

TEST_F(DejaDupSettings, TellTheLastBackup) {
    home.makeFolder("schemas");
    DejaDup dejaDup(Root(home.path().string()), "/home/u", &tools);
    EXPECT_EQ(dejaDup.state(), std::nullopt) << "not installed: there is no such schema";
    installSchema();
    EXPECT_EQ(dejaDup.state(), std::nullopt) << "installed, never used";
    set("2025-07-15T14:00:00.5+02");
    EXPECT_EQ(dejaDup.state(), (BackupState{false, std::nullopt, noon}));
    set("yesterday");
    EXPECT_EQ(dejaDup.state(), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
