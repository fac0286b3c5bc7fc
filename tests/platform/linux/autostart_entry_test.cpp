#include "platform/linux/autostart_entry.h"

#include <gmock/gmock.h>

namespace tarvo::linux_platform {
namespace {

using testing::HasSubstr;

TEST(AutostartEntry, StartsTheProgramAndIsPassedOverWhenItIsGone) {
    EXPECT_EQ(autostartEntry("/usr/bin/tarvo"), "[Desktop Entry]\n"
                                                "Type=Application\n"
                                                "Name=Tarvo\n"
                                                "Icon=tarvo\n"
                                                "Exec=\"/usr/bin/tarvo\"\n"
                                                "TryExec=/usr/bin/tarvo\n"
                                                "X-GNOME-Autostart-enabled=true\n");
}

TEST(AutostartEntry, KeepsAnyPathOneWordWithoutFieldCodes) {
    EXPECT_THAT(autostartEntry("/opt/my apps/100%/tarvo"),
                HasSubstr("\nExec=\"/opt/my apps/100%%/tarvo\"\nTryExec=/opt/my apps/100%/tarvo\n"));
    // Quoted as a word (\$), then as a string value (\\$).
    EXPECT_THAT(autostartEntry("/a$b"), HasSubstr("\nExec=\"/a\\\\$b\"\nTryExec=/a$b\n"));
    EXPECT_THAT(autostartEntry("/a\"`b"), HasSubstr("\nExec=\"/a\\\\\"\\\\`b\"\n"));
    EXPECT_THAT(autostartEntry("/a\\b"), HasSubstr("\nExec=\"/a\\\\\\\\b\"\nTryExec=/a\\\\b\n"));
}

TEST(AutostartEntry, IsFollowedAsItIsWritten) {
    EXPECT_TRUE(isFollowedAutostartEntry(autostartEntry("/usr/bin/tarvo")));
}

TEST(AutostartEntry, IsNotFollowedOnceItIsHiddenOrTurnedOff) {
    const std::string entry = "[Desktop Entry]\nType=Application\nExec=tarvo\n";
    EXPECT_TRUE(isFollowedAutostartEntry(entry));
    EXPECT_TRUE(isFollowedAutostartEntry(entry + "Hidden=false\n"));
    EXPECT_FALSE(isFollowedAutostartEntry(entry + "Hidden=true\n"));
    EXPECT_FALSE(isFollowedAutostartEntry(entry + " Hidden = true \r\n"));
    EXPECT_FALSE(isFollowedAutostartEntry(entry + "X-GNOME-Autostart-enabled=false"));
    EXPECT_TRUE(isFollowedAutostartEntry(entry + "#Hidden=true\n"));
}

TEST(AutostartEntry, CountsOnlyWhatStandsInItsGroup) {
    EXPECT_TRUE(isFollowedAutostartEntry("[Desktop Entry]\nExec=tarvo\n[Other]\nHidden=true\n"));
    EXPECT_FALSE(isFollowedAutostartEntry("[Other]\nExec=tarvo\n"));
}

TEST(AutostartEntry, IsNotFollowedWithoutAProgram) {
    EXPECT_FALSE(isFollowedAutostartEntry(""));
    EXPECT_FALSE(isFollowedAutostartEntry("[Desktop Entry]\nExec=\n"));
    EXPECT_FALSE(isFollowedAutostartEntry("\xff=[\n=\n[Desktop Entry"));
}

} // namespace
} // namespace tarvo::linux_platform
