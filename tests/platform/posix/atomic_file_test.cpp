#include "platform/posix/atomic_file.h"

#include "support/ordinary_user.h"
#include "support/temporary_folder.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tarvo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;

constexpr std::size_t anySize = 1 << 20;

/// Files above this size cannot be written while it lives, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_ = {};
    void (*handler_)(int);
};

class AtomicFileTest : public testing::Test {
protected:
    std::string content() const {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(path.parent_path()))
            found.push_back(entry.path().filename());
        return found;
    }
    fs::perms permissions(const fs::path& of) const { return fs::status(of).permissions() & fs::perms::all; }

    TemporaryFolder folder;
    fs::path path = folder.path() / "Tarvo" / "data.json";
    AtomicFile file{path};
};

TEST_F(AtomicFileTest, MakesItsFolderForTheUserAlone) {
    const AtomicFile deep(folder.path() / "a" / "b" / "Tarvo" / "data.json");
    EXPECT_EQ(permissions(folder.path() / "a" / "b" / "Tarvo"), fs::perms::owner_all);
    EXPECT_FALSE(fs::exists(deep.path()));
}

TEST_F(AtomicFileTest, WritesAFileForTheUserAloneAndLeavesNothingBeside) {
    EXPECT_TRUE(file.replace("first"));
    EXPECT_TRUE(file.replace("second, longer"));
    EXPECT_TRUE(file.replace("3rd"));
    EXPECT_EQ(content(), "3rd");
    EXPECT_THAT(names(), ElementsAre("data.json"));
    EXPECT_EQ(permissions(path), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(AtomicFileTest, WritesAnEmptyContent) {
    EXPECT_TRUE(file.replace("something"));
    EXPECT_TRUE(file.replace(""));
    EXPECT_THAT(file.read(anySize), Optional(std::string()));
}

TEST_F(AtomicFileTest, ShowsAReaderTheOldContentOrTheNewOne) {
    EXPECT_TRUE(file.replace("old"));
    std::ifstream reader(path);
    EXPECT_TRUE(file.replace("new"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "old");
    EXPECT_EQ(content(), "new");
}

// Reading

TEST_F(AtomicFileTest, ReadsTheWholeFile) {
    std::string bytes(100'000, 'x');
    bytes[5] = '\0';
    EXPECT_TRUE(file.replace(bytes));
    EXPECT_EQ(AtomicFile(path).read(anySize), bytes);
}

TEST_F(AtomicFileTest, ReadsNothingWhereThereIsNoFile) {
    EXPECT_FALSE(file.read(anySize));
}

TEST_F(AtomicFileTest, ReadsNoMoreThanTheLimit) {
    folder.write("Tarvo/data.json", "12345");
    EXPECT_THAT(file.read(5), Optional(std::string("12345")));
    EXPECT_FALSE(file.read(4));
}

TEST_F(AtomicFileTest, ReadsNothingFromAHugeFileAndDoesNotTouchIt) {
    folder.write("Tarvo/data.json", "garbage");
    fs::resize_file(path, std::uintmax_t{200} << 20);
    EXPECT_FALSE(file.read(std::size_t{32} << 20));
}

TEST_F(AtomicFileTest, ReadsNothingFromAFolder) {
    folder.makeFolder("Tarvo/data.json");
    EXPECT_FALSE(file.read(anySize));
}

TEST_F(AtomicFileTest, DoesNotWaitForTheWriterOfAPipe) {
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    EXPECT_FALSE(file.read(anySize));
    EXPECT_TRUE(file.replace("a file again"));
    EXPECT_EQ(content(), "a file again");
}

TEST_F(AtomicFileTest, DoesNotReadFromADevice) {
    folder.link("Tarvo/data.json", "/dev/zero");
    EXPECT_FALSE(file.read(anySize));
}

TEST_F(AtomicFileTest, ReadsNothingWithoutPermission) {
    folder.write("Tarvo/data.json", "secret");
    fs::permissions(path, fs::perms::none);
    const OrdinaryUser user(folder);
    EXPECT_FALSE(file.read(anySize));
}

// Failures to write

TEST_F(AtomicFileTest, KeepsTheOldContentOnAFullDisk) {
    EXPECT_TRUE(file.replace("old"));
    {
        const FileSizeLimit limit(4096);
        EXPECT_FALSE(file.replace(std::string(100'000, 'x')));
        EXPECT_FALSE(file.replaceKeeping("[", {0, 3}, std::string(100'000, 'x')));
    }
    EXPECT_EQ(content(), "old");
    EXPECT_THAT(names(), ElementsAre("data.json"));
    EXPECT_TRUE(file.replaceKeeping("[", {0, 3}, "]"));
    EXPECT_EQ(content(), "[old]");
}

TEST_F(AtomicFileTest, KeepsTheOldContentWhenTheFileSystemIsFull) {
    const auto mountPoint = folder.path("small");
    folder.makeFolder("small");
    if (::mount("tmpfs", mountPoint.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "mounting needs root";
    {
        AtomicFile small(fs::path(mountPoint) / "data.json");
        EXPECT_TRUE(small.replace(std::string(30'000, 'a')));
        EXPECT_FALSE(small.replace(std::string(100'000, 'b')));
        EXPECT_FALSE(small.replaceKeeping("", {0, 30'000}, std::string(30'000, 'b')));
        EXPECT_THAT(small.read(anySize), Optional(std::string(30'000, 'a')));
        EXPECT_TRUE(small.replace("c"));
        EXPECT_THAT(small.read(anySize), Optional(std::string("c")));
    }
    EXPECT_EQ(::umount(mountPoint.c_str()), 0);
}

TEST_F(AtomicFileTest, KeepsTheOldContentInAReadOnlyFolder) {
    EXPECT_TRUE(file.replace("old"));
    const auto parent = path.parent_path();
    const OrdinaryUser user(folder);
    fs::permissions(parent, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(file.replace("new"));
    EXPECT_FALSE(file.replaceKeeping("", {0, 3}, "new"));
    fs::permissions(parent, fs::perms::owner_all);
    EXPECT_THAT(names(), ElementsAre("data.json"));
}

TEST_F(AtomicFileTest, ReplacesAFileThatAnotherUserOwns) {
    if (::geteuid() != 0) GTEST_SKIP() << "giving files away needs root";
    folder.write("Tarvo/data.json", "root's");
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    const OrdinaryUser user(folder);
    EXPECT_FALSE(file.read(anySize));
    EXPECT_TRUE(file.replace("mine"));
    EXPECT_THAT(file.read(anySize), Optional(std::string("mine")));
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, OrdinaryUser::nobody);
}

TEST_F(AtomicFileTest, LeavesAFolderInItsPlaceAlone) {
    folder.makeFolder("Tarvo/data.json/inside");
    EXPECT_FALSE(file.replace("new"));
    EXPECT_TRUE(fs::is_directory(path / "inside"));
    EXPECT_THAT(names(), ElementsAre("data.json"));
}

TEST_F(AtomicFileTest, FailsQuietlyWithoutItsFolder) {
    folder.remove("Tarvo");
    EXPECT_FALSE(file.read(anySize));
    EXPECT_FALSE(file.replace("new"));
    folder.write("blocked", "a file where the folder should be");
    AtomicFile blocked(folder.path() / "blocked" / "data.json");
    EXPECT_FALSE(blocked.replace("new"));
}

TEST_F(AtomicFileTest, CannotBeWrittenWithoutAPath) {
    AtomicFile nowhere{fs::path()};
    EXPECT_FALSE(nowhere.replace("new"));
    EXPECT_FALSE(nowhere.read(anySize));
    EXPECT_FALSE(fs::exists(".new"));
}

// What a killed or a second process leaves beside the file

TEST_F(AtomicFileTest, TakesAgainWhatAKilledProcessLeft) {
    folder.write("Tarvo/data.json.new", "half a content that was longer than the next one");
    EXPECT_TRUE(file.replace("new"));
    EXPECT_EQ(content(), "new");
    EXPECT_THAT(names(), ElementsAre("data.json"));
}

TEST_F(AtomicFileTest, RemovesAForeignLeftover) {
    folder.write("Tarvo/data.json.new", "left by another user");
    fs::permissions(folder.path("Tarvo/data.json.new"), fs::perms::none);
    const OrdinaryUser user(folder);
    EXPECT_TRUE(file.replace("new"));
    EXPECT_EQ(content(), "new");
}

TEST_F(AtomicFileTest, DoesNotWriteThroughALinkInPlaceOfTheLeftover) {
    folder.write("precious", "untouched");
    folder.link("Tarvo/data.json.new", folder.path("precious"));
    EXPECT_TRUE(file.replace("new"));
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(fs::file_size(folder.path("precious")), 9u);
    EXPECT_FALSE(fs::is_symlink(path));
}

TEST_F(AtomicFileTest, DoesNotDisturbAnotherProcessThatIsWriting) {
    EXPECT_TRUE(file.replace("old"));
    folder.write("Tarvo/data.json.new", "half");
    const int other = ::open(folder.path("Tarvo/data.json.new").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_FALSE(file.replace("new"));
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(fs::file_size(folder.path("Tarvo/data.json.new")), 4u);
    ::close(other);
    EXPECT_TRUE(file.replace("new"));
}

// Taking over what was written last

TEST_F(AtomicFileTest, TakesOverARangeOfWhatItWroteLast) {
    EXPECT_TRUE(file.replace("[one,two]"));
    EXPECT_TRUE(file.replaceKeeping("[", {1, 7}, ",three]"));
    EXPECT_EQ(content(), "[one,two,three]");
    EXPECT_TRUE(file.replaceKeeping("[", {5, 9}, ",four]"));
    EXPECT_EQ(content(), "[two,three,four]");
    EXPECT_TRUE(file.replaceKeeping("", {0, 16}, ""));
    EXPECT_EQ(content(), "[two,three,four]");
    EXPECT_THAT(names(), ElementsAre("data.json"));
}

TEST_F(AtomicFileTest, TakesOverMoreThanAPage) {
    std::string expected(50'000, 'a');
    EXPECT_TRUE(file.replace(expected));
    for (char letter = 'b'; letter < 'z'; ++letter) {
        const std::string tail(5'003, letter);
        EXPECT_TRUE(file.replaceKeeping("", {1'001, expected.size() - 1'001}, tail));
        expected = expected.substr(1'001) + tail;
    }
    EXPECT_EQ(content(), expected);
}

TEST_F(AtomicFileTest, TakesNothingOverBeforeItsFirstWrite) {
    folder.write("Tarvo/data.json", "somebody's");
    EXPECT_FALSE(file.replaceKeeping("", {0, 1}, "x"));
    EXPECT_EQ(content(), "somebody's");
}

TEST_F(AtomicFileTest, TakesNothingOverFromAFileThatWasChangedReplacedOrRemoved) {
    EXPECT_TRUE(file.replace("mine"));
    folder.write("Tarvo/data.json", "yours and longer");
    EXPECT_FALSE(file.replaceKeeping("", {0, 1}, "x"));
    EXPECT_EQ(content(), "yours and longer");

    EXPECT_TRUE(file.replace("mine"));
    folder.write("Tarvo/other", "same");
    fs::rename(folder.path("Tarvo/other"), path);
    EXPECT_FALSE(file.replaceKeeping("", {0, 1}, "x"));
    EXPECT_EQ(content(), "same");

    fs::remove(path);
    EXPECT_FALSE(file.replaceKeeping("", {0, 1}, "x"));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(AtomicFileTest, TakesNothingOverFromBeyondTheEnd) {
    EXPECT_TRUE(file.replace("1234"));
    EXPECT_FALSE(file.replaceKeeping("", {0, 5}, ""));
    EXPECT_FALSE(file.replaceKeeping("", {5, 0}, ""));
    EXPECT_FALSE(file.replaceKeeping("", {2, static_cast<std::size_t>(-1)}, ""));
    EXPECT_TRUE(file.replaceKeeping("", {4, 0}, "x"));
    EXPECT_EQ(content(), "x");
}

} // namespace
} // namespace tarvo
