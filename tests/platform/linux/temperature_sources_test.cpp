#include "platform/linux/temperature_sources.h"

#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;

HwmonInput temperature(int index, std::string label = {}) {
    return {HwmonKind::temperature, index, fmt::format("temp{}_input", index), std::move(label), false};
}

std::vector<std::string> described(const std::vector<TemperatureSource>& sources) {
    std::vector<std::string> texts;
    for (const auto& source : sources) {
        texts.push_back(fmt::format("{} {} {}", keyPrefix(source.group), source.name.chip,
                                    source.name.label.empty() ? source.attribute : source.name.label));
    }
    return texts;
}

TEST(TemperatureSources, CoresComeByProcessorNumberAndNotByTheChipsOrder) {
    const HwmonChip first{"coretemp", "/sys/devices/platform/coretemp.0", "", {temperature(2, "Core 0")}};
    const HwmonChip second{"coretemp",
                           "/sys/devices/platform/coretemp.1",
                           "",
                           {temperature(2, "Core 0"), temperature(3, "Core 1")}};
    const std::vector<CPUCore> cores{{0, 1, 1, false}, {1, 0, 0, false}, {2, 1, 0, true}, {3, 0, 0, false}};
    const auto sources = temperatureSources({first, second}, {}, cores);
    EXPECT_THAT(described(sources),
                ElementsAre("Tp coretemp Core 1", "Tp coretemp Core 0", "Te coretemp Core 0"));
}

TEST(TemperatureSources, ACoreThatTheTopologyDoesNotKnowComesLastAmongTheCores) {
    const HwmonChip chip{"coretemp",
                         "/sys/devices/platform/coretemp.0",
                         "",
                         {temperature(2, "Core 7"), temperature(3, "Core x"), temperature(4, "Core 1")}};
    EXPECT_THAT(described(temperatureSources({chip}, {}, {{0, 0, 1, false}})),
                ElementsAre("Tp coretemp Core 1", "Tp coretemp Core 7", "Tp coretemp Core x"));
}

TEST(TemperatureSources, FaultyOnesAreLeftOut) {
    HwmonChip chip{"cpu_thermal", "", "", {temperature(1), temperature(2)}};
    chip.inputs[0].hasFault = true;
    EXPECT_THAT(described(temperatureSources({chip}, {}, {})), ElementsAre("Tp cpu_thermal temp2_input"));
}

TEST(TemperatureSources, FansAndAveragesAreNotTemperatures) {
    const HwmonChip chip{"cpu_thermal",
                         "",
                         "",
                         {{HwmonKind::fan, 1, "fan1_input", "", false},
                          {HwmonKind::temperature, 1, "temp1_average", "", false}}};
    EXPECT_TRUE(temperatureSources({chip}, {}, {}).empty());
}

TEST(TemperatureSources, UnconnectedPinsOfABoardsControllerAreLeftOut) {
    const TemporaryFolder folder;
    HwmonChip chip{"nct6798", "", folder.path().string(), {}};
    const char* const readings[] = {"119999\n", "120000\n", "127000\n", "-1\n", "0\n"};
    for (int i = 0; i < 5; ++i) {
        chip.inputs.push_back(temperature(i + 1));
        folder.write(chip.inputs.back().attribute, readings[i]);
    }
    chip.inputs.push_back(temperature(6));
    EXPECT_THAT(described(temperatureSources({chip}, {}, {})),
                ElementsAre("TV nct6798 temp1_input", "TV nct6798 temp5_input", "TV nct6798 temp6_input"));
    chip.name = "nvme";
    EXPECT_EQ(temperatureSources({chip}, {}, {}).size(), 6U) << "other chips are taken at their word";
}

TEST(TemperatureSources, TheOrderIsCoresThenCardsThenTheRest) {
    const HwmonChip acpi{"acpitz", "", "", {temperature(1)}};
    const HwmonChip card{"amdgpu", "", "", {temperature(1, "edge"), temperature(2, "junction")}};
    const HwmonChip cpu{"k10temp", "", "", {temperature(1, "Tctl"), temperature(3, "Tccd1")}};
    const ThermalZone little{"little-thermal", 0, "/zone0"};
    const ThermalZone gpu{"gpu-thermal", 1, "/zone1"};
    const auto sources = temperatureSources({acpi, card, cpu}, {gpu, little}, {});
    EXPECT_THAT(described(sources),
                ElementsAre("Tp k10temp Tccd1", "Te little-thermal temp", "Tg amdgpu edge",
                            "Tg gpu-thermal temp", "TA acpitz temp1_input", "TG amdgpu junction",
                            "TC k10temp Tctl"));
    EXPECT_TRUE(sources[2].isGPU);
    EXPECT_FALSE(sources[3].isGPU);
}

TEST(TemperatureSources, ThePackageZoneIsLeftOutWhereTheCoresAreRead) {
    const ThermalZone package{"x86_pkg_temp", 0, "/zone0"};
    EXPECT_EQ(temperatureSources({}, {package}, {}).size(), 1U);
    EXPECT_TRUE(temperatureSources({{"coretemp", "", "", {}}}, {package}, {}).empty());
}

} // namespace
} // namespace tarvo::linux_platform
