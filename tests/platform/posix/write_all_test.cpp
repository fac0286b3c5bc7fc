#include "platform/posix/write_all.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>

namespace tarvo {
namespace {

iovec piece(std::string& text) {
    return {text.data(), text.size()};
}

std::string readToEnd(int descriptor) {
    std::string all;
    std::array<char, 1000> buffer;
    for (ssize_t count = 0; (count = ::read(descriptor, buffer.data(), buffer.size())) > 0;) {
        all.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return all;
}

TEST(WriteAll, WritesEveryPieceAlthoughThePipeTakesThemInParts) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    std::string first(300'000, 'a'), nothing, second(1, 'b'), third(200'000, 'c');
    std::string received;
    std::thread reader([&] { received = readToEnd(ends[0]); });
    std::array pieces{piece(nothing), piece(first), piece(nothing),
                      piece(second),  piece(third), piece(nothing)};
    EXPECT_TRUE(writeAll(ends[1], pieces));
    ::close(ends[1]);
    reader.join();
    ::close(ends[0]);
    EXPECT_EQ(received, first + second + third);
}

TEST(WriteAll, HasNothingToDoForNothing) {
    std::string nothing;
    std::array pieces{piece(nothing), piece(nothing)};
    EXPECT_TRUE(writeAll(-1, pieces));
    EXPECT_TRUE(writeAll(-1, {}));
}

TEST(WriteAll, SaysWhenItFailed) {
    std::string text = "text";
    std::array pieces{piece(text)};
    EXPECT_FALSE(writeAll(-1, pieces));
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    std::array again{piece(text)};
    EXPECT_FALSE(writeAll(full, again));
    ::close(full);
}

} // namespace
} // namespace tarvo
