#include "platform/linux/cpu_cores.h"

#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;

class CPUCores : public testing::Test {
protected:
    void addCPU(int cpu, int package, int core) {
        const auto topology = fmt::format("sys/devices/system/cpu/cpu{}/topology/", cpu);
        folder.write(topology + "physical_package_id", fmt::format("{}\n", package));
        folder.write(topology + "core_id", fmt::format("{}\n", core));
    }
    void set(int cpu, const char* attribute, int value) {
        folder.write(fmt::format("sys/devices/system/cpu/cpu{}/{}", cpu, attribute),
                     fmt::format("{}\n", value));
    }
    std::vector<int> efficientCPUs() {
        std::vector<int> cpus;
        for (const auto& core : readCPUCores(Root(folder.path().string()))) {
            if (core.isEfficient) cpus.push_back(core.cpu);
        }
        return cpus;
    }

    TemporaryFolder folder;
};

TEST_F(CPUCores, AreListedByNumberAndNotByName) {
    for (const int cpu : {10, 2, 0})
        addCPU(cpu, 1, cpu / 2);
    folder.write("sys/devices/system/cpu/cpufreq/policy0/scaling_driver", "x\n");
    folder.makeFolder("sys/devices/system/cpu/cpu3");
    EXPECT_THAT(readCPUCores(Root(folder.path().string())),
                ElementsAre(CPUCore{0, 1, 0, false}, CPUCore{2, 1, 1, false}, CPUCore{10, 1, 5, false}));
}

TEST_F(CPUCores, OnAMachineWithoutTopologyThereAreNone) {
    EXPECT_TRUE(readCPUCores(Root(folder.path().string())).empty());
}

TEST_F(CPUCores, TheKernelsListOfEfficientCPUsDecides) {
    for (int cpu = 0; cpu < 4; ++cpu) {
        addCPU(cpu, 0, cpu);
        set(cpu, "cpu_capacity", cpu == 0 ? 100 : 1024);
    }
    folder.write("sys/devices/cpu_atom/cpus", "2-3\n");
    folder.write("sys/devices/cpu_core/cpus", "0-1\n");
    EXPECT_THAT(efficientCPUs(), ElementsAre(2, 3));
}

TEST_F(CPUCores, AListWithoutItsCounterpartIsNotOfAHybridProcessor) {
    for (int cpu = 0; cpu < 2; ++cpu)
        addCPU(cpu, 0, cpu);
    folder.write("sys/devices/cpu_atom/cpus", "0-1\n");
    EXPECT_THAT(efficientCPUs(), ElementsAre());
}

TEST_F(CPUCores, ClearlySmallerCapacityMeansEfficient) {
    const int capacities[] = {1024, 819, 820, 446};
    for (int cpu = 0; cpu < 4; ++cpu) {
        addCPU(cpu, 0, cpu);
        set(cpu, "cpu_capacity", capacities[cpu]);
    }
    EXPECT_THAT(efficientCPUs(), ElementsAre(1, 3));
}

TEST_F(CPUCores, WhereCapacitiesAreEqualTheFrequencyDecides) {
    const int frequencies[] = {5000000, 3740000, 3750000, 5000000};
    for (int cpu = 0; cpu < 4; ++cpu) {
        addCPU(cpu, 0, cpu);
        set(cpu, "cpu_capacity", 1024);
        set(cpu, "cpufreq/cpuinfo_max_freq", frequencies[cpu]);
    }
    EXPECT_THAT(efficientCPUs(), ElementsAre(1));
}

TEST(WeakCores, NeedTheFigureOfEveryCore) {
    EXPECT_THAT(weakCores({{100, std::nullopt}, {std::nullopt, std::nullopt}, {1024, std::nullopt}}),
                ElementsAre(false, false, false));
    EXPECT_THAT(weakCores({{100, 1000}, {std::nullopt, 500}, {1024, 1000}}), ElementsAre(false, true, false));
    EXPECT_THAT(weakCores({}), ElementsAre());
}

} // namespace
} // namespace tarvo::linux_platform
