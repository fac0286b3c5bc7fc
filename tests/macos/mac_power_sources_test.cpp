#include "platform/macos/mac_power_sources.h"

#include "macos/mac_test.h"

namespace tarvo {
namespace {

using namespace fakes;
using macos_platform::MacPowerSources;

class MacPowerSourcesTest : public MacTest {
protected:
    MacPowerSources sources;
};

TEST_F(MacPowerSourcesTest, DescribeEachSourceInItsPlace) {
    powerSupply().sources = {dictionary({{"Current Capacity", int32(87)}, {"Is Charging", boolean(true)}}),
                             std::nullopt, dictionary({{"Name", text("UPS")}})};
    const auto list = sources.descriptions();
    ASSERT_TRUE(list.has_value());
    ASSERT_EQ(list->size(), 3U);
    EXPECT_EQ(list->at(0)->integer("Current Capacity"), 87);
    EXPECT_EQ(list->at(0)->boolean("Is Charging"), true);
    EXPECT_FALSE(list->at(1).has_value());
    EXPECT_EQ(list->at(2)->string("Name"), "UPS");
}

TEST_F(MacPowerSourcesTest, AMachineWithoutBatteryHasAnEmptyList) {
    EXPECT_TRUE(sources.descriptions()->empty());
}

TEST_F(MacPowerSourcesTest, ThereIsNoListWithoutASnapshot) {
    powerSupply().sources = {dictionary({})};
    powerSupply().hasSnapshot = false;
    EXPECT_FALSE(sources.descriptions().has_value());
}

TEST_F(MacPowerSourcesTest, ASnapshotMayHaveNoList) {
    powerSupply().sources = {dictionary({})};
    powerSupply().hasList = false;
    EXPECT_FALSE(sources.descriptions().has_value());
    EXPECT_EQ(taken("object"), 2); // the snapshot and the description in it
}

} // namespace
} // namespace tarvo
