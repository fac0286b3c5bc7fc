#include "platform/linux/kept_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tarvo::linux_platform {

TEST(KeptFile, SeesEachNewContent) {
    const TemporaryFolder folder;
    folder.write("file", "one");
    KeptFile file(folder.path("file"));
    EXPECT_EQ(file.read(), "one");
    folder.write("file", std::string(10'000, '2'));
    EXPECT_EQ(file.read(), std::string(10'000, '2'));
    folder.write("file", "three");
    EXPECT_EQ(file.read(), "three");
}

TEST(KeptFile, StaysOpenWhileItsNameIsGone) {
    const TemporaryFolder folder;
    folder.write("file", "one");
    KeptFile file(folder.path("file"));
    EXPECT_EQ(file.read(), "one");
    folder.remove("file");
    EXPECT_EQ(file.read(), "one");
}

TEST(KeptFile, OpensAnewAfterAFailure) {
    const TemporaryFolder folder;
    KeptFile file(folder.path("file"));
    EXPECT_EQ(file.read(), std::nullopt);
    folder.write("file", "one");
    EXPECT_EQ(file.read(), "one");
    folder.write("file", "");
    EXPECT_EQ(file.read(), std::nullopt);
    folder.remove("file");
    folder.write("file", "two");
    EXPECT_EQ(file.read(), "two");
}

TEST(KeptFile, ReadsOnlyTheBeginningWhenAsked) {
    const TemporaryFolder folder;
    folder.write("file", "0123456789");
    KeptFile file(folder.path("file"));
    EXPECT_EQ(file.readBeginning(4), "0123");
    EXPECT_EQ(file.readBeginning(100), "0123456789");
    folder.write("file", "");
    EXPECT_EQ(file.readBeginning(4), std::nullopt);
}

TEST(KeptFile, TreatsAPipeAFolderAndAHugeFileAsMissing) {
    const TemporaryFolder folder;
    folder.makeFolder("folder");
    folder.write("huge", "");
    std::filesystem::resize_file(folder.path("huge"), std::uintmax_t{1} << 30U);
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(KeptFile(folder.path("folder")).read(), std::nullopt);
    EXPECT_EQ(KeptFile(folder.path("pipe")).read(), std::nullopt);
    EXPECT_EQ(KeptFile(folder.path("huge")).read(), std::nullopt);
}

TEST(KeptFile, ReadsAFileOfManyRecordsWhole) {
    // The kernel gives this file in pieces of a page.
    KeptFile file("/proc/kallsyms", 1U << 28U);
    const auto kept = file.read();
    if (!kept) GTEST_SKIP() << "the kernel hides its symbols here";
    EXPECT_EQ(std::string(*kept).size(), readFile("/proc/kallsyms", 1U << 28U)->size());
}

} // namespace tarvo::linux_platform
