#include "sensors/time_machine.h"

#include "support/fixed_backup.h"
#include "support/time_zone.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using std::chrono::seconds;

constexpr const char* idle = R"(Backup session status:
{
    ClientID = "com.example.backup";
    Percent = "-1";
    Running = 0;
}
)";
constexpr const char* running = R"(Backup session status:
{
    BackupPhase = Copying;
    Percent = "0.5";
    Running = 1;
}
)";

TEST(TimeMachine, AsksForTheStatusAndThenForTheLatestBackup) {
    FixedBackupTool tool;
    readTimeMachineInfo(tool);
    EXPECT_THAT(tool.commands, testing::ElementsAre("status", "latestbackup"));
}

TEST(TimeMachine, AMissingToolKnowsNothing) {
    FixedBackupTool tool;
    EXPECT_EQ(readTimeMachineInfo(tool), TimeMachineInfo{});
}

TEST(TimeMachine, ARestingToolHasNoProgress) {
    FixedBackupTool tool;
    tool.texts["status"] = idle;
    EXPECT_EQ(readTimeMachineInfo(tool), TimeMachineInfo{});
}

TEST(TimeMachine, ARunningBackupTellsItsProgressInPercent) {
    FixedBackupTool tool;
    tool.texts["status"] = running;
    const auto info = readTimeMachineInfo(tool);
    EXPECT_TRUE(info.isRunning);
    EXPECT_EQ(info.percent, 50.0);
}

TEST(TimeMachine, ProgressIsReadThoughNothingRuns) {
    FixedBackupTool tool;
    tool.texts["status"] = "Running = 0;\nPercent = \"0.25\";";
    EXPECT_EQ(readTimeMachineInfo(tool), (TimeMachineInfo{false, 25.0, std::nullopt}));
}

TEST(TimeMachine, TheLatestBackupIsDatedByItsPathInLocalTime) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    FixedBackupTool tool;
    tool.texts["latestbackup"] = " \n/Volumes/Backup/Machine/2025-07-15-120000\n";
    EXPECT_EQ(readTimeMachineInfo(tool).lastBackupDate, WallTime(seconds(1752573600)));
}

TEST(TimeMachine, AMessageInPlaceOfAPathGivesNoDate) {
    FixedBackupTool tool;
    for (const char* text :
         {"", " \n ", "2025-07-15-120000", "latestbackup: needs permission /2025-07-15-120000",
          "/Volumes/Backup/unfinished", "/"}) {
        tool.texts["latestbackup"] = text;
        EXPECT_EQ(readTimeMachineInfo(tool).lastBackupDate, std::nullopt) << text;
    }
}

TEST(TimeMachine, TextThatIsNotUTF8IsIgnored) {
    FixedBackupTool tool;
    tool.texts["status"] = std::string(running) + "\xFF";
    tool.texts["latestbackup"] = "/Volumes/\xFF/2025-07-15-120000";
    EXPECT_EQ(readTimeMachineInfo(tool), TimeMachineInfo{});
}

TEST(TimeMachine, BackupsThatAnswerWithValuesGoByTheSameRules) {
    FixedBackups backups;
    EXPECT_EQ(readTimeMachineInfo(backups), TimeMachineInfo{});
    backups.answer = {true, 0.375, WallTime(seconds(1752573600))};
    EXPECT_EQ(readTimeMachineInfo(backups), (TimeMachineInfo{true, 37.5, WallTime(seconds(1752573600))}));
    backups.answer.fraction = -1;
    EXPECT_EQ(readTimeMachineInfo(backups).percent, std::nullopt);
}

} // namespace
} // namespace tarvo
