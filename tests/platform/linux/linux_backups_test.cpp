#include "platform/linux/back_in_time.h"
#include "platform/linux/cached_backup.h"
#include "platform/linux/deja_dup.h"
#include "platform/linux/iso_time.h"
#include "platform/linux/linux_backups.h"
#include "platform/linux/snapper.h"
#include "platform/linux/systemd_backups.h"
#include "platform/linux/timeshift.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"
#include "support/time_zone.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using std::chrono::seconds;

const WallTime noon{seconds(1752580800)}; // 2025-07-15T12:00:00Z

class FixedProvider : public BackupProvider {
public:
    explicit FixedProvider(std::optional<BackupState> given, int* asked = nullptr)
        : given_(given), asked_(asked) {}
    std::optional<BackupState> state() override {
        if (asked_) ++*asked_;
        return given_;
    }

private:
    std::optional<BackupState> given_;
    int* asked_;
};

LinuxBackups::Providers providers(std::initializer_list<std::optional<BackupState>> states,
                                  int* asked = nullptr) {
    LinuxBackups::Providers made;
    for (const auto& state : states)
        made.push_back(std::make_unique<FixedProvider>(state, asked));
    return made;
}

TEST(LinuxBackups, TheFirstRunningToolTellsTheProgressAndTheLatestDateCounts) {
    LinuxBackups backups(
        providers({BackupState{false, std::nullopt, noon}, BackupState{true, 0.5, std::nullopt},
                   BackupState{true, 0.1, noon - seconds(1)}}),
        {});
    EXPECT_EQ(backups.state(), (BackupState{true, 0.5, noon}));
}

TEST(LinuxBackups, SnapshotsAreAskedOnlyWhereNoBackupIsSetUp) {
    int asked = 0;
    LinuxBackups with(providers({BackupState{}}), providers({BackupState{true, {}, noon}}, &asked));
    EXPECT_EQ(with.state(), BackupState{});
    EXPECT_EQ(asked, 0);
    LinuxBackups without(providers({std::nullopt}), providers({BackupState{true, {}, noon}}, &asked));
    EXPECT_EQ(without.state().latestBackup, noon);
    EXPECT_EQ(LinuxBackups({}, {}).state(), BackupState{});
}

TEST(CachedBackup, IsAskedAgainAfterItsLifetime) {
    int asked = 0;
    ManualClock clock;
    CachedBackup cached(clock, seconds(60), std::make_unique<FixedProvider>(BackupState{}, &asked));
    cached.state();
    clock.advance(seconds(59));
    cached.state();
    EXPECT_EQ(asked, 1);
    clock.advance(seconds(1));
    cached.state();
    EXPECT_EQ(asked, 2);
}

TEST(BackInTime, TellsLockProgressAndNewestSnapshot) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    const TemporaryFolder folder;
    BackInTime tool(Root(folder.path().string()), {"/home/u/.config", "/home/u/.local/share"}, "u");
    EXPECT_EQ(tool.state(), std::nullopt);
    folder.write("home/u/.config/backintime/config", "profile1.snapshots.path=/media/disk\n");
    folder.write("proc/sys/kernel/hostname", "machine\n");
    folder.makeFolder("media/disk/backintime/machine/u/1/20250715-140000-123");
    folder.makeFolder("media/disk/backintime/machine/u/1/20240715-140000-123");
    folder.makeFolder("media/disk/backintime/machine/u/1/new_snapshot");
    folder.write("home/u/.local/share/backintime/worker.lock", "4711\npython3");
    folder.write("home/u/.local/share/backintime/worker.progress", "[progress]\npercent=37\n");
    EXPECT_EQ(tool.state(), (BackupState{false, std::nullopt, noon})) << "nobody holds the lock";
    folder.write("proc/4711/comm", "python3\n");
    EXPECT_EQ(tool.state(), (BackupState{true, 0.37, noon}));
    folder.write("proc/4711/comm", "bash\n");
    EXPECT_FALSE(tool.state()->isRunning) << "the number was given to another";
}

TEST(ISOTime, KnowsZonesAndFractions) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    for (const char* text : {"2025-07-15T12:00:00Z", "2025-07-15T14:00:00", "2025-07-15T14:00:00.123456+02",
                             "2025-07-15T14:00:00+0200", "2025-07-15T06:30:00-05:30"})
        EXPECT_EQ(parseISOTime(text), noon) << text;
    for (const char* text : {"", "2025-07-15", "2025-07-15T12:00:00.Z", "2025-07-15T12:00:00+2",
                             "2025-07-15T12:00:00+24", "2025-07-15T12:00:00 Z", "2025-13-15T12:00:00Z"})
        EXPECT_EQ(parseISOTime(text), std::nullopt) << text;
}

TEST(DejaDup, OfAFlatpakIsReadFromItsSettingsAndProcesses) {
    const TemporaryFolder folder;
    DejaDup tool(Root(folder.path().string()), "/home/u", nullptr);
    EXPECT_EQ(tool.state(), std::nullopt);
    folder.write("home/u/.var/app/org.gnome.DejaDup/config/glib-2.0/settings/keyfile",
                 "[org/gnome/deja-dup]\nlast-backup='2025-07-15T12:00:00Z'\n");
    EXPECT_EQ(tool.state(), (BackupState{false, std::nullopt, noon}));
    folder.write("proc/10/comm", "deja-dup\n");
    folder.write("proc/11/comm", "restic\n");
    folder.write("proc/11/status", "Name:\trestic\nPPid:\t9\n");
    EXPECT_FALSE(tool.state()->isRunning);
    folder.write("proc/11/status", "Name:\trestic\nPPid:\t10\n");
    EXPECT_TRUE(tool.state()->isRunning);
    EXPECT_EQ(parseGSettingsTime("''\n"), std::nullopt);
    EXPECT_EQ(parseGSettingsTime("'7025-07-15T12:00:00.1+02'"),
              std::chrono::floor<std::chrono::seconds>(WallTime::max()) - std::chrono::hours(2));
}

TEST(Timeshift, IsReadFromItsConfigurationFoldersAndProcess) {
    const TimeZone zone("UTC0");
    const TemporaryFolder folder;
    Timeshift tool(Root(folder.path().string()));
    folder.makeFolder("timeshift/snapshots/2025-07-15_12-00-00");
    EXPECT_EQ(tool.state(), std::nullopt);
    folder.write("etc/timeshift/timeshift.json", "{}");
    EXPECT_EQ(tool.state(), (BackupState{false, std::nullopt, noon}));
    folder.write("proc/10/comm", "timeshift\n");
    folder.write("proc/10/cmdline", std::string("timeshift\0--create\0", 19));
    EXPECT_TRUE(tool.state()->isRunning);
}

TEST(SystemdBackups, UnitsAreListedAndOnlyTheUsersBackupsCount) {
    const auto units = parseUnitList(
        "a(ssssssouso) 1 \"my-backup.service\" \"say \\\"hi\\\"\" \"loaded\" \"inactive\" \"dead\" \"\" "
        "\"/org/x\" 0 \"\" \"/\"\n");
    EXPECT_EQ(units, (std::vector<SystemdUnit>{{"my-backup.service", "inactive", "dead", "/org/x"}}));
    EXPECT_TRUE(parseUnitList("a(ssssssouso) 5 \"x").empty());
    EXPECT_TRUE(isBackupUnit("borgmatic.timer"));
    EXPECT_FALSE(isBackupUnit("dpkg-db-backup.timer"));
}

TEST(Snapper, ConfigurationsAndDatesAreTaken) {
    EXPECT_EQ(parseSnapperConfigs("a(ssa{ss}) 2 \"root\" \"/\" 1 \"A\" \"b\" \"home\" \"/home\" 0\n"),
              (std::vector<std::string>{"root", "home"}));
    EXPECT_EQ(parseNewestSnapperDate("a(uquxussa{ss}) 2 0 0 0 -1 0 \"current\" \"\" 0 "
                                     "1 0 0 1752580800 0 \"d\" \"number\" 1 \"k\" \"v\"\n"),
              noon);
    EXPECT_EQ(parseNewestSnapperDate("a(uquxussa{ss}) 1 1 0 0 99999999999 0 \"d\" \"number\" 0\n"),
              std::chrono::floor<std::chrono::seconds>(WallTime::max()));
    EXPECT_EQ(parseNewestSnapperDate("s \"denied\""), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
