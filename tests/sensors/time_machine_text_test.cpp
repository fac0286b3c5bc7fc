#include "sensors/time_machine_text.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(TimeMachineText, RunningIsFoundAnywhere) {
    EXPECT_TRUE(backupIsRunning("Running = 1"));
    EXPECT_TRUE(backupIsRunning("{ Running = 1; }"));
    EXPECT_TRUE(backupIsRunning("Running = 10"));
    EXPECT_FALSE(backupIsRunning("Running = 0"));
    EXPECT_FALSE(backupIsRunning("Running=1"));
    EXPECT_FALSE(backupIsRunning(""));
}

TEST(TimeMachineText, ProgressIsTheFirstQuotedNumberAfterTheMarker) {
    EXPECT_EQ(backupPercent("Percent = \"0.5\";"), 50.0);
    EXPECT_EQ(backupPercent("Percent = \"0\""), 0.0);
    EXPECT_EQ(backupPercent("Percent = \"1e-1\""), 10.0);
    EXPECT_EQ(backupPercent("Percent = \"0.25\"; Percent = \"0.75\""), 25.0);
    EXPECT_EQ(backupPercent("RawPercent = \"0.125\""), 12.5);
}

TEST(TimeMachineText, AnythingElseIsNoProgress) {
    for (const char* text :
         {"", "Percent = 0.5", "Percent=\"0.5\"", "Percent = \"0.5", "Percent = \"\"", "Percent = \"-1\"",
          "Percent = \"-0.001\"", "Percent = \"0,5\"", "Percent = \"0.5 \"", "Percent = \" 0.5\"",
          "Percent = \"0.5x\"", "Percent = \"nan\"", "Percent = \"inf\"",
          "Percent = \"x\"; Percent = \"0.5\""}) {
        EXPECT_EQ(backupPercent(text), std::nullopt) << text;
    }
}

TEST(TimeMachineText, TheNameIsTheLastComponentOfAPath) {
    EXPECT_EQ(latestBackupName("/a/b/2025-01-02-030405"), "2025-01-02-030405");
    EXPECT_EQ(latestBackupName("\t/2025-01-02-030405 \r\n"), "2025-01-02-030405");
    EXPECT_EQ(latestBackupName("/a/b/"), "b");
    EXPECT_EQ(latestBackupName("a/b"), std::nullopt);
    EXPECT_EQ(latestBackupName("   "), std::nullopt);
}

} // namespace
} // namespace tarvo
