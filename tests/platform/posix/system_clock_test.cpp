#include "platform/posix/system_clock.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(SystemClock, SteadyTimeNeverRunsBackwards) {
    const SystemClock clock;
    const auto first = clock.steadyNow();
    EXPECT_GE(clock.steadyNow(), first);
    EXPECT_GT(first, distantPast);
}

TEST(SystemClock, WallTimeLiesBetweenTwoReadingsOfTheSystems) {
    const SystemClock clock;
    const auto before = std::chrono::system_clock::now();
    const auto read = clock.wallNow();
    EXPECT_GE(read, before);
    EXPECT_LE(read, std::chrono::system_clock::now());
}

TEST(SystemClock, TheDistantPastCanBeSubtractedFromNow) {
    const SystemClock clock;
    EXPECT_GT(clock.wallNow() - distantPastDate, std::chrono::hours{24 * 365 * 100});
    EXPECT_GT(clock.steadyNow() - distantPast, std::chrono::hours{24 * 365 * 99});
}

} // namespace
} // namespace tarvo
