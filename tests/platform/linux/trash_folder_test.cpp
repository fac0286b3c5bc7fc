#include "platform/linux/trash_folder.h"

#include "support/ordinary_user.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace tarvo::linux_platform {
namespace {

namespace files = std::filesystem;

class TrashFolderTest : public testing::Test {
protected:
    void write(const files::path& path) {
        files::create_directories(path.parent_path());
        std::ofstream(path) << "x";
    }

    TemporaryFolder folder;
    files::path root = folder.path();
};

TEST_F(TrashFolderTest, IsEmptiedWithItsRecords) {
    write(root / "Trash/files/a.txt");
    write(root / "Trash/files/deep/er/b.txt");
    write(root / "Trash/info/a.txt.trashinfo");
    write(root / "Trash/directorysizes");
    EXPECT_FALSE(emptyTrashFolders({(root / "Trash").string()}));
    EXPECT_TRUE(files::is_empty(root / "Trash/files"));
    EXPECT_TRUE(files::is_empty(root / "Trash/info"));
    EXPECT_FALSE(files::exists(root / "Trash/directorysizes"));
}

TEST_F(TrashFolderTest, LosesALinkButNeverWhatItPointsTo) {
    write(root / "kept/precious.txt");
    files::create_directories(root / "Trash/files");
    files::create_directory_symlink(root / "kept", root / "Trash/files/link");
    EXPECT_FALSE(emptyTrashFolders({(root / "Trash").string()}));
    EXPECT_FALSE(files::exists(files::symlink_status(root / "Trash/files/link")));
    EXPECT_TRUE(files::exists(root / "kept/precious.txt"));
}

TEST_F(TrashFolderTest, IsNotFollowedWhereItIsALinkItself) {
    write(root / "elsewhere/files/precious.txt");
    files::create_directory_symlink(root / "elsewhere", root / "Trash");
    EXPECT_TRUE(trashFolders(root.string(), {}, 1000).empty());
    files::create_directories(root / "Other");
    files::create_directory_symlink(root / "elsewhere/files", root / "Other/files");
    EXPECT_FALSE(emptyTrashFolders({(root / "Other").string()}));
    EXPECT_TRUE(files::exists(root / "elsewhere/files/precious.txt"));
}

TEST_F(TrashFolderTest, IsFoundInTheHomeAndOnVolumes) {
    files::create_directories(root / "data/Trash");
    files::create_directories(root / "disk/.Trash-1000");
    files::create_directories(root / "disk/.Trash-1001");
    files::create_directories(root / "shared/.Trash/1000");
    files::permissions(root / "shared/.Trash", files::perms::sticky_bit, files::perm_options::add);
    files::create_directories(root / "unsafe/.Trash/1000");
    const auto found = trashFolders(
        (root / "data").string(),
        {(root / "disk").string(), (root / "shared").string(), (root / "unsafe").string()}, 1000);
    EXPECT_EQ(found,
              (std::vector<std::string>{(root / "data/Trash").string(), (root / "disk/.Trash-1000").string(),
                                        (root / "shared/.Trash/1000").string()}));
}

TEST_F(TrashFolderTest, LosesFoldersThatWereWriteProtected) {
    write(root / "Trash/files/cache/deep/a.txt");
    const OrdinaryUser user(folder);
    files::permissions(root / "Trash/files/cache/deep", files::perms::owner_read | files::perms::owner_exec);
    files::permissions(root / "Trash/files/cache", files::perms::owner_read | files::perms::owner_exec);
    EXPECT_FALSE(emptyTrashFolders({(root / "Trash").string()}));
    EXPECT_TRUE(files::is_empty(root / "Trash/files"));
}

TEST_F(TrashFolderTest, NamesWhatItCannotLoseAndLosesTheRest) {
    write(root / "Trash/files/other/a.txt");
    write(root / "Trash/files/b.txt");
    write(root / "Trash/info/b.txt.trashinfo");
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can make what others cannot delete";
    const OrdinaryUser user(folder);
    // The folder of another user, as a mistaken sudo leaves it.
    ASSERT_EQ(::seteuid(0), 0);
    files::permissions(root / "Trash/files/other", files::perms::owner_all);
    ASSERT_EQ(::lchown((root / "Trash/files/other").c_str(), 0, 0), 0);
    ASSERT_EQ(::seteuid(OrdinaryUser::nobody), 0);
    const auto failure = emptyTrashFolders({(root / "Trash").string()});
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->starts_with("other: ")) << *failure;
    EXPECT_FALSE(files::exists(root / "Trash/files/b.txt"));
    EXPECT_FALSE(files::exists(root / "Trash/info/b.txt.trashinfo"));
}

TEST_F(TrashFolderTest, IsLookedForOnEveryVolumeOfTheMachine) {
    folder.write("proc/self/mountinfo", "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                        "30 22 8:17 / /media/jana/my\\040disk rw - vfat /dev/sdb1 rw\n"
                                        "31 22 0:40 / /net rw - autofs systemd-1 rw\n");
    EXPECT_EQ(trashVolumes(Root(folder.path())),
              (std::vector<std::string>{folder.path("/"), folder.path("/media/jana/my disk")}));
    EXPECT_TRUE(trashVolumes(Root(folder.path("nowhere"))).empty());
}

TEST_F(TrashFolderTest, OfNothingIsEmptyAlready) {
    EXPECT_FALSE(emptyTrashFolders({(root / "missing").string()}));
}

} // namespace
} // namespace tarvo::linux_platform
