#include "platform/linux/volume_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Mount mount(std::string point, std::string source, std::string type = "ext4", std::string root = "/",
            std::string options = "rw") {
    return {.root = std::move(root),
            .point = std::move(point),
            .options = options,
            .type = std::move(type),
            .source = std::move(source),
            .superOptions = std::move(options)};
}

std::vector<std::string> shown(const std::vector<Mount>& mounts, const MountHints& hints = {}) {
    std::vector<std::string> points;
    for (const auto& volume : userVolumes(mounts, hints))
        points.push_back(volume.point);
    return points;
}

} // namespace

TEST(VolumeRules, ShowFileSystemsOnDisksAndOnTheNetwork) {
    EXPECT_THAT(
        shown({mount("/", "/dev/sda2"), mount("/proc", "proc", "proc"), mount("/home", "/dev/sda3"),
               mount("/tank", "tank", "zfs"), mount("/mnt/nas", "nas:/export", "nfs4"),
               mount("/mnt/share", "//nas/share", "cifs"), mount("/home/ann/far", "ann@far:", "fuse.sshfs"),
               mount("/mnt/pool", "/dev/sdc:/dev/sdd", "bcachefs"), mount("/tmp", "tmpfs", "tmpfs"),
               mount("/mnt/auto", "/etc/auto.misc", "autofs"),
               mount("/home/ann/x", "portal", "fuse.portal")}),
        ElementsAre("/", "/home", "/tank", "/mnt/nas", "/mnt/share", "/home/ann/far", "/mnt/pool"));
}

TEST(VolumeRules, HideThePathsOfTheSystem) {
    EXPECT_THAT(
        shown({mount("/boot", "/dev/sda1"), mount("/boot/efi", "/dev/sda2", "vfat"),
               mount("/efi", "/dev/sda3"), mount("/run/credentials", "/dev/sda4"),
               mount("/var/lib/docker/overlay2", "/dev/sda5"), mount("/var/lib/containers", "/dev/sda6"),
               mount("/nix/store", "/dev/sda7"), mount("/sysroot", "/dev/sda8"),
               mount("/home/.snapshots", "/dev/sda9"), mount("/dev/disk", "/dev/sda10"),
               mount("/var/lib/flatpak", "/dev/sda11"), mount("/ostree/deploy", "/dev/sda12")}),
        IsEmpty());
}

TEST(VolumeRules, DoNotTakeNeighboursForPathsOfTheSystem) {
    EXPECT_THAT(shown({mount("/bootcamp", "/dev/sda1"), mount("/run/media/ann/STICK", "/dev/sdb1"),
                       mount("/media/v1.2", "/dev/sdc1"), mount("/devel", "/dev/sdd1")}),
                ElementsAre("/bootcamp", "/run/media/ann/STICK", "/media/v1.2", "/devel"));
}

TEST(VolumeRules, HidePackagesThatAreMounted) {
    EXPECT_THAT(shown({mount("/snap/core20/100", "/dev/loop0", "squashfs"),
                       mount("/var/lib/snapd/snap/x/1", "/dev/loop1", "squashfs"),
                       mount("/mnt/image", "/dev/loop2", "squashfs"), mount("/snap", "/dev/sda5", "ext4")}),
                ElementsAre("/mnt/image", "/snap"));
}

TEST(VolumeRules, FollowTheOwnersHints) {
    const MountHints hints{.hidden = {"/srv/secret", "/"}, .shown = {"/boot/efi", "/tmp"}};
    EXPECT_THAT(
        shown({mount("/", "/dev/sda2"), mount("/srv/secret", "/dev/sdb1"), mount("/srv/open", "/dev/sdb2"),
               mount("/boot/efi", "/dev/sda1", "vfat"), mount("/tmp", "tmpfs", "tmpfs")},
              hints),
        ElementsAre("/", "/srv/open", "/boot/efi"));
}

TEST(VolumeRules, ShowEachFileSystemOnce) {
    EXPECT_THAT(shown({mount("/home", "/dev/sda2", "btrfs", "/@home"), mount("/", "/dev/sda2", "btrfs", "/@"),
                       mount("/srv/bind", "/dev/sda2", "btrfs", "/@/srv")}),
                ElementsAre("/"));
    EXPECT_THAT(shown({mount("/data/sub", "/dev/sdb1", "ext4", "/sub"), mount("/data/whole", "/dev/sdb1")}),
                ElementsAre("/data/whole"));
    EXPECT_THAT(
        shown({mount("/a/long", "/dev/sdb1", "btrfs", "/x"), mount("/b", "/dev/sdb1", "btrfs", "/y")}),
        ElementsAre("/b"));
    EXPECT_THAT(shown({mount("/one", "/dev/sdb1"), mount("/two", "/dev/sdb1")}), ElementsAre("/one"));
}

TEST(VolumeRules, ShowWhatWasMountedLastAtOnePoint) {
    const auto volumes = userVolumes({mount("/mnt", "/dev/sdb1"), mount("/mnt", "/dev/sdc1")}, {});
    ASSERT_EQ(volumes.size(), 1U);
    EXPECT_EQ(volumes[0].source, "/dev/sdc1");
    EXPECT_THAT(shown({mount("/mnt", "/dev/sdb1"), mount("/mnt", "tmpfs", "tmpfs")}), IsEmpty());
}

TEST(VolumeRules, ShowTheRootWhateverItIsMadeOf) {
    EXPECT_THAT(shown({mount("/", "overlay", "overlay"), mount("/etc/hosts", "/dev/sda2", "ext4", "/hosts")}),
                ElementsAre("/"));
}

TEST(RootSpace, IsThatOfTheRoot) {
    EXPECT_EQ(
        rootSpace({mount("/", "rootfs", "rootfs"), mount("/", "/dev/sda2"), mount("/var", "/dev/sda3")}).path,
        "/");
    EXPECT_EQ(rootSpace({mount("/", "rootfs", "rootfs"), mount("/", "/dev/sda2")}).source, "/dev/sda2");
    EXPECT_EQ(rootSpace({}).path, "/");
}

TEST(RootSpace, OfAnImageIsThatOfTheDiskForWhatChanges) {
    const auto var = mount("/var", "/dev/sda3", "btrfs", "/ostree/deploy/x/var");
    for (const auto* const type : {"overlay", "erofs", "squashfs", "composefs", "tmpfs", "ramfs"}) {
        const auto space = rootSpace({mount("/", "image", type), var});
        EXPECT_EQ(space.path, "/var") << type;
        EXPECT_EQ(space.source, "/dev/sda3") << type;
    }
    EXPECT_EQ(rootSpace({mount("/", "/dev/sda2", "ext4", "/", "ro,relatime"), var}).path, "/var");
    EXPECT_EQ(rootSpace({mount("/", "x", "overlay"), mount("/home", "/dev/sda4")}).path, "/home");
}

TEST(RootSpace, OfAnImageIsItsOwnWithoutAWritableDisk) {
    EXPECT_EQ(rootSpace({mount("/", "x", "overlay")}).path, "/");
    EXPECT_EQ(rootSpace({mount("/", "x", "overlay"), mount("/var", "/dev/sda3", "ext4", "/", "ro")}).path,
              "/");
    EXPECT_EQ(rootSpace({mount("/", "x", "overlay"), mount("/home", "nas:/home", "nfs4")}).path, "/");
    EXPECT_EQ(rootSpace({mount("/", "x", "overlay"), mount("/var", "tmpfs", "tmpfs")}).path, "/");
}

TEST(RootSpace, IsShownOnceForAnImageAndItsDisk) {
    EXPECT_THAT(shown({mount("/", "x", "composefs"), mount("/sysroot", "/dev/sda3", "btrfs", "/root"),
                       mount("/var", "/dev/sda3", "btrfs", "/root/var"), mount("/mnt", "/dev/sdb1")}),
                ElementsAre("/", "/mnt"));
}

} // namespace tarvo::linux_platform
