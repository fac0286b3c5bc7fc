#include "platform/linux/sensor_input.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

/// A clock that moves by itself at each look, as it does while a slow device is read.
class RunningClock : public Clock {
public:
    WallTime wallNow() const override { return {}; }
    SteadyTime steadyNow() const override {
        now_ += step;
        return now_;
    }
    std::chrono::milliseconds step{1};

private:
    mutable SteadyTime now_{std::chrono::hours(1)};
};

class SensorInputTest : public testing::Test {
protected:
    void set(const char* text) { folder.write("temp1_input", text); }

    TemporaryFolder folder;
    RunningClock clock;
};

using SensorInputReading = SensorInputTest;

TEST_F(SensorInputReading, IsScaled) {
    set("45250\n");
    SensorInput reading(clock, openSensorFolder(folder.path().string()), "temp1_input", 0.001);
    EXPECT_DOUBLE_EQ(reading.read().value(), 45.25);
    set("-8000\n");
    EXPECT_DOUBLE_EQ(reading.read().value(), -8);
    set("");
    EXPECT_EQ(reading.read(), std::nullopt);
}

TEST_F(SensorInputReading, OfASuspendedDeviceIsAbsentAndNotTaken) {
    folder.write("power/runtime_status", "suspended\n");
    folder.makeFolder("temp1_input");
    SensorInput reading(clock, openSensorFolder(folder.path().string()), "temp1_input", 0.001,
                        "power/runtime_status");
    EXPECT_EQ(reading.read(), std::nullopt);
    folder.remove("temp1_input");
    set("45000\n");
    for (const char* asleep : {"suspended\n", "suspending\n"}) {
        folder.write("power/runtime_status", asleep);
        EXPECT_EQ(reading.read(), std::nullopt);
    }
    for (const char* awake : {"active\n", "resuming\n", "unsupported\n"}) {
        folder.write("power/runtime_status", awake);
        EXPECT_EQ(reading.read(), 45.0) << awake;
    }
}

TEST_F(SensorInputReading, OfADeviceWithoutPowerManagementIsTaken) {
    set("45000\n");
    SensorInput reading(clock, openSensorFolder(folder.path().string()), "temp1_input", 0.001,
                        "power/runtime_status");
    EXPECT_EQ(reading.read(), 45.0);
}

TEST_F(SensorInputReading, OfASlowDeviceIsServedForAWhile) {
    SensorInput reading(clock, openSensorFolder(folder.path().string()), "temp1_input", 0.001);
    clock.step = std::chrono::milliseconds(60);
    set("40000\n");
    EXPECT_EQ(reading.read(), 40.0);
    set("41000\n");
    EXPECT_EQ(reading.read(), 41.0);
    set("42000\n");
    EXPECT_EQ(reading.read(), 41.0) << "two slow readings were enough";
    clock.step = std::chrono::seconds(10);
    EXPECT_EQ(reading.read(), 42.0);
}

} // namespace
} // namespace tarvo::linux_platform
