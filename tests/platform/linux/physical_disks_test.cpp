#include "platform/linux/physical_disks.h"

#include "platform/linux/linux_io_registry.h"
#include "readers/disk_io_totals.h"
#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

namespace {

class PhysicalDisksOfATree : public testing::Test {
protected:
    PhysicalDisksOfATree() {
        registry.provide("IOBlockStorageDriver", [this] { return disks.services(); });
    }
    // Disk n of the list has read n + 1 sectors and written (n + 1) x 10.
    void list(const std::vector<std::string>& names) {
        std::string text;
        int number = 0;
        for (const auto& name : names) {
            ++number;
            text += fmt::format("8 {} {} 1 1 {} 1 1 1 {} 1 0 1 1\n", number, name, number, number * 10);
        }
        folder.write("proc/diskstats", text);
    }
    void addDisk(const std::string& name) {
        folder.makeFolder("sys/block/" + name + "/device");
        folder.makeFolder("sys/block/" + name + "/slaves");
        folder.write("sys/block/" + name + "/hidden", "0\n");
    }
    std::uint64_t sectorsRead() { return diskIOTotals(registry).read / 512; }

    TemporaryFolder folder;
    PhysicalDisks disks{Root(folder.path(""))};
    LinuxIORegistry registry;
};

} // namespace

TEST_F(PhysicalDisksOfATree, AreCountedOnceAndWithoutTheLayersAbove) {
    list({"sda", "sda1", "nvme0n1", "nvme0c0n1", "dm-0", "md0", "loop0", "zram0", "mmcblk0", "mmcblk0boot0"});
    for (const auto* const name : {"sda", "nvme0n1", "nvme0c0n1", "mmcblk0", "mmcblk0boot0", "md0"})
        addDisk(name);
    folder.write("sys/block/nvme0c0n1/hidden", "1\n");
    folder.makeFolder("sys/block/md0/slaves/sdb1");
    folder.makeFolder("sys/block/dm-0/slaves/sda1");
    folder.makeFolder("sys/block/loop0/slaves");
    folder.makeFolder("sys/block/zram0/slaves");
    EXPECT_EQ(sectorsRead(), 1U + 3 + 9 + 10);
    EXPECT_EQ(diskIOTotals(registry).write / 512, 230U);
}

TEST_F(PhysicalDisksOfATree, HaveNamesThatSysfsWritesDifferently) {
    list({"cciss/c0d0"});
    addDisk("cciss!c0d0");
    EXPECT_EQ(sectorsRead(), 1U);
}

TEST_F(PhysicalDisksOfATree, AreFoundAnewWhenTheDevicesChange) {
    list({"sda"});
    addDisk("sda");
    EXPECT_EQ(sectorsRead(), 1U);
    addDisk("sdb");
    list({"sdb", "sda"});
    EXPECT_EQ(sectorsRead(), 3U);
    list({"sda"});
    EXPECT_EQ(sectorsRead(), 1U);
}

TEST_F(PhysicalDisksOfATree, CountNothingWhereNoneIsSeen) {
    EXPECT_FALSE(disks.services().has_value());
    EXPECT_EQ(diskIOTotals(registry), DiskIOTotals{});
    list({"dm-0", "loop0"});
    EXPECT_EQ(diskIOTotals(registry), DiskIOTotals{});
}

TEST_F(PhysicalDisksOfATree, DoNotHandOutSumsThatDoNotFit) {
    const auto most = std::to_string(UINT64_MAX / 512);
    folder.write("proc/diskstats",
                 "8 0 sda 1 1 " + most + " 1 1 1 5 1\n8 16 sdb 1 1 " + most + " 1 1 1 5 1\n");
    addDisk("sda");
    addDisk("sdb");
    EXPECT_EQ(diskIOTotals(registry).write, 5U * 512);
}

TEST(LinuxIORegistry, HasNoServicesOfAnUnknownClass) {
    LinuxIORegistry registry;
    EXPECT_TRUE(registry.services("IOAccelerator").has_value());
    EXPECT_TRUE(registry.services("IOAccelerator")->empty());
}

} // namespace tarvo::linux_platform
