// The sensors of recorded machines, read through the whole chain from files to readings.

#include "platform/linux/virtual_smc.h"
#include "sensors/sensor_monitor.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A sensor monitor over a tree of files.
class SensorsOf {
public:
    explicit SensorsOf(const std::string& root, std::shared_ptr<NVML> nvml = nullptr)
        : smc_(std::make_shared<VirtualSMC>(Root(root), clock_, std::move(nvml))) {
        csmc_use_client(smc_);
        monitor_.emplace();
    }
    ~SensorsOf() {
        monitor_.reset();
        csmc_use_client(nullptr);
    }
    SensorsOf(const SensorsOf&) = delete;
    SensorsOf& operator=(const SensorsOf&) = delete;

    const SensorMonitor& monitor() const { return *monitor_; }
    SensorReadings read() const { return monitor_->read(); }
    /// "Tp00 coretemp/Core 0 56" for every temperature.
    std::vector<std::string> list() const {
        std::vector<std::string> rows;
        for (const auto& reading : monitor_->readAllTemperatures()) {
            const auto name = smc_->sensorName(reading.key).value();
            rows.push_back(fmt::format("{} {}/{} {}", reading.key, name.chip, name.label, reading.celsius));
        }
        return rows;
    }

private:
    ManualClock clock_;
    std::shared_ptr<VirtualSMC> smc_;
    std::optional<SensorMonitor> monitor_;
};

std::string machine(const char* name) {
    return std::string(TARVO_TEST_DATA "/") + name;
}

TEST(MachineSensors, OfAHybridLaptop) {
    const SensorsOf sensors(machine("laptop-intel-hybrid"));
    const auto readings = sensors.read();
    // Two performance cores at 56 and 58, eight efficiency cores at 51, 52, 53, 51, ...
    EXPECT_DOUBLE_EQ(readings.cpuTempCelsius.value(), (56 + 58 + 51 * 3 + 52 * 3 + 53 * 2) / 10.0);
    EXPECT_EQ(readings.gpuTempCelsius, std::nullopt);
    EXPECT_TRUE(readings.hasFan);
    EXPECT_THAT(readings.fanRPMs, ElementsAre(2350.0));
    EXPECT_FLOAT_EQ(static_cast<float>(readings.powerWatts.value()), 9.12F);
    EXPECT_THAT(sensors.monitor().cpuKeys(),
                ElementsAre("Tp00", "Tp01", "Te00", "Te01", "Te02", "Te03", "Te04", "Te05", "Te06", "Te07"));
    EXPECT_THAT(
        sensors.list(),
        testing::IsSupersetOf({"Tp00 coretemp/Core 0 56", "Tp01 coretemp/Core 4 58",
                               "Te00 coretemp/Core 8 51", "TC00 coretemp/Package id 0 57", "TA00 acpitz/ 48",
                               "TV00 thinkpad/CPU 57", "TX00 INT3400 Thermal/ 20", "TX01 TCPU/ 57"}));
}

TEST(MachineSensors, ADesktopWithTwoCardsOfWhichOneSleeps) {
    const SensorsOf sensors(machine("desktop-amd-two-gpus"));
    const auto readings = sensors.read();
    EXPECT_DOUBLE_EQ(readings.cpuTempCelsius.value(), 53);
    EXPECT_DOUBLE_EQ(readings.gpuTempCelsius.value(), 47);
    EXPECT_THAT(sensors.monitor().gpuKeys(), ElementsAre("Tg00", "Tg01"));
    // Unused headers are left out, a labelled pump at rest is not, the card's fan is last.
    EXPECT_THAT(readings.fanRPMs, ElementsAre(1210.0, 654.0, 0.0, 0.0));
    EXPECT_EQ(readings.powerWatts, std::nullopt) << "a card's power is not the machine's";
    EXPECT_THAT(sensors.list(),
                ElementsAre("TC00 k10temp/Tctl 62.5", "TG00 amdgpu/junction 53", "TG01 amdgpu/mem 66",
                            "TM00 spd5118/ 41.25", "TN00 nvme/Composite 44.849998474121094",
                            "TV00 nct6798/SYSTIN 34", "TV01 nct6798/CPUTIN 38.5", "Tg00 amdgpu/edge 47",
                            "Tp00 k10temp/Tccd1 54.25", "Tp01 k10temp/Tccd2 51.75"));
}

TEST(MachineSensors, ALaptopOnMainsPowerTellsNoPower) {
    const auto readings = SensorsOf(machine("laptop-amd-2bat")).read();
    EXPECT_DOUBLE_EQ(readings.cpuTempCelsius.value(), 61.125);
    EXPECT_DOUBLE_EQ(readings.gpuTempCelsius.value(), 52);
    EXPECT_THAT(readings.fanRPMs, ElementsAre(0.0, 3120.0));
    EXPECT_EQ(readings.powerWatts, std::nullopt);
}

TEST(MachineSensors, AServerWithTwoPackages) {
    const SensorsOf sensors(machine("server-2socket"));
    EXPECT_DOUBLE_EQ(sensors.read().cpuTempCelsius.value(), 49);
    EXPECT_DOUBLE_EQ(sensors.read().powerWatts.value(), 312.5);
    EXPECT_FALSE(sensors.read().hasFan);
    EXPECT_THAT(sensors.list(), ElementsAre("TC00 coretemp/Package id 0 51", "TC01 coretemp/Package id 1 54",
                                            "Tp00 coretemp/Core 0 47", "Tp01 coretemp/Core 1 48",
                                            "Tp02 coretemp/Core 0 50", "Tp03 coretemp/Core 1 51"));
}

TEST(MachineSensors, ASingleBoardComputer) {
    const SensorsOf sensors(machine("raspberrypi5"));
    EXPECT_THAT(sensors.list(),
                ElementsAre("TX00 rp1_adc/ 45.119998931884766", "Tp00 cpu_thermal/ 48.849998474121094"));
    EXPECT_FLOAT_EQ(static_cast<float>(sensors.read().cpuTempCelsius.value()), 48.85F);
    EXPECT_THAT(sensors.read().fanRPMs, ElementsAre(2834.0));
    EXPECT_EQ(sensors.read().powerWatts, std::nullopt);
}

TEST(MachineSensors, ACardOfNVIDIAIsReadThroughItsLibrary) {
    const auto root = machine("desktop-nvidia-superio");
    const auto readings = SensorsOf(root, std::make_shared<NVML>(TARVO_NVML_STUB)).read();
    EXPECT_EQ(readings.gpuTempCelsius, 58.0);
    EXPECT_DOUBLE_EQ(readings.cpuTempCelsius.value(), 41.75);
    EXPECT_THAT(readings.fanRPMs, ElementsAre(931.0));
    EXPECT_EQ(SensorsOf(root).read().gpuTempCelsius, std::nullopt) << "without the library there is no key";
    EXPECT_EQ(SensorsOf(root, std::make_shared<NVML>("libtarvo-none.so")).read().gpuTempCelsius,
              std::nullopt);
}

TEST(MachineSensors, AMachineWithNothingHasNothing) {
    for (const char* name : {"vm-empty", "container"}) {
        const SensorsOf sensors(machine(name));
        EXPECT_FALSE(sensors.monitor().opened()) << name;
        EXPECT_EQ(sensors.read(), SensorReadings{}) << name;
        EXPECT_THAT(sensors.list(), IsEmpty()) << name;
    }
}

TEST(MachineSensors, OfTwentyFourCoresTheFirstSixteenKeysAreRead) {
    const TemporaryFolder folder;
    folder.write("sys/devices/cpu_core/cpus", "0-7\n");
    folder.write("sys/devices/cpu_atom/cpus", "8-23\n");
    const std::string chip = "sys/devices/platform/coretemp.0/hwmon/hwmon0/";
    folder.write(chip + "name", "coretemp\n");
    folder.link(chip + "device", "../..");
    folder.link("sys/class/hwmon/hwmon0", "../../devices/platform/coretemp.0/hwmon/hwmon0");
    for (int cpu = 0; cpu < 24; ++cpu) {
        const auto topology = fmt::format("sys/devices/system/cpu/cpu{}/topology/", cpu);
        folder.write(topology + "physical_package_id", "0\n");
        folder.write(topology + "core_id", fmt::format("{}\n", 23 - cpu));
        folder.write(fmt::format("{}temp{}_label", chip, cpu + 2), fmt::format("Core {}\n", 23 - cpu));
        // Only the keys past the caps are hot.
        folder.write(fmt::format("{}temp{}_input", chip, cpu + 2), cpu < 16 ? "40000\n" : "90000\n");
    }
    const SensorsOf sensors(folder.path().string());
    EXPECT_THAT(sensors.monitor().cpuKeys(),
                ElementsAre("Tp00", "Tp01", "Tp02", "Tp03", "Tp04", "Tp05", "Tp06", "Tp07", "Te00", "Te01",
                            "Te02", "Te03", "Te04", "Te05", "Te06", "Te07"));
    EXPECT_EQ(sensors.read().cpuTempCelsius, 40.0);
    EXPECT_EQ(sensors.list().size(), 24U);
}

TEST(MachineSensors, AVanishedChipIsAbsentAndANewOneWaitsForTheNextOpen) {
    const TemporaryFolder folder;
    folder.write("sys/class/hwmon/hwmon0/name", "cpu_thermal\n");
    folder.write("sys/class/hwmon/hwmon0/temp1_input", "48850\n");
    const SensorsOf sensors(folder.path().string());
    EXPECT_TRUE(sensors.read().cpuTempCelsius.has_value());
    folder.write("sys/class/hwmon/hwmon1/name", "nvme\n");
    folder.write("sys/class/hwmon/hwmon1/temp1_input", "40000\n");
    EXPECT_EQ(sensors.list().size(), 1U);
    folder.write("sys/class/hwmon/hwmon0/temp1_input", "");
    EXPECT_EQ(sensors.read(), SensorReadings{});
    EXPECT_EQ(SensorsOf(folder.path().string()).list().size(), 1U);
}

TEST(MachineSensors, AllFansOfAMachineWithTwelveAreCountedAndTenAreRead) {
    const TemporaryFolder folder;
    folder.write("sys/class/hwmon/hwmon0/name", "server\n");
    for (int fan = 1; fan <= 12; ++fan)
        folder.write(fmt::format("sys/class/hwmon/hwmon0/fan{}_input", fan), fmt::format("{}\n", 1000 + fan));
    const SensorsOf sensors(folder.path().string());
    EXPECT_EQ(sensors.monitor().fanCount(), 12);
    EXPECT_EQ(sensors.read().fanRPMs.size(), 10U);
    EXPECT_EQ(sensors.read().fanRPMs.back(), 1010.0);
}

} // namespace
} // namespace tarvo::linux_platform
