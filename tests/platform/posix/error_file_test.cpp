#include "platform/posix/error_file.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tarvo {
namespace {

void writeTo(const ErrorFile& file, const std::string& text) {
    ASSERT_EQ(::write(file.descriptor().get(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

TEST(ErrorFile, KeepsTheEndOfWhatWasWritten) {
    ErrorFile file;
    ASSERT_TRUE(file);
    writeTo(file, "one two three");
    EXPECT_EQ(file.finish(5), "three");
}

TEST(ErrorFile, OfNothingIsEmpty) {
    EXPECT_EQ(ErrorFile().finish(5), "");
}

TEST(ErrorFile, ForgetsTheRestOfALongText) {
    ErrorFile file;
    writeTo(file, std::string(2 << 20, 'x') + "abc");
    file.shrink(5);
    EXPECT_EQ(::lseek(file.descriptor().get(), 0, SEEK_END), 0);
    writeTo(file, "d");
    EXPECT_EQ(file.finish(5), "xabcd");
}

TEST(ErrorFile, LeavesAShortTextAlone) {
    ErrorFile file;
    writeTo(file, "abc");
    file.shrink(1);
    EXPECT_EQ(file.finish(5), "abc");
}

TEST(ErrorFile, TakesNothingMoreWhenItIsFinished) {
    ErrorFile file;
    writeTo(file, "abc");
    EXPECT_EQ(file.finish(5), "abc");
    EXPECT_EQ(::write(file.descriptor().get(), "d", 1), -1);
    EXPECT_EQ(errno, EPERM);
}

TEST(ErrorFile, IsClosedForProgramsThatAreStartedWithoutIt) {
    const ErrorFile file;
    EXPECT_TRUE(::fcntl(file.descriptor().get(), F_GETFD) & FD_CLOEXEC);
    EXPECT_GE(file.descriptor().get(), 3);
}

} // namespace
} // namespace tarvo
