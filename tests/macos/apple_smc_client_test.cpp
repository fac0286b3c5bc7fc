#include "platform/macos/apple_smc_client.h"

#include "macos/fakes/controller.h"
#include "macos/mac_test.h"
#include "sensors/sensor_monitor.h"
#include "sensors/smc.h"

#include <algorithm>
#include <memory>

namespace tarvo {
namespace {

using namespace fakes;
using macos_platform::AppleSMCClient;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AppleSMCClientTest : public MacTest {
protected:
    AppleSMCClientTest() {
        ioKit().services = {{"AppleSMC", dictionary({})}};
        ioKit().answer = [this](const StructCall& call, unsigned char* output) {
            return controller.answer(call, output);
        };
        csmc_use_client(std::make_shared<AppleSMCClient>());
    }
    ~AppleSMCClientTest() override {
        csmc_close();
        csmc_use_client(nullptr);
    }

    Controller controller;
};

/// The offsets at which the request is not zero.
std::vector<std::size_t> setBytes(const StructCall& call) {
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < call.input.size(); ++i) {
        if (call.input[i] != 0) offsets.push_back(i);
    }
    return offsets;
}

TEST_F(AppleSMCClientTest, OpensAUserClientOfTypeZeroAndReleasesTheService) {
    EXPECT_EQ(csmc_open(), 0);
    EXPECT_THAT(ioKit().openedTypes, ElementsAre(0));
    EXPECT_EQ(taken("service"), 1);
    EXPECT_EQ(ledger().held.count("service"), 0U);
    csmc_close();
    EXPECT_EQ(ledger().held.count("connection"), 0U);
}

TEST_F(AppleSMCClientTest, AMachineWithoutTheServiceHasNone) {
    ioKit().services.clear();
    EXPECT_EQ(csmc_open(), -1);
    ioKit().matchingFails = true;
    EXPECT_EQ(csmc_open(), -1);
    EXPECT_THAT(ioKit().openedTypes, IsEmpty());
}

TEST_F(AppleSMCClientTest, AServiceThatCannotBeOpenedIsReleasedToo) {
    ioKit().openFailure = static_cast<std::int32_t>(0xE00002C1);
    EXPECT_EQ(csmc_open(), -2);
    EXPECT_EQ(taken("service"), 1);
    EXPECT_EQ(csmc_key_count(), csmcNoKeyCount);
    EXPECT_THAT(ioKit().calls, IsEmpty());
}

TEST_F(AppleSMCClientTest, AKeyIsReadInTwoRequestsOf80Bytes) {
    controller.keys = {{"TC0P", "sp78", {0x2A, 0x80}}};
    ASSERT_EQ(csmc_open(), 0);
    const auto value = csmc_read_key("TC0P");
    EXPECT_EQ(value.success, 1);
    EXPECT_STREQ(value.dataType, "sp78");
    EXPECT_EQ(value.dataSize, 2U);
    EXPECT_EQ(value.bytes[0], 0x2A);
    EXPECT_EQ(value.bytes[1], 0x80);
    EXPECT_EQ(value.bytes[2], 0);

    ASSERT_THAT(ioKit().calls, SizeIs(2));
    for (const auto& call : ioKit().calls) {
        EXPECT_EQ(call.selector, 2U);
        EXPECT_EQ(call.input.size(), 80U);
        EXPECT_EQ(call.outputSize, 80U);
        EXPECT_TRUE(call.outputWasZero);
        EXPECT_EQ(Controller::numberAt(call, 0), Controller::code("TC0P"));
    }
    EXPECT_EQ(ioKit().calls[0].input[42], 9);
    EXPECT_THAT(setBytes(ioKit().calls[0]), ElementsAre(0, 1, 2, 3, 42));
    EXPECT_EQ(ioKit().calls[1].input[42], 5);
    EXPECT_EQ(Controller::numberAt(ioKit().calls[1], 28), 2U);
    EXPECT_THAT(setBytes(ioKit().calls[1]), ElementsAre(0, 1, 2, 3, 28, 42));
}

TEST_F(AppleSMCClientTest, AKeyIsNamedByItsIndexWhateverTheResultSays) {
    controller.keys = {{"#KEY", "ui32", {0, 0, 0, 2}}, {"FNum", "ui8 ", {1}}};
    controller.result = 1;
    ASSERT_EQ(csmc_open(), 0);
    char name[5] = "";
    EXPECT_EQ(csmc_key_at_index(1, name), 1);
    EXPECT_STREQ(name, "FNum");
    EXPECT_EQ(ioKit().calls.at(0).input[42], 8);
    EXPECT_THAT(setBytes(ioKit().calls[0]), ElementsAre(42, 44));
    EXPECT_EQ(csmc_key_at_index(2, name), 0);
}

TEST_F(AppleSMCClientTest, AValueMayFillAllOf32BytesAndNoMore) {
    std::vector<unsigned char> bytes(32);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i + 1);
    controller.keys = {{"Tall", "ch8*", bytes}, {"Huge", "ch8*", bytes, 33}};
    ASSERT_EQ(csmc_open(), 0);
    const auto value = csmc_read_key("Tall");
    EXPECT_EQ(value.dataSize, 32U);
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), value.bytes));
    EXPECT_EQ(csmc_read_key("Huge").success, 0);
}

TEST_F(AppleSMCClientTest, ARequestThatFailsIsNoValue) {
    controller.keys = {{"#KEY", "ui32", {0, 0, 0, 1}}};
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_EQ(csmc_key_count(), 1U);
    ioKit().answer = nullptr;
    EXPECT_EQ(csmc_key_count(), csmcNoKeyCount);
    char name[5];
    EXPECT_EQ(csmc_key_at_index(0, name), 0);
}

TEST_F(AppleSMCClientTest, NothingReachesTheControllerOnceItIsClosed) {
    controller.keys = {{"#KEY", "ui32", {0, 0, 0, 1}}};
    ASSERT_EQ(csmc_open(), 0);
    csmc_close();
    EXPECT_EQ(csmc_read_key("#KEY").success, 0);
    EXPECT_THAT(ioKit().calls, IsEmpty());
}

TEST_F(AppleSMCClientTest, TheSensorMonitorWorksOnIt) {
    controller.keys = {{"#KEY", "ui32", {0, 0, 0, 5}},
                       {"FNum", "ui8 ", {1}},
                       {"F0Ac", "fpe2", {0x12, 0xC0}},
                       {"Tp01", "flt ", {0, 0, 0x30, 0x42}},
                       {"PSTR", "sp78", {0x09, 0x80}}};
    const SensorMonitor monitor;
    const auto readings = monitor.read();
    EXPECT_EQ(readings.cpuTempCelsius, 44);
    EXPECT_THAT(readings.fanRPMs, ElementsAre(1200));
    EXPECT_EQ(readings.powerWatts, 9.5);
    EXPECT_EQ(taken("connection"), 1);
}

} // namespace
} // namespace tarvo
