#include "platform/linux/linux_volumes.h"

#include "platform/linux/read_file.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace tarvo::linux_platform {

using testing::ElementsAre;

namespace {

class VolumesOfATree : public testing::Test {
protected:
    VolumesOfATree() {
        sources.measure = [this](const std::string& path) -> std::optional<FileSystemSize> {
            const auto found = sizes.find(path.substr(folder.path().string().size()));
            return found == sizes.end() ? std::nullopt : std::optional(found->second);
        };
    }
    LinuxVolumes volumes() { return {Root(folder.path().string()), clock, sources}; }
    std::vector<VolumeValues> mounted() { return volumes().mounted().value(); }

    TemporaryFolder folder;
    ManualClock clock;
    std::map<std::string, FileSystemSize> sizes{{"/", {40, 100}}};
    VolumeSources sources;
};

} // namespace

TEST_F(VolumesOfATree, TellSizeNameAndWhetherTheyCanBeTakenOut) {
    folder.write("proc/self/mountinfo", "27 1 8:2 / / rw - ext4 /dev/sda2 rw\n"
                                        "28 27 8:17 / /run/media/ann/STICK rw - vfat /dev/sdb1 rw\n"
                                        "29 27 8:18 / /mnt/gone rw - ext4 /dev/sdc1 rw\n");
    folder.write("dev/sdb1", "");
    folder.link("dev/disk/by-label/MY\\x20STICK", "../../sdb1");
    folder.makeFolder("sys/devices/usb1/block/sdb/sdb1/partition");
    folder.link("sys/class/block/sdb1", "../../devices/usb1/block/sdb/sdb1");
    sizes["/run/media/ann/STICK"] = {5, 9};
    const auto rows = mounted();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].path, "/");
    EXPECT_EQ(rows[0].name, std::nullopt);
    EXPECT_EQ(rows[0].availableForImportantUsage, 40U);
    EXPECT_EQ(rows[0].totalCapacity, 100U);
    EXPECT_EQ(rows[0].isRemovable, std::nullopt);
    EXPECT_EQ(rows[1].path, "/run/media/ann/STICK");
    EXPECT_EQ(rows[1].name, "MY STICK");
    EXPECT_EQ(rows[1].totalCapacity, 9U);
    EXPECT_EQ(rows[1].isRemovable, true);
    EXPECT_EQ(rows[1].isInternal, false);
}

TEST_F(VolumesOfATree, BelieveTheDiskService) {
    folder.write("proc/self/mountinfo", "27 1 8:2 / / rw - ext4 /dev/sda2 rw\n"
                                        "28 27 8:17 / /mnt/a rw - ext4 /dev/sdb1 rw\n"
                                        "29 27 8:18 / /mnt/b rw - ext4 /dev/sdc1 rw\n");
    sizes["/mnt/a"] = sizes["/mnt/b"] = {1, 2};
    sources.hint = [](const std::string& device) {
        DeviceHint hint;
        if (device == "/dev/sdb1") hint.label = "Archive";
        hint.isRemovable = device == "/dev/sdb1";
        hint.isHidden = device != "/dev/sdb1";
        return hint;
    };
    const auto rows = mounted();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].path, "/");
    EXPECT_EQ(rows[1].name, "Archive");
    EXPECT_EQ(rows[1].isRemovable, true);
}

TEST_F(VolumesOfATree, FollowTheTablesOfTheOwner) {
    folder.write("proc/self/mountinfo", "28 27 8:17 / /mnt/a rw - ext4 /dev/sdb1 rw\n"
                                        "29 27 8:18 / /mnt/b rw - ext4 /dev/sdc1 rw\n"
                                        "29 27 8:18 / /boot/efi rw - vfat /dev/sda1 rw\n");
    folder.write("etc/fstab",
                 "/dev/sdb1 /mnt/a ext4 x-gvfs-hide 0 0\n/dev/sda1 /boot/efi vfat x-gvfs-show\n");
    folder.write("run/mount/utab", "SRC=/dev/sdc1 TARGET=/mnt/b OPTS=x-gvfs-hide\n");
    sizes["/mnt/a"] = sizes["/mnt/b"] = sizes["/boot/efi"] = {1, 2};
    const auto rows = mounted();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].path, "/boot/efi");
}

TEST_F(VolumesOfATree, OfTheNetworkAreMeasuredOnTheirOwn) {
    folder.write("proc/self/mountinfo", "27 1 8:2 / / rw - ext4 /dev/sda2 rw\n"
                                        "28 27 0:50 / /mnt/nas rw - nfs4 nas:/export rw\n");
    const auto prefix = folder.path().string();
    sources.networkLimit = std::chrono::minutes{1};
    sources.measure = [prefix](const std::string& path) {
        return path == prefix + "/mnt/nas" ? FileSystemSize{3, 4} : FileSystemSize{1, 2};
    };
    const auto rows = mounted();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1].totalCapacity, 4U);
    EXPECT_EQ(rows[1].isRemovable, std::nullopt);
}

TEST_F(VolumesOfATree, TheRootOfAnImageIsMeasuredOnItsDisk) {
    folder.write("proc/self/mountinfo", "27 1 0:2 / / ro - overlay composefs ro\n"
                                        "28 27 8:17 /ostree/var /var rw - btrfs /dev/sda3 rw\n");
    sizes["/var"] = {70, 200};
    const auto root = volumes().root();
    ASSERT_TRUE(root);
    EXPECT_EQ(root->path, "/");
    EXPECT_EQ(root->totalCapacity, 200U);
    const auto rows = mounted();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].path, "/");
    EXPECT_EQ(rows[0].availableForImportantUsage, 70U);
}

TEST_F(VolumesOfATree, TheRootIsMeasuredWithoutATableToo) {
    const auto root = volumes().root();
    ASSERT_TRUE(root);
    EXPECT_EQ(root->totalCapacity, 100U);
    EXPECT_FALSE(volumes().mounted().has_value());
    sizes.clear();
    EXPECT_FALSE(volumes().root().has_value());
}

TEST(LinuxVolumes, OfThisMachineIncludeTheRoot) {
    ManualClock clock;
    LinuxVolumes volumes(Root(), clock);
    const auto root = volumes.root();
    ASSERT_TRUE(root);
    EXPECT_GT(*root->totalCapacity, 0U);
    const auto table = readFile("/proc/self/mountinfo");
    if (table && table->find(" / r") == std::string::npos) GTEST_SKIP() << "the root is a mere folder here";
    const auto rows = volumes.mounted();
    ASSERT_TRUE(rows);
    const auto isRoot = [](const VolumeValues& values) { return values.path == "/"; };
    EXPECT_EQ(std::count_if(rows->begin(), rows->end(), isRoot), 1);
}

} // namespace tarvo::linux_platform
