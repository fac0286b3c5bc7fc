#include "platform/linux/mountinfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MountInfo, TakesWhatFollowsAnyNumberOfOptionalFields) {
    EXPECT_THAT(
        parseMountInfo(
            "27 1 254:0 / / rw,relatime - ext4 /dev/vda rw,discard\n"
            "36 27 98:0 /@home /home rw,noatime shared:7 master:1 propagate_from:2 - btrfs /dev/sda2 rw\n"),
        ElementsAre(Mount{"/", "/", "rw,relatime", "ext4", "/dev/vda", "rw,discard"},
                    Mount{"/@home", "/home", "rw,noatime", "btrfs", "/dev/sda2", "rw"}));
}

TEST(MountInfo, DecodesNames) {
    const auto mounts =
        parseMountInfo("40 27 0:50 /a\\040b /media/ann/My\\040Disk\\134x rw - cifs //nas/Big\\040Share rw\n");
    ASSERT_EQ(mounts.size(), 1U);
    EXPECT_EQ(mounts[0].root, "/a b");
    EXPECT_EQ(mounts[0].point, "/media/ann/My Disk\\x");
    EXPECT_EQ(mounts[0].source, "//nas/Big Share");
}

TEST(MountInfo, AcceptsAFileSystemWithoutOptionsOfItsOwn) {
    EXPECT_EQ(parseMountInfo("40 27 0:50 / /mnt rw - ext4 /dev/sda1\n").size(), 1U);
}

TEST(MountInfo, LeavesOutLinesThatAreCut) {
    EXPECT_THAT(parseMountInfo(""), IsEmpty());
    EXPECT_THAT(parseMountInfo("27 1 254:0 / / rw,relatime\n"), IsEmpty());
    EXPECT_THAT(parseMountInfo("27 1 254:0 / / rw shared:1 -\n"), IsEmpty());
    EXPECT_THAT(parseMountInfo("27 1 254:0 / / rw - ext4\n"), IsEmpty());
    EXPECT_THAT(parseMountInfo("27 1 254:0 / relative rw - ext4 /dev/sda1 rw\n"), IsEmpty());
    EXPECT_THAT(parseMountInfo("\n\n27\n"), IsEmpty());
}

TEST(MountText, ReplacesOnlyWholeOctalEscapes) {
    EXPECT_EQ(decodeMountText("a\\040b\\011c\\012d\\134e"), "a b\tc\nd\\e");
    EXPECT_EQ(decodeMountText("\\04"), "\\04");
    EXPECT_EQ(decodeMountText("\\089"), "\\089");
    EXPECT_EQ(decodeMountText("\\777"), "\\777");
    EXPECT_EQ(decodeMountText("\\"), "\\");
    EXPECT_EQ(decodeMountText(""), "");
}

TEST(MountOptions, AreComparedWhole) {
    EXPECT_TRUE(hasMountOption("rw,noatime", "rw"));
    EXPECT_TRUE(hasMountOption("noatime,ro", "ro"));
    EXPECT_FALSE(hasMountOption("errors=remount-ro", "ro"));
    EXPECT_FALSE(hasMountOption("", "ro"));
    EXPECT_FALSE(hasMountOption("root,", "ro"));
}

} // namespace tarvo::linux_platform
