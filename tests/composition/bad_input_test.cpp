#include "composition/machine.h"

#include "readers/user_volumes.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/recorded_machine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <functional>

namespace tarvo {

namespace {

using namespace std::chrono_literals;

struct Damage {
    const char* name;
    std::function<void(const TemporaryFolder&, const std::string&)> apply;
    bool leavesNothing; ///< no part of the file can be read any more
};

void truncate(const TemporaryFolder& folder, const std::string& path) {
    std::filesystem::resize_file(folder.path(path), std::filesystem::file_size(folder.path(path)) / 2);
}

void makeBinary(const TemporaryFolder& folder, const std::string& path) {
    std::string bytes;
    for (int index = 0; index < 5000; ++index)
        bytes += static_cast<char>(index * 7 % 251);
    folder.write(path, bytes);
}

void makeHuge(const TemporaryFolder& folder, const std::string& path) {
    folder.write(path, "");
    std::filesystem::resize_file(folder.path(path), std::uintmax_t{1} << 30U);
}

void makePipe(const TemporaryFolder& folder, const std::string& path) {
    folder.remove(path);
    ASSERT_EQ(::mkfifo(folder.path(path).c_str(), 0600), 0);
}

void makeFolder(const TemporaryFolder& folder, const std::string& path) {
    folder.remove(path);
    folder.makeFolder(path);
}

// Each can follow the one before it.
const std::array<Damage, 7> damages{{
    {"truncated", truncate, false},
    {"binary", makeBinary, true},
    {"empty", [](const TemporaryFolder& folder, const std::string& path) { folder.write(path, ""); }, true},
    {"huge", makeHuge, true},
    {"pipe", makePipe, true},
    {"folder", makeFolder, true},
    {"missing", [](const TemporaryFolder& folder, const std::string& path) { folder.remove(path); }, true},
}};

constexpr std::array machines{"vm-empty",     "laptop-intel-hybrid", "desktop-amd-two-gpus", "netbook-zram",
                              "raspberrypi5", "container",           "server-2socket"};

std::vector<std::string> regularFiles(const RecordedMachine& machine) {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(machine.root())) {
        if (!entry.is_symlink() && entry.is_regular_file()) {
            files.push_back(std::filesystem::relative(entry.path(), machine.root()).string());
        }
    }
    return files;
}

struct Readings {
    CPUUsage cpu;
    MemoryInfo memory;
    std::optional<LoadAverages> load;
    NetworkTotals network;
    DiskIOTotals disks;
    std::optional<double> gpu;
    std::vector<DiskVolume> volumes;
};

Readings readTwice(const std::string& root) {
    ManualClock clock;
    ManualDispatcher dispatcher(clock);
    Machine machine({.root = root}, clock, dispatcher);
    const auto readers = machine.readers();
    Readings readings;
    for (int round = 0; round < 2; ++round) {
        readings.cpu = readers.cpuUsage();
        readings.memory = readers.memoryUsage();
        readings.load = readers.loadAverages();
        readings.network = readers.networkTotals();
        readings.disks = readers.diskIOTotals();
        readings.gpu = readers.gpuUtilizationPercent();
        clock.advance(2s);
    }
    readers.localIPAddress();
    readers.currentSSID();
    readers.diskSpace();
    readings.volumes = listUserVolumes(machine.volumes());
    return readings;
}

void expectNothing(const Readings& readings) {
    EXPECT_EQ(readings.cpu, CPUUsage{});
    EXPECT_EQ(readings.memory, MemoryInfo{});
    EXPECT_FALSE(readings.load);
    EXPECT_EQ(readings.network, NetworkTotals{});
    EXPECT_EQ(readings.disks, DiskIOTotals{});
    EXPECT_EQ(readings.gpu, std::nullopt);
    EXPECT_TRUE(readings.volumes.empty());
}

} // namespace

TEST(BadInput, InEveryFileGivesTheNeutralValues) {
    for (const auto* const name : machines) {
        const RecordedMachine machine(name);
        const auto files = regularFiles(machine);
        for (const auto& damage : damages) {
            SCOPED_TRACE(std::string(name) + " with every file " + damage.name);
            for (const auto& path : files)
                damage.apply(machine.folder(), path);
            const auto readings = readTwice(machine.root());
            if (damage.leavesNothing) expectNothing(readings);
        }
    }
}

TEST(BadInput, InOneFileLeavesTheOtherReadings) {
    const RecordedMachine machine("desktop-amd-two-gpus");
    for (const auto& damage : damages) {
        if (!damage.leavesNothing) continue;
        SCOPED_TRACE(damage.name);
        const auto readWithout = [&](const char* path) {
            damage.apply(machine.folder(), path);
            auto readings = readTwice(machine.root());
            machine.restore(path);
            return readings;
        };
        const auto withoutStat = readWithout("proc/stat");
        EXPECT_EQ(withoutStat.cpu, CPUUsage{});
        EXPECT_GT(withoutStat.memory.memTotalGB, 0);
        const auto withoutMemory = readWithout("proc/meminfo");
        EXPECT_EQ(withoutMemory.memory, MemoryInfo{});
        EXPECT_EQ(withoutMemory.cpu.perCore.size(), 16U);
        EXPECT_FALSE(readWithout("proc/loadavg").load);
        EXPECT_EQ(readWithout("proc/net/dev").network, NetworkTotals{});
        EXPECT_EQ(readWithout("proc/diskstats").disks, DiskIOTotals{});
        EXPECT_TRUE(readWithout("proc/self/mountinfo").volumes.empty());
        // The other card sleeps and is not asked in place of this one.
        EXPECT_EQ(readWithout("sys/class/drm/card1/device/gpu_busy_percent").gpu, std::nullopt);
        // An interface of unknown flags is not known to be up.
        EXPECT_EQ(readWithout("sys/class/net/enp5s0/flags").network, NetworkTotals{});
    }
}

TEST(BadInput, OfAMissingRootGivesTheNeutralValues) {
    const TemporaryFolder folder;
    expectNothing(readTwice(folder.path("nowhere")));
}

TEST(BadInput, ThatMendsItselfIsReadAgain) {
    const RecordedMachine machine("vm-empty");
    ManualClock clock;
    ManualDispatcher dispatcher(clock);
    Machine running({.root = machine.root()}, clock, dispatcher);
    const auto readers = running.readers();
    const auto total = readers.memoryUsage().memTotalGB;
    ASSERT_GT(total, 0);
    const auto text = std::string(24, ' ');
    machine.folder().write("proc/meminfo", text);
    EXPECT_EQ(readers.memoryUsage(), MemoryInfo{});
    machine.folder().write("proc/meminfo",
                           "MemTotal: 1048576 kB\nMemFree: 524288 kB\nMemAvailable: 524288 kB\n");
    EXPECT_EQ(readers.memoryUsage().memTotalGB, 1);
    EXPECT_EQ(readers.memoryUsage().memPercent, 50);
}

} // namespace tarvo
