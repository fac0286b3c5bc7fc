// What one refresh of the sensors costs beside reading the same files directly, on a generated machine: 16
// processor and 12 graphics temperatures, 3 fans, the power of a battery that discharges.

#include "platform/linux/virtual_smc.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/system_clock.h"
#include "sensors/sensor_monitor.h"
#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace tarvo;
using namespace tarvo::linux_platform;

constexpr int cores = 16;
constexpr int cards = 12;
constexpr int fans = 3;

/// The files of the machine, and of these the ones that a refresh reads.
class Machine {
public:
    Machine() {
        addChip("hwmon0", "coretemp");
        for (int core = 0; core < cores; ++core) {
            folder_.write(fmt::format("sys/class/hwmon/hwmon0/temp{}_label", core + 2),
                          fmt::format("Core {}\n", core));
            addRead(fmt::format("sys/class/hwmon/hwmon0/temp{}_input", core + 2),
                    fmt::format("{}\n", 40'000 + 500 * core));
        }
        for (int card = 1; card <= cards; ++card) {
            const auto chip = fmt::format("hwmon{}", card);
            addChip(chip, "amdgpu");
            addRead("sys/class/hwmon/" + chip + "/temp1_input", fmt::format("{}\n", 45'000 + 250 * card));
            addRead("sys/class/hwmon/" + chip + "/device/power/runtime_status", "active\n");
        }
        addChip("hwmon13", "thinkpad");
        for (int fan = 1; fan <= fans; ++fan)
            addRead(fmt::format("sys/class/hwmon/hwmon13/fan{}_input", fan), fmt::format("{}\n", 900 * fan));
        folder_.write("sys/class/power_supply/BAT0/type", "Battery\n");
        addRead("sys/class/power_supply/BAT0/status", "Discharging\n");
        addRead("sys/class/power_supply/BAT0/power_now", "9125000\n");
    }

    Root root() const { return Root(folder_.path().string()); }
    std::vector<std::string> readFiles() const {
        std::vector<std::string> paths;
        for (const auto& name : read_)
            paths.push_back(folder_.path(name));
        return paths;
    }

private:
    void addChip(const std::string& chip, const char* name) {
        folder_.write("sys/class/hwmon/" + chip + "/name", fmt::format("{}\n", name));
    }
    void addRead(const std::string& name, const std::string& text) {
        folder_.write(name, text);
        read_.push_back(name);
    }

    TemporaryFolder folder_;
    std::vector<std::string> read_;
};

/// Reads each file again from its beginning, and its number where it is one.
class Floor {
public:
    explicit Floor(const std::vector<std::string>& paths) {
        for (const auto& path : paths)
            files_.emplace_back(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    }
    long sum() {
        long total = 0;
        for (const auto& file : files_) {
            const auto length = ::pread(file.get(), text_.data(), text_.size(), 0);
            long value = 0;
            if (length > 0) std::from_chars(text_.data(), text_.data() + length, value);
            total += value;
        }
        return total;
    }
    std::size_t size() const { return files_.size(); }

private:
    std::vector<FileDescriptor> files_;
    std::array<char, 64> text_{};
};

void directly(benchmark::State& state) {
    const Machine machine;
    Floor floor(machine.readFiles());
    for (auto _ : state)
        benchmark::DoNotOptimize(floor.sum());
    state.counters["files"] = static_cast<double>(floor.size());
}
BENCHMARK(directly)->Unit(benchmark::kMicrosecond);

bool isWhole(const SensorMonitor& monitor, const SensorReadings& readings) {
    return monitor.cpuKeys().size() == cores && monitor.gpuKeys().size() == cards &&
           readings.fanRPMs.size() == fans && readings.cpuTempCelsius && readings.gpuTempCelsius &&
           readings.powerWatts;
}

void sensorMonitor(benchmark::State& state) {
    const Machine machine;
    const SystemClock clock;
    csmc_use_client(std::make_shared<VirtualSMC>(machine.root(), clock, nullptr));
    {
        const SensorMonitor monitor;
        if (!isWhole(monitor, monitor.read())) state.SkipWithError("not all sensors were found");
        for (auto _ : state)
            benchmark::DoNotOptimize(monitor.read());
    }
    csmc_use_client(nullptr);
}
BENCHMARK(sensorMonitor)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
