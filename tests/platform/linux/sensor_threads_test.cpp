// The readings of a refresh and the full list of temperatures on two threads, over one controller.

#include "platform/linux/virtual_smc.h"
#include "sensors/sensor_monitor.h"
#include "support/manual_clock.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace tarvo::linux_platform {
namespace {

constexpr int rounds = 300;

/// A monitor over the controller of a recorded machine.
class SensorThreads : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        smc =
            std::make_shared<VirtualSMC>(Root(std::string(TARVO_TEST_DATA "/") + GetParam()), clock, nullptr);
        csmc_use_client(smc);
        monitor = std::make_unique<SensorMonitor>();
        ASSERT_TRUE(monitor->opened());
        expectedReadings = monitor->read();
        expectedList = monitor->readAllTemperatures();
        ASSERT_TRUE(expectedReadings.cpuTempCelsius.has_value());
        ASSERT_GE(expectedList.size(), 2U);
    }
    void TearDown() override {
        monitor.reset();
        csmc_use_client(nullptr);
    }

    int wrongReadings() const {
        int wrong = 0;
        for (int round = 0; round < rounds; ++round)
            wrong += monitor->read() == expectedReadings ? 0 : 1;
        return wrong;
    }
    int wrongLists() const {
        int wrong = 0;
        for (int round = 0; round < rounds; ++round)
            wrong += monitor->readAllTemperatures() == expectedList ? 0 : 1;
        return wrong;
    }
    int unknownNames() const {
        int unknown = 0;
        for (int round = 0; round < rounds; ++round) {
            for (const auto& reading : expectedList)
                unknown += smc->sensorName(reading.key) ? 0 : 1;
        }
        return unknown;
    }

    ManualClock clock;
    std::shared_ptr<VirtualSMC> smc;
    std::unique_ptr<SensorMonitor> monitor;
    SensorReadings expectedReadings;
    std::vector<SensorReading> expectedList;
};

TEST_P(SensorThreads, NeitherDisturbsTheOther) {
    int inReadings = -1;
    int inLists = -1;
    std::thread refreshes([&] { inReadings = wrongReadings(); });
    std::thread lists([&] { inLists = wrongLists(); });
    const int inNames = unknownNames();
    refreshes.join();
    lists.join();
    EXPECT_EQ(inReadings, 0);
    EXPECT_EQ(inLists, 0);
    EXPECT_EQ(inNames, 0);
}

TEST_P(SensorThreads, TwoRefreshesAtOnceReadTheSame) {
    int inOne = -1;
    int inOther = -1;
    std::thread one([&] { inOne = wrongReadings(); });
    std::thread other([&] { inOther = wrongReadings(); });
    one.join();
    other.join();
    EXPECT_EQ(inOne, 0);
    EXPECT_EQ(inOther, 0);
}

// With a battery that discharges, with a card that sleeps, and with one temperature and a fan.
INSTANTIATE_TEST_SUITE_P(OfMachines, SensorThreads,
                         testing::Values("laptop-intel-hybrid", "desktop-amd-two-gpus", "raspberrypi5"));

} // namespace
} // namespace tarvo::linux_platform
