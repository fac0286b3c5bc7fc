#include "platform/linux/folder.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Folder, ListsNamesSortedAndWithoutDotFiles) {
    const TemporaryFolder folder;
    folder.write("b", "");
    folder.write("a10", "");
    folder.write(".keep", "");
    folder.makeFolder("a2");
    EXPECT_THAT(folderEntries(folder.path("")), ElementsAre("a10", "a2", "b"));
}

TEST(Folder, ThatIsMissingOrAFileIsEmpty) {
    const TemporaryFolder folder;
    folder.write("file", "");
    EXPECT_THAT(folderEntries(folder.path("file")), IsEmpty());
    EXPECT_THAT(folderEntries(folder.path("missing")), IsEmpty());
}

TEST(Folder, TellsWhereALinkLeads) {
    const TemporaryFolder folder;
    folder.write("target", "");
    folder.link("link", "target");
    folder.link("broken", "nowhere");
    EXPECT_EQ(linkText(folder.path("link")), "target");
    EXPECT_EQ(linkText(folder.path("broken")), "nowhere");
    EXPECT_EQ(linkText(folder.path("target")), std::nullopt);
    EXPECT_EQ(realPath(folder.path("link")), realPath(folder.path("target")));
    EXPECT_EQ(realPath(folder.path("broken")), std::nullopt);
    EXPECT_TRUE(pathExists(folder.path("link")));
    EXPECT_FALSE(pathExists(folder.path("broken")));
}

TEST(Folder, LastComponentIsWhatFollowsTheLastSlash) {
    EXPECT_EQ(lastComponent("/sys/bus/pci/drivers/amdgpu"), "amdgpu");
    EXPECT_EQ(lastComponent("amdgpu"), "amdgpu");
    EXPECT_EQ(lastComponent("/"), "");
}

} // namespace tarvo::linux_platform
