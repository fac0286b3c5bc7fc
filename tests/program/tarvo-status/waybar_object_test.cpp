#include "waybar_object.h"

#include "support/memory_preference_store.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tarvo::status {
namespace {

nlohmann::ordered_json object(double cpu, double mem, AppLanguage language) {
    MemoryPreferenceStore store;
    const Settings settings(store);
    StatsSnapshot snapshot;
    snapshot.cpu = cpu;
    snapshot.memPercent = mem;
    std::string out;
    std::string scratch = "left from before";
    appendWaybarObject(out, scratch, snapshot, settings, language);
    return nlohmann::ordered_json::parse(out);
}

TEST(WaybarObject, HoldsTextToolTipAndClass) {
    EXPECT_EQ(object(23, 48, AppLanguage::en).dump(),
              R"({"text":"CPU 23% · RAM 48%","tooltip":"CPU: 23%\nMemory: 48%","class":"normal"})");
}

TEST(WaybarObject, SpeaksTheLanguageInTheToolTip) {
    EXPECT_EQ(object(23, 48, AppLanguage::cs)["tooltip"], "CPU: 23%\nPaměť: 48%");
}

TEST(WaybarObject, FollowsTheLoadBandsInItsClass) {
    EXPECT_EQ(object(59.9, 40, AppLanguage::en)["class"], "normal");
    EXPECT_EQ(object(20, 60, AppLanguage::en)["class"], "raised");
    EXPECT_EQ(object(20, 85, AppLanguage::en)["class"], "high");
}

} // namespace
} // namespace tarvo::status
