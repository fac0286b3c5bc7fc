#include "platform/posix/pipe.h"

#include <gtest/gtest.h>

#include <fcntl.h>

#include <cerrno>

namespace tarvo {
namespace {

TEST(Pipe, CarriesBytesFromOneEndToTheOther) {
    const auto pipe = makePipe();
    ASSERT_TRUE(pipe);
    ASSERT_EQ(::write(pipe->writeEnd.get(), "abc", 3), 3);
    char buffer[8];
    EXPECT_EQ(::read(pipe->readEnd.get(), buffer, sizeof buffer), 3);
    EXPECT_EQ(std::string_view(buffer, 3), "abc");
}

TEST(Pipe, BothEndsCloseOnExecAndStandAboveTheStandardDescriptors) {
    const auto pipe = makePipe();
    ASSERT_TRUE(pipe);
    for (const int end : {pipe->readEnd.get(), pipe->writeEnd.get()}) {
        EXPECT_GT(end, 2);
        EXPECT_NE(::fcntl(end, F_GETFD) & FD_CLOEXEC, 0);
    }
}

TEST(Pipe, ANonBlockingReadOfAnEmptyPipeReturnsAtOnce) {
    const auto pipe = makePipe();
    ASSERT_TRUE(pipe);
    setNonBlocking(pipe->readEnd);
    char byte;
    EXPECT_EQ(::read(pipe->readEnd.get(), &byte, 1), -1);
    EXPECT_EQ(errno, EAGAIN);
}

} // namespace
} // namespace tarvo
