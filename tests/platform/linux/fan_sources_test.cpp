#include "platform/linux/fan_sources.h"

#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

HwmonInput fan(int index, std::string label = {}) {
    return {HwmonKind::fan, index, fmt::format("fan{}_input", index), std::move(label), false};
}

std::vector<std::string> described(const std::vector<FanSource>& fans) {
    std::vector<std::string> texts;
    for (const auto& source : fans)
        texts.push_back(source.name.chip + " " + source.attribute);
    return texts;
}

TEST(FanSources, FansOfCardsComeLast) {
    const HwmonChip card{"amdgpu", "", "", {fan(1)}};
    const HwmonChip board{"thinkpad", "", "", {fan(1), fan(2)}};
    const auto fans = fanSources({card, board});
    EXPECT_THAT(described(fans),
                testing::ElementsAre("thinkpad fan1_input", "thinkpad fan2_input", "amdgpu fan1_input"));
    EXPECT_TRUE(fans[2].isGPU);
    EXPECT_FALSE(fans[0].isGPU);
}

TEST(FanSources, HeadersWithoutFanAreLeftOutAndFansAtRestCount) {
    const TemporaryFolder folder;
    HwmonChip board{"it8620", "", folder.path().string(), {fan(1), fan(2), fan(3, "Pump")}};
    folder.write("fan1_input", "0\n");
    folder.write("fan2_input", "731\n");
    folder.write("fan3_input", "0\n");
    EXPECT_THAT(described(fanSources({board})),
                testing::ElementsAre("it8620 fan2_input", "it8620 fan3_input"));
    board.name = "thinkpad";
    EXPECT_EQ(fanSources({board}).size(), 3U);
}

TEST(FanSources, FaultyOnesAreLeftOut) {
    HwmonChip board{"dell_smm", "", "", {fan(1), {HwmonKind::temperature, 1, "temp1_input", "", false}}};
    board.inputs[0].hasFault = true;
    EXPECT_TRUE(fanSources({board}).empty());
}

} // namespace
} // namespace tarvo::linux_platform
