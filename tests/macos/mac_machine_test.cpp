#include "composition/machine.h"

#include "macos/fakes/controller.h"
#include "macos/mac_test.h"
#include "sensors/sensor_monitor.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"

#include <cstring>

namespace tarvo {
namespace {

using namespace fakes;
using testing::ElementsAre;

std::vector<unsigned char> sizeOfMemory(std::uint64_t bytes) {
    std::vector<unsigned char> value(sizeof bytes);
    std::memcpy(value.data(), &bytes, sizeof bytes);
    return value;
}

/// A laptop with everything that the C half reads.
class MacMachineTest : public MacTest {
protected:
    MacMachineTest() {
        fakes::mach().cores = {{100, 50, 850, 0}, {0, 0, 1000, 0}};
        fakes::mach().pages =
            Pages{.free = 10, .active = 65536, .inactive = 20, .wired = 65536, .compressor = 0};
        fakes::mach().systemValues["hw.memsize"] = sizeOfMemory(std::uint64_t{8} << 30);
        fakes::mach().loads = {1.5, 1.25, 1};
        fakes::interfaces().entries = {
            {.name = "en0", .counters = {{1000, 200}}},
            {.name = "en0", .family = Interface::Family::ipv4, .address = "192.0.2.7"}};
        powerSupply().sources = {dictionary({{"Current Capacity", int32(87)}})};
        const auto performance = dictionary({{"Device Utilization %", int64(37)}});
        const auto bytes = dictionary({{"Bytes (Read)", int64(4096)}, {"Bytes (Write)", int64(512)}});
        ioKit().services = {{"AppleSMC", dictionary({})},
                            {"IOAccelerator", dictionary({{"PerformanceStatistics", performance}})},
                            {"IOBlockStorageDriver", dictionary({{"Statistics", bytes}})},
                            {"AppleSmartBattery", dictionary({{"CycleCount", int64(312)}})}};
        ioKit().answer = [this](const StructCall& call, unsigned char* output) {
            return controller.answer(call, output);
        };
        controller.keys = {{"#KEY", "ui32", {0, 0, 0, 2}}, {"Tp01", "sp78", {0x2C, 0x00}}};
    }

    Controller controller;
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
};

TEST_F(MacMachineTest, AnswersEveryReading) {
    Machine machine({}, clock, dispatcher);
    const auto readers = machine.readers();
    readers.cpuUsage();
    fakes::mach().cores = {{130, 60, 860, 0}, {25, 0, 1075, 0}};
    EXPECT_THAT(readers.cpuUsage().perCore, ElementsAre(80, 25));
    EXPECT_EQ(readers.memoryUsage().memPercent, 25);
    EXPECT_EQ(readers.loadAverages()->one, 1.5);
    EXPECT_EQ(readers.networkTotals().inBytes, 1000U);
    EXPECT_EQ(readers.localIPAddress(), "192.0.2.7");
    EXPECT_EQ(readers.diskIOTotals().read, 4096U);
    EXPECT_EQ(readers.gpuUtilizationPercent(), 37);
    EXPECT_EQ(readers.batteryInfo()->percentage, 87);
    EXPECT_EQ(readers.batteryInfo()->cycleCount, 312);
    EXPECT_EQ(readers.sensorReadings().cpuTempCelsius, 44);
    EXPECT_EQ(readers.diskSpace()->totalGB, 500);
    EXPECT_EQ(readers.currentSSID(), "Home");
    EXPECT_EQ(machine.sensors()->readAllTemperatures().size(), 1U);
}

TEST_F(MacMachineTest, ClosesTheControllerWhenItGoes) {
    {
        const Machine machine({}, clock, dispatcher);
        EXPECT_EQ(ledger().held.count("connection"), 1U);
    }
    EXPECT_EQ(ledger().held.count("connection"), 0U);
}

TEST_F(MacMachineTest, OpensNoControllerWhenSensorsAreNotRead) {
    Machine machine({.readsSensors = false}, clock, dispatcher);
    EXPECT_FALSE(machine.readers().sensorReadings);
    EXPECT_EQ(taken("connection"), 0);
}

TEST_F(MacMachineTest, EndsAProcessByItsNumber) {
    Machine machine({}, clock, dispatcher);
    EXPECT_TRUE(machine.processControl().terminate(412));
    EXPECT_THAT(processes().signals, ElementsAre(testing::Pair(412, 15)));
}

} // namespace
} // namespace tarvo
