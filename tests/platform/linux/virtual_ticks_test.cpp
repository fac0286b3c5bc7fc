#include "platform/linux/virtual_ticks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::uint64_t largest31Bits = 0x7FFF'FFFF;

RawCoreTicks core(std::uint32_t id, std::uint64_t ticks) {
    return {.cpuId = id, .user = ticks, .system = ticks, .idle = ticks, .nice = ticks};
}

CoreTicks all(std::int32_t ticks) {
    return {.user = ticks, .system = ticks, .idle = ticks, .nice = ticks};
}

std::vector<CoreTicks> advance(VirtualTicks& ticks, const std::vector<RawCoreTicks>& raw) {
    std::vector<CoreTicks> cores;
    ticks.advance(raw, cores);
    return cores;
}

} // namespace

TEST(VirtualTicks, StartAtZeroAndGrowWithTheCounters) {
    VirtualTicks ticks;
    EXPECT_THAT(advance(ticks, {core(0, 5'000'000'000)}), ElementsAre(all(0)));
    EXPECT_THAT(advance(ticks, {core(0, 5'000'000'007)}), ElementsAre(all(7)));
    EXPECT_THAT(advance(ticks, {core(0, 5'000'000'010)}), ElementsAre(all(10)));
}

TEST(VirtualTicks, KeepTheKindsApart) {
    VirtualTicks ticks;
    advance(ticks, {{.cpuId = 0, .user = 10, .system = 20, .idle = 30, .nice = 40}});
    EXPECT_THAT(advance(ticks, {{.cpuId = 0, .user = 11, .system = 22, .idle = 33, .nice = 44}}),
                ElementsAre(CoreTicks{.user = 1, .system = 2, .idle = 3, .nice = 4}));
}

TEST(VirtualTicks, DoNotStepBack) {
    VirtualTicks ticks;
    advance(ticks, {core(0, 100)});
    advance(ticks, {core(0, 150)});
    EXPECT_THAT(advance(ticks, {core(0, 149)}), ElementsAre(all(50)));
    EXPECT_THAT(advance(ticks, {core(0, 151)}), ElementsAre(all(52)));
}

TEST(VirtualTicks, PassTheLimitOfSigned32BitsWithoutNotice) {
    VirtualTicks ticks;
    advance(ticks, {core(0, largest31Bits - 5)});
    EXPECT_THAT(advance(ticks, {core(0, largest31Bits + 5)}), ElementsAre(all(10)));
}

TEST(VirtualTicks, WrapToZeroAfter31Bits) {
    VirtualTicks ticks;
    constexpr std::uint64_t step = std::uint64_t{1} << 30U;
    advance(ticks, {core(0, 0)});
    EXPECT_THAT(advance(ticks, {core(0, step)}), ElementsAre(all(1 << 30)));
    EXPECT_THAT(advance(ticks, {core(0, 2 * step - 1)}), ElementsAre(all(INT32_MAX)));
    EXPECT_THAT(advance(ticks, {core(0, 2 * step + 2)}), ElementsAre(all(2)));
}

TEST(VirtualTicks, TakeAnImpossibleJumpForNoStep) {
    VirtualTicks ticks;
    advance(ticks, {core(0, 0)});
    EXPECT_THAT(advance(ticks, {core(0, UINT64_MAX)}), ElementsAre(all(0)));
    EXPECT_THAT(advance(ticks, {core(0, UINT64_MAX)}), ElementsAre(all(0)));
}

TEST(VirtualTicks, DropACoreThatWentOffline) {
    VirtualTicks ticks;
    advance(ticks, {core(0, 0), core(1, 0)});
    EXPECT_THAT(advance(ticks, {core(0, 10)}), ElementsAre(all(10)));
    EXPECT_THAT(advance(ticks, {core(0, 20), core(1, 500)}), ElementsAre(all(20), all(0)));
    EXPECT_THAT(advance(ticks, {}), IsEmpty());
}

TEST(VirtualTicks, DoNotTakeAnotherCoreAtTheSamePositionForTheSame) {
    VirtualTicks ticks;
    advance(ticks, {core(0, 0), core(1, 100)});
    advance(ticks, {core(0, 10), core(1, 130)});
    EXPECT_THAT(advance(ticks, {core(0, 20), core(2, 9000)}), ElementsAre(all(20), all(30)));
    EXPECT_THAT(advance(ticks, {core(0, 30), core(2, 9001)}), ElementsAre(all(30), all(31)));
}

TEST(VirtualTicks, NeverHandOutANegativeValue) {
    std::mt19937_64 random(1);
    VirtualTicks ticks;
    for (int round = 0; round < 2000; ++round) {
        std::vector<RawCoreTicks> raw;
        const auto count = random() % 5;
        for (std::uint32_t id = 0; id < count; ++id) {
            raw.push_back({static_cast<std::uint32_t>(random() % 3), random() >> (random() % 64),
                           random() >> (random() % 64), random() >> (random() % 64),
                           random() >> (random() % 64)});
        }
        for (const auto& handedOut : advance(ticks, raw)) {
            EXPECT_GE(handedOut.user, 0);
            EXPECT_GE(handedOut.system, 0);
            EXPECT_GE(handedOut.idle, 0);
            EXPECT_GE(handedOut.nice, 0);
        }
    }
}

} // namespace tarvo::linux_platform
