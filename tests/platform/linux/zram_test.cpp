#include "platform/linux/zram.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(Zram, UsageIsTheThirdNumber) {
    EXPECT_EQ(parseZramUsage("  4096  74   12288   0   12288   0  0  0  0\n"), 12288U);
    EXPECT_EQ(parseZramUsage("4096 74 12288"), 12288U);
    EXPECT_EQ(parseZramUsage("4096 74\n"), std::nullopt);
    EXPECT_EQ(parseZramUsage("4096 x 12288\n"), std::nullopt);
    EXPECT_EQ(parseZramUsage(""), std::nullopt);
}

TEST(Zram, AddsTheDisksThatAreListed) {
    const TemporaryFolder folder;
    folder.write("sys/block/zram0/mm_stat", "1 2 1000 0\n");
    folder.write("sys/block/zram1/mm_stat", "1 2 200 0\n");
    folder.makeFolder("sys/block/zram2");
    folder.write("sys/block/sda/mm_stat", "1 2 5 0\n");
    ZramDevices devices{Root(folder.path(""))};
    EXPECT_EQ(devices.usedBytes(), 0U);
    devices.list();
    EXPECT_EQ(devices.usedBytes(), 1200U);
    folder.remove("sys/block/zram1");
    devices.list();
    EXPECT_EQ(devices.usedBytes(), 1000U);
}

} // namespace tarvo::linux_platform
