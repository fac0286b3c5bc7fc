#include "platform/linux/proc_stat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<RawCoreTicks> parsed(std::string_view text) {
    std::vector<RawCoreTicks> cores;
    parseCoreTicks(text, cores);
    return cores;
}

bool isComplete(std::string_view text) {
    std::vector<RawCoreTicks> cores;
    return parseCoreTicks(text, cores);
}

RawCoreTicks core(std::uint32_t id, std::uint64_t user, std::uint64_t system, std::uint64_t idle,
                  std::uint64_t nice) {
    return {.cpuId = id, .user = user, .system = system, .idle = idle, .nice = nice};
}

} // namespace

TEST(ProcStat, AddsInterruptsAndStealToSystemAndDiskWaitToIdle) {
    EXPECT_THAT(parsed("cpu  9 9 9 9 9 9 9 9 9 9\n"
                       "cpu0 10 2 30 400 50 6 7 8 1000 1000\n"
                       "intr 1 2 3\n"),
                ElementsAre(core(0, 10, 51, 450, 2)));
}

TEST(ProcStat, GuestTimeIsAlreadyInsideUser) {
    EXPECT_THAT(parsed("cpu0 100 0 0 0 0 0 0 0 100 0\nintr 0\n"), ElementsAre(core(0, 100, 0, 0, 0)));
}

TEST(ProcStat, KeepsTheOrderAndIdsOfTheFile) {
    EXPECT_THAT(parsed("cpu  0 0 0 0\ncpu0 1 0 0 0\ncpu2 2 0 0 0\ncpu17 3 0 0 0\nctxt 5\n"),
                ElementsAre(core(0, 1, 0, 0, 0), core(2, 2, 0, 0, 0), core(17, 3, 0, 0, 0)));
}

TEST(ProcStat, OldKernelsHaveFewerColumns) {
    EXPECT_THAT(parsed("cpu0 1 2 3 4\nintr\n"), ElementsAre(core(0, 1, 3, 4, 2)));
    EXPECT_THAT(parsed("cpu0 1 2 3 4 5 6 7 8\nintr\n"), ElementsAre(core(0, 1, 3 + 6 + 7 + 8, 4 + 5, 2)));
    EXPECT_THAT(parsed("cpu0 1 2 3 4 5 6 7 8 9\nintr\n"), ElementsAre(core(0, 1, 3 + 6 + 7 + 8, 4 + 5, 2)));
    EXPECT_THAT(parsed("cpu0 1 2 3 4 5 6 7 8 9 10 11\nintr\n"), ElementsAre(core(0, 1, 24, 9, 2)));
}

TEST(ProcStat, LeavesOutLinesThatAreNotCores) {
    EXPECT_THAT(parsed(""), IsEmpty());
    EXPECT_THAT(parsed("cpu  1 2 3 4\n"), IsEmpty());
    EXPECT_THAT(parsed("cpu0 1 2 3\ncpufreq 1 2 3 4\ncpu-1 1 2 3 4\ncpu99999999999 1 2 3 4\ncpu1 1 1 1 1\n"),
                ElementsAre(core(1, 1, 1, 1, 1)));
    EXPECT_THAT(parsed("intr 5\ncpu0 1 2 3 4\n"), IsEmpty());
    EXPECT_THAT(parsed(std::string_view("\0\0\0cpu0 1 2 3 4\n", 16)), IsEmpty());
}

TEST(ProcStat, TellsWhetherTheTextHoldsAllCores) {
    EXPECT_TRUE(isComplete("cpu  1 2 3 4\ncpu0 1 2 3 4\nintr"));
    EXPECT_TRUE(isComplete("cpu  1 2 3 4\ncpu0 1 2 3 4\n"));
    EXPECT_TRUE(isComplete("cpu  1 2 3 4\ncpu0 1 2 3 4\ni"));
    EXPECT_FALSE(isComplete("cpu  1 2 3 4\ncpu0 1 2 3 4"));
    EXPECT_FALSE(isComplete("cpu  1 2 3 4\ncpu0 1 2 3 4\nc"));
    EXPECT_FALSE(isComplete("cpu  1 2 3 4\ncpu0 1 2 3 4\ncp"));
    EXPECT_FALSE(isComplete(""));
}

} // namespace tarvo::linux_platform
