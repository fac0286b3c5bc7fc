#include "sensors/sensor_monitor.h"

#include "support/connected_smc.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// How often the bytes of the key were asked for.
long reads(const ScriptedSMC& smc, std::string_view name) {
    return std::count_if(smc.requests.begin(), smc.requests.end(), [name](const auto& request) {
        SMCRecord input{};
        std::memcpy(&input, request.input.data(), sizeof input);
        return input.data8 == 5 && input.key == ScriptedSMC::code(name);
    });
}

TEST(SensorMonitor, AMachineWithoutControllerHasNoReadings) {
    const ConnectedSMC smc;
    smc->service = 0;
    const SensorMonitor monitor;
    EXPECT_FALSE(monitor.opened());
    EXPECT_EQ(monitor.read(), SensorReadings{});
    EXPECT_THAT(monitor.readAllTemperatures(), IsEmpty());
    EXPECT_TRUE(smc->requests.empty());
}

TEST(SensorMonitor, AFailedOpenIsNeverRetriedNorClosed) {
    const ConnectedSMC smc;
    smc->openResult = 1;
    {
        const SensorMonitor monitor;
        smc->openResult = 0;
        EXPECT_EQ(monitor.read(), SensorReadings{});
    }
    EXPECT_EQ(smc->calls, (std::vector<std::string>{"find AppleSMC", "open 7 type 0", "release 7"}));
}

TEST(SensorMonitor, ClosesTheControllerWithItself) {
    const ConnectedSMC smc;
    { const SensorMonitor monitor; }
    EXPECT_EQ(smc->calls.back(), "close 41");
}

TEST(SensorMonitor, SortsTheKeysByTheirBeginningsInIndexOrder) {
    const ConnectedSMC smc;
    for (const char* key : {"FNum", "Tp05", "TC0P", "Te01", "Tg02", "TG00", "Tp01", "tp01", "Tg01", "Ts0P"}) {
        smc->addFloat(key, 40);
    }
    smc->countKeys();
    const SensorMonitor monitor;
    EXPECT_THAT(monitor.cpuKeys(), ElementsAre("Tp05", "Te01", "Tp01"));
    EXPECT_THAT(monitor.gpuKeys(), ElementsAre("Tg02", "Tg01"));
}

TEST(SensorMonitor, DiscoveryReadsNoTemperature) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 40);
    smc->addFloat("Tg01", 40);
    smc->countKeys();
    const SensorMonitor monitor;
    EXPECT_EQ(reads(*smc, "Tp01"), 0);
    EXPECT_EQ(reads(*smc, "Tg01"), 0);
}

TEST(SensorMonitor, AnEmptyKeyTableLeavesEverythingUnknown) {
    const ConnectedSMC smc;
    smc->add("#KEY", "ui16", {0, 3});
    smc->add("FNum", "ui8 ", {2});
    smc->addFloat("Tp01", 40);
    const SensorMonitor monitor;
    EXPECT_TRUE(monitor.opened());
    EXPECT_EQ(monitor.fanCount(), 0);
    EXPECT_THAT(monitor.cpuKeys(), IsEmpty());
    EXPECT_EQ(monitor.read(), SensorReadings{});
    EXPECT_THAT(monitor.readAllTemperatures(), IsEmpty());
}

TEST(SensorMonitor, AnIndexThatFailsIsSkipped) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 40);
    smc->addFloat("Tp02", 50);
    smc->countKeys();
    smc->callResult = [](const SMCRecord& input) { return input.data8 == 8 && input.data32 == 1 ? 1 : 0; };
    const SensorMonitor monitor;
    EXPECT_THAT(monitor.cpuKeys(), ElementsAre("Tp02"));
}

TEST(SensorMonitor, TheSeventeenthCPUKeyIsNeverRead) {
    const ConnectedSMC smc;
    for (int i = 0; i < 17; ++i)
        smc->addFloat(fmt::format("{}{:02}", i % 2 ? "Te" : "Tp", i), i < 16 ? 0.0F : 50.0F);
    smc->countKeys();
    const SensorMonitor monitor;
    EXPECT_EQ(monitor.cpuKeys().size(), 16U);
    EXPECT_EQ(monitor.read().cpuTempCelsius, std::nullopt);
    EXPECT_EQ(reads(*smc, "Te15"), 1);
    EXPECT_EQ(reads(*smc, "Tp16"), 0);
}

TEST(SensorMonitor, TheThirteenthGPUKeyIsNeverRead) {
    const ConnectedSMC smc;
    for (int i = 0; i < 13; ++i)
        smc->addFloat(fmt::format("Tg{:02}", i), static_cast<float>(30 + i));
    smc->countKeys();
    const SensorMonitor monitor;
    EXPECT_EQ(monitor.gpuKeys().size(), 12U);
    EXPECT_DOUBLE_EQ(monitor.read().gpuTempCelsius.value(), 35.5);
    EXPECT_EQ(reads(*smc, "Tg12"), 0);
}

TEST(SensorMonitor, TheTemperatureIsTheMeanOfThePlausibleKeys) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 40);
    smc->addFloat("Tp02", 0);
    smc->addFloat("Tp03", 130);
    smc->addFloat("Tp04", -5);
    smc->add("Te01", "sp78", {0x32, 0x00});
    smc->add("Te02", "si16", {0x32, 0x00});
    smc->addFloat("Te03", 129.75F);
    smc->countKeys();
    EXPECT_DOUBLE_EQ(SensorMonitor().read().cpuTempCelsius.value(), (40 + 50 + 129.75) / 3);
}

TEST(SensorMonitor, ImplausibleKeysAloneGiveNoTemperature) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 0.0F);
    smc->addFloat("Tp02", 131.0F);
    smc->addFloat("Tg01", std::numeric_limits<float>::quiet_NaN());
    smc->countKeys();
    const auto readings = SensorMonitor().read();
    EXPECT_EQ(readings.cpuTempCelsius, std::nullopt);
    EXPECT_EQ(readings.gpuTempCelsius, std::nullopt);
}

TEST(SensorMonitor, WithoutAFanCountThereIsNoFan) {
    const ConnectedSMC smc;
    smc->addFloat("F0Ac", 1200);
    smc->countKeys();
    const SensorMonitor monitor;
    EXPECT_EQ(monitor.fanCount(), 0);
    EXPECT_FALSE(monitor.read().hasFan);
    EXPECT_THAT(monitor.read().fanRPMs, IsEmpty());
}

TEST(SensorMonitor, AnUnreadableFanIsLeftOut) {
    const ConnectedSMC smc;
    smc->add("FNum", "ui8 ", {2});
    smc->add("F0Ac", "fpe2", {0x1C, 0x20});
    smc->addFloat("F1Ac", 900);
    smc->key("F1Ac").readResult = 0x84;
    smc->countKeys();
    const auto readings = SensorMonitor().read();
    EXPECT_TRUE(readings.hasFan);
    EXPECT_THAT(readings.fanRPMs, ElementsAre(1800.0));
}

TEST(SensorMonitor, AFanAtRestIsKept) {
    const ConnectedSMC smc;
    smc->add("FNum", "ui8 ", {1});
    smc->addFloat("F0Ac", 0);
    smc->countKeys();
    EXPECT_THAT(SensorMonitor().read().fanRPMs, ElementsAre(0.0));
}

TEST(SensorMonitor, FansFromTheEleventhOnHaveNoKey) {
    const ConnectedSMC smc;
    smc->add("FNum", "ui8 ", {12});
    for (int fan = 0; fan < 10; ++fan)
        smc->addFloat(fmt::format("F{}Ac", fan), static_cast<float>(1000 + fan));
    smc->countKeys();
    const SensorMonitor monitor;
    EXPECT_EQ(monitor.fanCount(), 12);
    EXPECT_EQ(monitor.read().fanRPMs.size(), 10U);
}

TEST(SensorMonitor, TheFanCountIsTruncatedAndABrokenOneIsNone) {
    const auto countFor = [](float value) {
        const ConnectedSMC smc;
        smc->addFloat("FNum", value);
        smc->countKeys();
        return SensorMonitor().fanCount();
    };
    EXPECT_EQ(countFor(2.9F), 2);
    EXPECT_EQ(countFor(std::numeric_limits<float>::infinity()), 0);
    EXPECT_EQ(countFor(1e30F), 0);
}

TEST(SensorMonitor, AnyPowerIsTaken) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 312.5F);
    smc->countKeys();
    EXPECT_EQ(SensorMonitor().read().powerWatts, 312.5);
}

TEST(SensorMonitor, WithoutThePowerKeyThereIsNoPower) {
    const ConnectedSMC smc;
    smc->add("PSTR", "{pwr", {1, 2, 3, 4});
    smc->countKeys();
    EXPECT_EQ(SensorMonitor().read().powerWatts, std::nullopt);
}

TEST(SensorMonitor, AKeyThatAppearsLaterIsNotPickedUp) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 40);
    smc->countKeys();
    const SensorMonitor monitor;
    smc->addFloat("Tp02", 80);
    smc->key("#KEY").bytes = ScriptedSMC::bigEndian32(3);
    EXPECT_EQ(monitor.read().cpuTempCelsius, 40.0);
    EXPECT_THAT(monitor.readAllTemperatures(),
                ElementsAre(SensorReading{"Tp01", 40}, SensorReading{"Tp02", 80}));
}

TEST(SensorMonitor, ARefreshAsksForNoMoreThanItFound) {
    const ConnectedSMC smc;
    for (int i = 0; i < 20; ++i)
        smc->addFloat(fmt::format("Tp{:02}", i), 40);
    for (int i = 0; i < 20; ++i)
        smc->addFloat(fmt::format("Tg{:02}", i), 40);
    smc->add("FNum", "ui8 ", {3});
    for (int fan = 0; fan < 3; ++fan)
        smc->addFloat(fmt::format("F{}Ac", fan), 1000);
    smc->addFloat("PSTR", 10);
    smc->countKeys();
    const SensorMonitor monitor;
    smc->requests.clear();
    monitor.read();
    EXPECT_EQ(smc->requests.size(), 2U * (16 + 12 + 3 + 1));
}

TEST(SensorMonitor, TheFullListHoldsEveryPlausibleTemperatureByKey) {
    const ConnectedSMC smc;
    smc->addFloat("Ts0P", 31);
    smc->addFloat("Tp01", 40);
    smc->addFloat("TC0P", 130);
    smc->addFloat("TB0T", 0);
    smc->addFloat("FNum", 50);
    smc->addFloat("tp01", 50);
    smc->addFloat("TA0P", 22.5F);
    smc->add("TX00", "si16", {0, 50});
    smc->countKeys();
    EXPECT_THAT(
        SensorMonitor().readAllTemperatures(),
        ElementsAre(SensorReading{"TA0P", 22.5}, SensorReading{"Tp01", 40}, SensorReading{"Ts0P", 31}));
}

} // namespace
} // namespace tarvo
