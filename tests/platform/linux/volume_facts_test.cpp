#include "platform/linux/volume_facts.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(VolumeFacts, MeasureAFileSystem) {
    const TemporaryFolder folder;
    const auto size = measureFileSystem(folder.path(""));
    ASSERT_TRUE(size);
    EXPECT_GT(size->total, 0U);
    EXPECT_LE(size->available, size->total);
    EXPECT_EQ(measureFileSystem(folder.path("missing")), std::nullopt);
    EXPECT_EQ(measureFileSystem("/proc"), std::nullopt);
}

TEST(VolumeFacts, AMissingPathHasNoLabel) {
    const TemporaryFolder folder;
    EXPECT_EQ(fileSystemLabel(folder.path("missing")), std::nullopt);
    EXPECT_EQ(fileSystemLabel("/proc"), std::nullopt);
}

TEST(VolumeFacts, DecodeWhatUdevWrote) {
    EXPECT_EQ(decodeUdevText("My\\x20Disk"), "My Disk");
    EXPECT_EQ(decodeUdevText("\\x"), "\\x");
    EXPECT_EQ(decodeUdevText("\\xZZ\\x4"), "\\xZZ\\x4");
    EXPECT_EQ(decodeUdevText("\\x2f\\xc5\\x99"), "/\xC5\x99");
}

TEST(VolumeFacts, LabelsAreLinksToDevices) {
    const TemporaryFolder folder;
    folder.write("dev/sda1", "");
    folder.link("dev/disk/by-label/My\\x20Disk", "../../sda1");
    folder.link("dev/disk/by-label/broken", "../../sdz9");
    folder.link("dev/disk/by-label/\\xff", "../../sda1");
    const std::map<std::string, std::string> expected{{"/dev/sda1", "My Disk"}};
    EXPECT_EQ(labelsByDevice(Root(folder.path(""))), expected);
}

namespace {

class RemovableDevices : public testing::Test {
protected:
    void addDisk(const std::string& path, const std::string& name, bool isRemovable) {
        folder.write("sys/devices/" + path + "/block/" + name + "/removable", isRemovable ? "1\n" : "0\n");
        folder.link("sys/class/block/" + name, "../../devices/" + path + "/block/" + name);
    }
    void addPartition(const std::string& path, const std::string& disk, const std::string& name) {
        const auto partition = "/" + disk + "/" + name;
        folder.write("sys/devices/" + path + "/block" + partition + "/partition", "1\n");
        folder.link("sys/class/block/" + name, "../../devices/" + path + "/block" + partition);
    }
    std::optional<bool> isRemovable(const std::string& device) const {
        return isRemovableDevice(Root(folder.path("")), device);
    }

    TemporaryFolder folder;
};

} // namespace

TEST_F(RemovableDevices, SayItThemselvesOrHangOnUSB) {
    addDisk("pci0/ata1", "sda", false);
    addPartition("pci0/ata1", "sda", "sda1");
    addDisk("pci0/mmc0", "mmcblk0", true);
    addPartition("pci0/mmc0", "mmcblk0", "mmcblk0p1");
    addDisk("pci0/usb2/2-1", "sdb", false);
    addPartition("pci0/usb2/2-1", "sdb", "sdb1");
    EXPECT_EQ(isRemovable("/dev/sda1"), false);
    EXPECT_EQ(isRemovable("/dev/sda"), false);
    EXPECT_EQ(isRemovable("/dev/mmcblk0p1"), true);
    EXPECT_EQ(isRemovable("/dev/sdb1"), true);
}

TEST_F(RemovableDevices, AreFoundBelowAnEncryptedLayer) {
    addDisk("pci0/usb2/2-1", "sdb", false);
    addPartition("pci0/usb2/2-1", "sdb", "sdb1");
    addDisk("virtual", "dm-0", false);
    folder.makeFolder("sys/devices/virtual/block/dm-0/slaves/sdb1");
    folder.write("dev/dm-0", "");
    folder.link("dev/mapper/secret", "../dm-0");
    EXPECT_EQ(isRemovable("/dev/mapper/secret"), true);
}

TEST_F(RemovableDevices, AreUnknownWhereTheKernelSaysNothing) {
    EXPECT_EQ(isRemovable("/dev/sda1"), std::nullopt);
    EXPECT_EQ(isRemovable("nas:/export"), std::nullopt);
    addDisk("virtual", "dm-0", false);
    folder.makeFolder("sys/devices/virtual/block/dm-0/slaves/dm-0");
    EXPECT_EQ(isRemovable("/dev/dm-0"), std::nullopt);
}

} // namespace tarvo::linux_platform
