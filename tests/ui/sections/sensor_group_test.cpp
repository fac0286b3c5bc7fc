#include "ui/sections/sensor_group.h"

#include "support/memory_preference_store.h"

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

std::string outline(const std::vector<SensorGroup>& groups) {
    std::string text;
    for (const SensorGroup& group : groups) {
        text += group.title + ":";
        for (const SensorReading& sensor : group.sensors)
            text += " " + sensor.key;
        text += "\n";
    }
    return text;
}

struct SensorGroupTest : ::testing::Test {
    MemoryPreferenceStore store;
    LocalizationManager loc{store, "en"};
};

} // namespace

TEST_F(SensorGroupTest, FollowsTheFirstTwoCharactersOfTheKeysInAFixedOrder) {
    EXPECT_EQ(
        outline(sensorGroups({{"TA0P", 30}, {"Te05", 40}, {"Tg0j", 50}, {"Tp09", 60}, {"Tp01", 61}}, loc)),
        "Performance Cores: Tp09 Tp01\nEfficiency Cores: Te05\nGPU: Tg0j\nOther Sensors: TA0P\n");
}

TEST_F(SensorGroupTest, LeavesEmptyGroupsOut) {
    EXPECT_TRUE(sensorGroups({}, loc).empty());
    EXPECT_EQ(outline(sensorGroups({{"Tg01", 50}}, loc)), "GPU: Tg01\n");
}

TEST_F(SensorGroupTest, TellsUpperFromLowerCase) {
    EXPECT_EQ(outline(sensorGroups({{"TP01", 50}, {"TG01", 50}}, loc)), "Other Sensors: TP01 TG01\n");
}

TEST_F(SensorGroupTest, TakesKeysOfAnyLength) {
    EXPECT_EQ(outline(sensorGroups({{"", 50}, {"T", 50}, {"Tp", 50}}, loc)),
              "Performance Cores: Tp\nOther Sensors:  T\n");
}

TEST_F(SensorGroupTest, HasCzechTitles) {
    loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(outline(sensorGroups({{"Tp01", 1}, {"Te01", 1}, {"Tg01", 1}, {"Ts01", 1}}, loc)),
              "Výkonná jádra CPU: Tp01\nÚsporná jádra CPU: Te01\nGPU: Tg01\nOstatní senzory: Ts01\n");
}

} // namespace tarvo::ui
