#include "platform/linux/autostart.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

class AutostartTest : public testing::Test {
protected:
    Autostart make() const { return {folder.path("config/autostart/tarvo.desktop"), "/usr/bin/tarvo"}; }
    bool exists() const { return std::filesystem::exists(folder.path("config/autostart/tarvo.desktop")); }

    TemporaryFolder folder;
};

TEST_F(AutostartTest, IsOffUntilItIsTurnedOn) {
    EXPECT_FALSE(make().isOn());
    EXPECT_FALSE(exists());
}

TEST_F(AutostartTest, IsOnOnceTurnedOnAndForEveryLaterStart) {
    auto autostart = make();
    autostart.setOn(true);
    EXPECT_TRUE(autostart.isOn());
    EXPECT_TRUE(make().isOn());
    EXPECT_TRUE(exists());
}

TEST_F(AutostartTest, LeavesNothingBehindWhenTurnedOff) {
    auto autostart = make();
    autostart.setOn(true);
    autostart.setOn(false);
    EXPECT_FALSE(autostart.isOn());
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("config/autostart")));
    autostart.setOn(false);
    EXPECT_FALSE(autostart.isOn());
}

TEST_F(AutostartTest, FollowsWhatAToolOfTheDesktopHasTurnedOff) {
    auto autostart = make();
    autostart.setOn(true);
    folder.write("config/autostart/tarvo.desktop", "[Desktop Entry]\nExec=tarvo\nHidden=true\n");
    EXPECT_FALSE(autostart.isOn());
    autostart.setOn(true);
    EXPECT_TRUE(autostart.isOn());
}

TEST_F(AutostartTest, IsOffWithoutAHomeFolderOrAProgram) {
    Autostart homeless({}, "/usr/bin/tarvo");
    homeless.setOn(true);
    EXPECT_FALSE(homeless.isOn());
    Autostart unknown(folder.path("tarvo.desktop"), {});
    unknown.setOn(true);
    EXPECT_FALSE(unknown.isOn());
}

TEST_F(AutostartTest, StaysOffWhereNothingCanBeWritten) {
    folder.write("config", "a file where the folder belongs");
    auto autostart = make();
    autostart.setOn(true);
    EXPECT_FALSE(autostart.isOn());
}

} // namespace
} // namespace tarvo::linux_platform
