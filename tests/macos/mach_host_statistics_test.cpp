#include "platform/macos/mach_host_statistics.h"

#include "macos/mac_test.h"
#include "readers/cpu_monitor.h"
#include "readers/memory_usage.h"

#include <cstring>
#include <limits>

namespace tarvo {
namespace {

using namespace fakes;
using macos_platform::MachHostStatistics;
using testing::ElementsAre;
using testing::IsEmpty;

template <typename... Numbers>
std::vector<unsigned char> bytesOf(Numbers... numbers) {
    std::vector<unsigned char> bytes;
    const auto append = [&bytes](auto number) {
        const auto place = bytes.size();
        bytes.resize(place + sizeof number);
        std::memcpy(bytes.data() + place, &number, sizeof number);
    };
    (append(numbers), ...);
    return bytes;
}

class MachHostStatisticsTest : public MacTest {
protected:
    MachHostStatistics host;
    std::vector<CoreTicks> cores;
};

TEST_F(MachHostStatisticsTest, ReadTheTicksOfEachCoreInTheKernelsOrder) {
    fakes::mach().cores = {{11, 12, 13, 14}, {21, 22, 23, 24}};
    ASSERT_TRUE(host.processorLoad(cores));
    EXPECT_THAT(cores, ElementsAre(CoreTicks{.user = 11, .system = 12, .idle = 13, .nice = 14},
                                   CoreTicks{.user = 21, .system = 22, .idle = 23, .nice = 24}));
}

TEST_F(MachHostStatisticsTest, GiveEveryArrayBack) {
    fakes::mach().cores = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}};
    for (int reading = 0; reading < 3; ++reading)
        ASSERT_TRUE(host.processorLoad(cores));
    EXPECT_EQ(taken("mapping"), 3);
    EXPECT_EQ(ledger().held.count("mapping"), 0U);
    EXPECT_EQ(cores.size(), 3U);
}

TEST_F(MachHostStatisticsTest, AskForTheHostPortOnce) {
    fakes::mach().cores = {{1, 2, 3, 4}};
    host.processorLoad(cores);
    host.processorLoad(cores);
    host.memory();
    EXPECT_EQ(taken("port right"), 1);
}

TEST_F(MachHostStatisticsTest, AFailedQueryIsToldAndNothingIsGivenBack) {
    fakes::mach().cores = {{1, 2, 3, 4}};
    fakes::mach().processorInfoFails = true;
    EXPECT_FALSE(host.processorLoad(cores));
    EXPECT_EQ(taken("mapping"), 0);
}

TEST_F(MachHostStatisticsTest, AnArrayThatIsTooShortForItsCoresIsGivenBackUnread) {
    fakes::mach().cores = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    fakes::mach().wordCount = 7;
    EXPECT_FALSE(host.processorLoad(cores));
    EXPECT_EQ(taken("mapping"), 1);
}

TEST_F(MachHostStatisticsTest, TheProcessorMonitorWorksOnThem) {
    CPUMonitor monitor(host);
    fakes::mach().cores = {{100, 50, 850, 0}, {0, 0, 1000, 0}};
    EXPECT_THAT(monitor.usage().perCore, IsEmpty());
    fakes::mach().cores = {{130, 60, 860, 0}, {25, 0, 1075, 0}};
    const auto& usage = monitor.usage();
    EXPECT_THAT(usage.perCore, ElementsAre(80, 25));
    fakes::mach().processorInfoFails = true;
    EXPECT_THAT(monitor.usage().perCore, IsEmpty());
}

TEST_F(MachHostStatisticsTest, MemoryIsMadeOfKernelPages) {
    fakes::mach().pages = Pages{.free = 1, .active = 2, .inactive = 3, .wired = 4, .compressor = 5};
    fakes::mach().systemValues["hw.memsize"] = bytesOf(std::uint64_t{17'179'869'184});
    const auto memory = host.memory();
    EXPECT_EQ(memory.physicalBytes, 17'179'869'184U);
    EXPECT_EQ(memory.pages, (PageStatistics{.active = 2,
                                            .wired = 4,
                                            .compressor = 5,
                                            .inactive = 3,
                                            .free = 1,
                                            .pageSize = kernelPageSize()}));
    EXPECT_THAT(fakes::mach().statisticsCounts, ElementsAre(62));
}

TEST_F(MachHostStatisticsTest, CountersOfFourBillionPagesDoNotBecomeNegative) {
    constexpr auto most = std::numeric_limits<std::uint32_t>::max();
    fakes::mach().pages =
        Pages{.free = most, .active = most, .inactive = most, .wired = most, .compressor = most};
    EXPECT_EQ(host.memory().pages->active, most);
    EXPECT_EQ(host.memory().pages->compressor, most);
}

TEST_F(MachHostStatisticsTest, AnOlderSystemFillsOnlyTheBeginningOfTheRoom) {
    fakes::mach().pages = Pages{.free = 1, .active = 2, .inactive = 3, .wired = 4, .compressor = 5};
    fakes::mach().isOlderSystem = true;
    EXPECT_EQ(host.memory().pages->compressor, 5U);
}

TEST_F(MachHostStatisticsTest, SwapIsTotalAndUsedOfARecordOf32Bytes) {
    constexpr std::uint64_t total = 3ULL << 30;
    constexpr std::uint64_t available = 2ULL << 30;
    constexpr std::uint64_t used = 1ULL << 30;
    fakes::mach().systemValues["vm.swapusage"] =
        bytesOf(total, available, used, std::uint32_t{16384}, std::int32_t{1});
    EXPECT_EQ(host.memory().swap, (SwapUsage{.total = total, .used = used}));
}

TEST_F(MachHostStatisticsTest, SystemValuesOfAnotherSizeAreAbsent) {
    fakes::mach().systemValues["hw.memsize"] = bytesOf(std::uint32_t{1 << 30});
    fakes::mach().systemValues["vm.swapusage"] =
        bytesOf(std::uint64_t{1}, std::uint64_t{2}, std::uint64_t{3});
    EXPECT_EQ(host.memory().physicalBytes, 0U);
    EXPECT_EQ(host.memory().swap, std::nullopt);
    fakes::mach().systemValues["hw.memsize"] = bytesOf(std::uint64_t{1 << 30}, std::uint64_t{0});
    fakes::mach().systemValues["vm.swapusage"] =
        bytesOf(std::uint64_t{1}, std::uint64_t{2}, std::uint64_t{3}, std::uint64_t{4}, std::uint64_t{5});
    EXPECT_EQ(host.memory().physicalBytes, 0U);
    EXPECT_EQ(host.memory().swap, std::nullopt);
}

TEST_F(MachHostStatisticsTest, WithoutPageStatisticsAllMemoryIsFree) {
    fakes::mach().systemValues["hw.memsize"] = bytesOf(std::uint64_t{8} << 30);
    const auto info = memoryUsage(host);
    EXPECT_EQ(info.memTotalGB, 8);
    EXPECT_EQ(info.memFreeGB, 8);
    EXPECT_EQ(info.memPercent, 0);
}

TEST_F(MachHostStatisticsTest, LoadAveragesAreThreeOrNone) {
    fakes::mach().loads = {1.25, 0.75, 0.5};
    EXPECT_EQ(host.loadAverages(), (std::array<double, 3>{1.25, 0.75, 0.5}));
    fakes::mach().loadCount = 2;
    EXPECT_EQ(host.loadAverages(), std::nullopt);
    fakes::mach().loadCount = -1;
    EXPECT_EQ(host.loadAverages(), std::nullopt);
}

} // namespace
} // namespace tarvo
