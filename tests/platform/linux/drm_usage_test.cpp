#include "platform/linux/drm_usage.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t second = 1'000'000'000;

SteadyTime at(std::chrono::seconds time) {
    return SteadyTime{} + 1h + time;
}

DRMClient client(std::uint64_t id, std::map<std::string, DRMEngine> engines) {
    return {.driver = "i915", .address = "0000:00:02.0", .id = id, .engines = std::move(engines)};
}

DRMEngine busy(std::uint64_t nanoseconds, std::uint64_t capacity = 1) {
    return {.busyNanoseconds = nanoseconds, .cycles = {}, .totalCycles = {}, .capacity = capacity};
}

DRMEngine counted(std::uint64_t cycles, std::uint64_t total) {
    return {.busyNanoseconds = 0, .cycles = cycles, .totalCycles = total, .capacity = 1};
}

} // namespace

TEST(DRMUsage, IsThatOfTheBusiestEngineOverAllClients) {
    DRMUsage usage;
    EXPECT_EQ(
        usage.sample({client(1, {{"render", busy(0)}, {"video", busy(0)}}), client(2, {{"render", busy(0)}})},
                     at(0s)),
        std::nullopt);
    const auto percent = usage.sample({client(1, {{"render", busy(second / 2)}, {"video", busy(second / 4)}}),
                                       client(2, {{"render", busy(second / 2)}})},
                                      at(2s));
    EXPECT_DOUBLE_EQ(percent.value(), 50);
}

TEST(DRMUsage, CountsAClientOnceHoweverManyDescriptorsItHas) {
    DRMUsage usage;
    usage.sample({client(1, {{"render", busy(0)}}), client(1, {{"render", busy(0)}})}, at(0s));
    const auto percent =
        usage.sample({client(1, {{"render", busy(second)}}), client(1, {{"render", busy(second)}})}, at(4s));
    EXPECT_DOUBLE_EQ(percent.value(), 25);
}

TEST(DRMUsage, DividesByTheNumberOfEngines) {
    DRMUsage usage;
    usage.sample({client(1, {{"video", busy(0, 2)}})}, at(0s));
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"video", busy(second, 2)}})}, at(1s)).value(), 50);
}

TEST(DRMUsage, ComparesCyclesWithCycles) {
    DRMUsage usage;
    usage.sample({client(1, {{"rcs", counted(100, 1000)}})}, at(0s));
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"rcs", counted(130, 1100)}})}, at(1s)).value(), 30);
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"rcs", counted(130, 1100)}})}, at(2s)).value(), 0);
}

TEST(DRMUsage, StaysWithTheLargerValueWhenACounterStepsBack) {
    DRMUsage usage;
    usage.sample({client(1, {{"render", busy(second)}})}, at(0s));
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"render", busy(second / 2)}})}, at(1s)).value(), 0);
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"render", busy(second + second / 10)}})}, at(2s)).value(), 10);
}

TEST(DRMUsage, ANewClientCountsFromItsSecondSampleOn) {
    DRMUsage usage;
    usage.sample({client(1, {{"render", busy(0)}})}, at(0s));
    EXPECT_DOUBLE_EQ(
        usage.sample({client(1, {{"render", busy(0)}}), client(2, {{"render", busy(9 * second)}})}, at(1s))
            .value(),
        0);
    EXPECT_EQ(usage.sample({client(3, {{"render", busy(second)}})}, at(2s)), std::nullopt);
    EXPECT_EQ(usage.sample({}, at(3s)), std::nullopt);
}

TEST(DRMUsage, IsAtMostAHundredAndNothingWithoutElapsedTime) {
    DRMUsage usage;
    usage.sample({client(1, {{"render", busy(0)}})}, at(0s));
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"render", busy(5 * second)}})}, at(1s)).value(), 100);
    EXPECT_DOUBLE_EQ(usage.sample({client(1, {{"render", busy(6 * second)}})}, at(1s)).value(), 0);
}

} // namespace tarvo::linux_platform
