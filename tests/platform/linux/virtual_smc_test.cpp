#include "platform/linux/virtual_smc.h"

#include "platform/smc_record.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

class VirtualSMCTest : public testing::Test {
protected:
    void addChip() {
        folder.write("sys/class/hwmon/hwmon0/name", "cpu_thermal\n");
        folder.write("sys/class/hwmon/hwmon0/temp1_input", "48850\n");
    }
    bool open() {
        const auto service = smc.matchingService("AppleSMC");
        const bool opened = service != 0 && smc.open(service, 0, connection) == 0;
        smc.release(service);
        return opened;
    }
    std::int32_t ask(SMCConnection through, std::uint32_t selector, std::size_t inputSize,
                     std::size_t outputSize) {
        SMCRecord input{};
        input.data8 = static_cast<std::uint8_t>(SMCCommand::readKeyInfo);
        input.key = smcCode("Tp00");
        return smc.callStructMethod(through, selector, &input, inputSize, &output, outputSize);
    }

    TemporaryFolder folder;
    ManualClock clock;
    VirtualSMC smc{Root(folder.path().string()), clock, nullptr};
    SMCConnection connection = 0;
    SMCRecord output{};
};

using VirtualController = VirtualSMCTest;

TEST_F(VirtualController, OnAMachineWithoutSensorsIsNoService) {
    EXPECT_EQ(smc.matchingService("AppleSMC"), 0U);
}

TEST_F(VirtualController, IsFoundByItsClassOnly) {
    addChip();
    EXPECT_NE(smc.matchingService("AppleSMC"), 0U);
    EXPECT_EQ(smc.matchingService("IOAccelerator"), 0U);
}

TEST_F(VirtualController, AnswersTheOneSelectorWithWholeRecords) {
    addChip();
    ASSERT_TRUE(open());
    EXPECT_EQ(ask(connection, 2, 80, 80), 0);
    EXPECT_EQ(output.keyInfo.dataType, smcCode("flt "));
    EXPECT_NE(ask(connection, 5, 80, 80), 0);
    EXPECT_NE(ask(connection, 2, 79, 80), 0);
    EXPECT_NE(ask(connection, 2, 80, 40), 0);
    EXPECT_NE(ask(connection + 1, 2, 80, 80), 0);
}

TEST_F(VirtualController, AnswersNothingOnceClosed) {
    addChip();
    ASSERT_TRUE(open());
    smc.close(connection);
    EXPECT_NE(ask(connection, 2, 80, 80), 0);
    EXPECT_EQ(smc.sensorName("Tp00"), std::nullopt);
}

TEST_F(VirtualController, OpenNeedsAService) {
    EXPECT_NE(smc.open(0, 0, connection), 0);
    EXPECT_NE(smc.open(1, 0, connection), 0) << "not found before";
    EXPECT_EQ(connection, 0U);
}

TEST_F(VirtualController, ASecondOpenBuildsTheTableAnew) {
    addChip();
    ASSERT_TRUE(open());
    folder.write("sys/class/hwmon/hwmon1/name", "nvme\n");
    folder.write("sys/class/hwmon/hwmon1/temp1_input", "40000\n");
    folder.write("sys/class/hwmon/hwmon1/temp1_label", "Composite\n");
    EXPECT_EQ(smc.sensorName("TN00"), std::nullopt);
    const auto first = connection;
    ASSERT_TRUE(open());
    EXPECT_NE(connection, first);
    EXPECT_EQ(smc.sensorName("TN00"), (SensorName{"nvme", "Composite"}));
}

TEST_F(VirtualController, KnowsTheNamesOfItsSensors) {
    addChip();
    ASSERT_TRUE(open());
    EXPECT_EQ(smc.sensorName("Tp00"), (SensorName{"cpu_thermal", ""}));
    EXPECT_EQ(smc.sensorName("Tp01"), std::nullopt);
    EXPECT_EQ(smc.sensorName("Tp"), std::nullopt);
    EXPECT_EQ(smc.sensorName(""), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
