#include "platform/linux/mount_hints.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;

TEST(MountHints, AreTakenFromTheFourthColumnOfFstab) {
    MountHints hints;
    addFstabHints("# x-gvfs-hide is a comment here\n"
                  "UUID=1234 / ext4 defaults 0 1\n"
                  "/dev/sdb1\t/srv/hidden\\040disk  ext4  noatime,x-gvfs-hide 0 2\n"
                  "/dev/sdb2 /efi/shown vfat x-gvfs-show,ro\n"
                  "#/dev/sdb3 /off ext4 x-gvfs-hide\n"
                  "x-gvfs-hide\n\n",
                  hints);
    EXPECT_THAT(hints.hidden, ElementsAre("/srv/hidden disk"));
    EXPECT_THAT(hints.shown, ElementsAre("/efi/shown"));
}

TEST(MountHints, AreTakenFromTheRecordsOfMount) {
    MountHints hints;
    addUtabHints("ID=1 SRC=/dev/sdb1 TARGET=/mnt/a\\040b ROOT=/ OPTS=x-gvfs-hide,uhelper=udisks2\n"
                 "SRC=/dev/sdb2 TARGET=/mnt/c OPTS=x-gvfs-show\n"
                 "SRC=/dev/sdb3 OPTS=x-gvfs-hide\n"
                 "TARGET=/mnt/d\n",
                 hints);
    EXPECT_THAT(hints.hidden, ElementsAre("/mnt/a b"));
    EXPECT_THAT(hints.shown, ElementsAre("/mnt/c"));
}

TEST(MountHints, AreNoneInAnEmptyTable) {
    MountHints hints;
    addFstabHints("", hints);
    addUtabHints("", hints);
    EXPECT_EQ(hints, MountHints{});
}

} // namespace tarvo::linux_platform
