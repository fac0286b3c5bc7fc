#include "platform/linux/read_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tarvo::linux_platform {

TEST(ReadFile, GivesTheWholeContent) {
    const TemporaryFolder folder;
    const std::string text(100'000, 'x');
    folder.write("file", text);
    EXPECT_EQ(readFile(folder.path("file")), text);
}

TEST(ReadFile, ReusesABufferForShorterAndLongerTexts) {
    const TemporaryFolder folder;
    folder.write("long", std::string(9000, 'l'));
    folder.write("short", "s");
    std::string buffer;
    EXPECT_TRUE(readFileInto(folder.path("long"), buffer));
    EXPECT_EQ(buffer, std::string(9000, 'l'));
    EXPECT_TRUE(readFileInto(folder.path("short"), buffer));
    EXPECT_EQ(buffer, "s");
    EXPECT_FALSE(readFileInto(folder.path("missing"), buffer));
    EXPECT_EQ(buffer, "");
}

TEST(ReadFile, TreatsWhatIsNotAReadableFileAsMissing) {
    const TemporaryFolder folder;
    folder.makeFolder("folder");
    folder.write("empty", "");
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(readFile(folder.path("missing")), std::nullopt);
    EXPECT_EQ(readFile(folder.path("folder")), std::nullopt);
    EXPECT_EQ(readFile(folder.path("empty")), std::nullopt);
    EXPECT_EQ(readFile(folder.path("pipe")), std::nullopt);
}

TEST(ReadFile, StopsAtTheLimitOfAHugeFile) {
    const TemporaryFolder folder;
    folder.write("huge", "");
    std::filesystem::resize_file(folder.path("huge"), std::uintmax_t{1} << 30U);
    EXPECT_EQ(readFile(folder.path("huge")), std::nullopt);
    folder.write("fits", "12345");
    EXPECT_EQ(readFile(folder.path("fits"), 5), "12345");
    EXPECT_EQ(readFile(folder.path("fits"), 4), std::nullopt);
}

TEST(ReadFile, TakesOneLineFeedFromTheEndOfAnAttribute) {
    const TemporaryFolder folder;
    folder.write("attribute", "performance\n");
    folder.write("two", "a\n\n");
    folder.write("blank", "\n");
    EXPECT_EQ(readAttribute(folder.path("attribute")), "performance");
    EXPECT_EQ(readAttribute(folder.path("two")), "a\n");
    EXPECT_EQ(readAttribute(folder.path("blank")), std::nullopt);
}

TEST(ReadFile, ReadsANumberOnlyWhereNothingElseStands) {
    const TemporaryFolder folder;
    folder.write("number", "-42\n");
    folder.write("words", "42 C\n");
    EXPECT_EQ(readNumber<int>(folder.path("number")), -42);
    EXPECT_EQ(readNumber<unsigned>(folder.path("number")), std::nullopt);
    EXPECT_EQ(readNumber<int>(folder.path("words")), std::nullopt);
    EXPECT_EQ(readNumber<int>(folder.path("missing")), std::nullopt);
}

} // namespace tarvo::linux_platform
