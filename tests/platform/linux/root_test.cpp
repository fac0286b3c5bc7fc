#include "platform/linux/root.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(Root, OfTheRunningMachineAddsNothing) {
    EXPECT_TRUE(Root().isLive());
    EXPECT_EQ(Root().path("/proc/stat"), "/proc/stat");
    EXPECT_TRUE(Root("/").isLive());
}

TEST(Root, StandsBeforeEveryPath) {
    EXPECT_FALSE(Root("/tmp/machine//").isLive());
    EXPECT_EQ(Root("/tmp/machine//").path("/proc/stat"), "/tmp/machine/proc/stat");
}

TEST(Root, ResolvesLinksToPathsOfTheMachine) {
    const TemporaryFolder folder;
    folder.write("sys/devices/pci0/gpu/vendor", "1");
    folder.link("sys/class/drm/card0", "../../devices/pci0/gpu");
    EXPECT_EQ(Root(folder.path("")).resolve("/sys/class/drm/card0"), "/sys/devices/pci0/gpu");
}

TEST(Root, DoesNotFollowALinkThatLeadsOutOfIt) {
    const TemporaryFolder folder;
    folder.link("sys/outside", "/usr");
    EXPECT_EQ(Root(folder.path("")).resolve("/sys/outside"), std::nullopt);
    EXPECT_EQ(Root(folder.path("")).resolve("/sys/missing"), std::nullopt);
}

} // namespace tarvo::linux_platform
