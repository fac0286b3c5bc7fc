#include "line_output.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <string>
#include <thread>

namespace tarvo::status {
namespace {

class LineOutputTest : public testing::Test {
protected:
    LineOutputTest() {
        ::signal(SIGPIPE, SIG_IGN);
        EXPECT_EQ(::pipe(ends.data()), 0);
    }
    ~LineOutputTest() override {
        closeReader();
        ::close(ends[1]);
    }
    void closeReader() {
        if (ends[0] >= 0) ::close(ends[0]);
        ends[0] = -1;
    }
    std::string read(std::size_t count) {
        std::string text;
        std::array<char, 4096> part{};
        while (text.size() < count) {
            const auto got = ::read(ends[0], part.data(), part.size());
            if (got <= 0) break;
            text.append(part.data(), static_cast<std::size_t>(got));
        }
        return text;
    }

    std::array<int, 2> ends{-1, -1};
};

TEST_F(LineOutputTest, WritesTheText) {
    EXPECT_EQ(LineOutput(ends[1]).write("CPU 23%\n"), LineOutput::Result::written);
    EXPECT_EQ(read(8), "CPU 23%\n");
}

TEST_F(LineOutputTest, WritesNothingForEmptyText) {
    closeReader();
    EXPECT_EQ(LineOutput(ends[1]).write(""), LineOutput::Result::written);
}

TEST_F(LineOutputTest, TellsThatTheReaderIsGone) {
    closeReader();
    EXPECT_EQ(LineOutput(ends[1]).write("x"), LineOutput::Result::readerGone);
}

TEST_F(LineOutputTest, TellsThatTheDescriptorTakesNoText) {
    EXPECT_EQ(LineOutput(ends[0]).write("x"), LineOutput::Result::failed);
    EXPECT_EQ(LineOutput(-1).write("x"), LineOutput::Result::failed);
}

TEST_F(LineOutputTest, WaitsForASlowReaderOfANonBlockingPipe) {
    ASSERT_EQ(::fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
    std::string text(1'000'000, 'x');
    text += '\n';
    std::string received;
    std::thread reader([&] { received = read(text.size()); });
    EXPECT_EQ(LineOutput(ends[1]).write(text), LineOutput::Result::written);
    reader.join();
    EXPECT_EQ(received, text);
}

} // namespace
} // namespace tarvo::status
