#include "platform/linux/linux_host_statistics.h"

#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;

namespace {

class HostStatisticsOfATree : public testing::Test {
protected:
    std::vector<CoreTicks> load() {
        std::vector<CoreTicks> cores;
        EXPECT_TRUE(host.processorLoad(cores));
        return cores;
    }
    bool loadFails() {
        std::vector<CoreTicks> cores;
        return !host.processorLoad(cores);
    }

    TemporaryFolder folder;
    LinuxHostStatistics host{Root(folder.path("")), 4096};
};

} // namespace

TEST_F(HostStatisticsOfATree, CountsTicksSinceTheFirstCall) {
    folder.write("proc/stat", "cpu  1 1 1 1\ncpu0 100 10 50 1000\nintr 5\n");
    EXPECT_THAT(load(), ElementsAre(CoreTicks{}));
    folder.write("proc/stat", "cpu  1 1 1 1\ncpu0 101 12 53 1004\nintr 5\n");
    EXPECT_THAT(load(), ElementsAre(CoreTicks{.user = 1, .system = 3, .idle = 4, .nice = 2}));
}

TEST_F(HostStatisticsOfATree, SeesAllCoresOfALargeMachine) {
    std::string text = "cpu  1 2 3 4\n";
    for (int core = 0; core < 512; ++core)
        text += fmt::format("cpu{} {} 2 3 4 5 6 7 8 9 10\n", core, core);
    folder.write("proc/stat", text + "intr " + std::string(50'000, '0') + "\n");
    EXPECT_EQ(load().size(), 512U);
    EXPECT_EQ(load().size(), 512U);
}

TEST_F(HostStatisticsOfATree, CannotReadAStatWithoutCores) {
    EXPECT_TRUE(loadFails());
    folder.write("proc/stat", "");
    EXPECT_TRUE(loadFails());
    folder.write("proc/stat", "cpu  1 2 3 4\nintr 5\n");
    EXPECT_TRUE(loadFails());
    folder.write("proc/stat", std::string("\x7F"
                                          "ELF\0\1\2\3",
                                          8));
    EXPECT_TRUE(loadFails());
    folder.write("proc/stat", "cpu0 1 2 3 4\n");
    EXPECT_FALSE(loadFails());
}

TEST_F(HostStatisticsOfATree, DividesMemoryAndSwap) {
    folder.write("proc/meminfo", "MemTotal: 8192 kB\nMemFree: 2048 kB\nMemAvailable: 4096 kB\n"
                                 "SwapTotal: 1024 kB\nSwapFree: 512 kB\n");
    const auto memory = host.memory();
    EXPECT_EQ(memory.physicalBytes, 8U << 20U);
    const PageStatistics pages{
        .active = 1024, .wired = 0, .compressor = 0, .inactive = 512, .free = 512, .pageSize = 4096};
    EXPECT_EQ(memory.pages, pages);
    EXPECT_EQ(memory.swap, (SwapUsage{.total = 1U << 20U, .used = 1U << 19U}));
}

TEST_F(HostStatisticsOfATree, NoticesACompressedDiskWhenSwapIsAdded) {
    folder.write("proc/meminfo", "MemTotal: 8192 kB\nMemFree: 2048 kB\nMemAvailable: 4096 kB\n");
    EXPECT_EQ(host.memory().pages->compressor, 0U);
    folder.write("sys/block/zram0/mm_stat", "100000 9000 12288 0\n");
    folder.write("proc/meminfo",
                 "MemTotal: 8192 kB\nMemFree: 2048 kB\nMemAvailable: 4096 kB\nSwapTotal: 4096 kB\n");
    EXPECT_EQ(host.memory().pages->compressor, 3U);
    folder.write("sys/block/zram0/mm_stat", "100000 9000 16384 0\n");
    EXPECT_EQ(host.memory().pages->compressor, 4U);
}

TEST_F(HostStatisticsOfATree, KnowsNothingOfMemoryWithoutATotal) {
    EXPECT_EQ(host.memory().swap, std::nullopt);
    for (const auto* const text : {"\n", "MemFree: 2048 kB\n", "MemTotal: lots\n"}) {
        folder.write("proc/meminfo", text);
        const auto memory = host.memory();
        EXPECT_EQ(memory.physicalBytes, 0U);
        EXPECT_EQ(memory.pages, std::nullopt);
        EXPECT_EQ(memory.swap, SwapUsage{});
    }
}

TEST_F(HostStatisticsOfATree, KnowsTheSwapWithoutATotalOfMemory) {
    folder.write("proc/meminfo", "MemFree: 2048 kB\nSwapTotal: 1024 kB\nSwapFree: 512 kB\n");
    const auto memory = host.memory();
    EXPECT_EQ(memory.pages, std::nullopt);
    EXPECT_EQ(memory.swap, (SwapUsage{.total = 1U << 20U, .used = 1U << 19U}));
}

TEST_F(HostStatisticsOfATree, ReadsLoadAverages) {
    EXPECT_EQ(host.loadAverages(), std::nullopt);
    folder.write("proc/loadavg", "0.52 0.58 0.59 1/467 12345\n");
    EXPECT_EQ(host.loadAverages(), (std::array<double, 3>{0.52, 0.58, 0.59}));
}

TEST_F(HostStatisticsOfATree, IsNotHeldUpByPipesOrFolders) {
    folder.makeFolder("proc/stat");
    folder.makeFolder("proc");
    ASSERT_EQ(::mkfifo(folder.path("proc/meminfo").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(folder.path("proc/loadavg").c_str(), 0600), 0);
    EXPECT_TRUE(loadFails());
    EXPECT_EQ(host.memory().pages, std::nullopt);
    EXPECT_EQ(host.loadAverages(), std::nullopt);
}

TEST(LinuxHostStatistics, AgreesWithItselfOnThisMachine) {
    LinuxHostStatistics host{Root()};
    std::vector<CoreTicks> cores;
    ASSERT_TRUE(host.processorLoad(cores));
    EXPECT_FALSE(cores.empty());
    const auto memory = host.memory();
    ASSERT_TRUE(memory.pages);
    const auto& pages = *memory.pages;
    const auto sum = pages.active + pages.wired + pages.compressor + pages.inactive + pages.free;
    EXPECT_EQ(sum, memory.physicalBytes / pages.pageSize);
    EXPECT_TRUE(host.loadAverages());
}

} // namespace tarvo::linux_platform
