#include "platform/linux/battery_capacity.h"

#include "support/power_supplies.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvo::linux_platform {
namespace {

TEST(BatteryCapacity, OfOneBatteryIsToldInItsOwnUnit) {
    const auto energy = sumCapacity({energyBattery("Full", 30000, 50000, 0)});
    EXPECT_EQ(energy->now, 30e6);
    EXPECT_EQ(energy->full, 50e6);
    auto battery = chargeBattery("Full", 2000, 4000, 0);
    battery.voltageMinDesign = 11'400'000;
    const auto charge = sumCapacity({battery});
    EXPECT_EQ(charge->now, 2e6);
    EXPECT_EQ(charge->full, 4e6);
}

TEST(BatteryCapacity, OfTwoUnitsIsSummedAsEnergy) {
    auto second = chargeBattery("Full", 1000, 2000, 0);
    second.voltageMinDesign = 10'000'000;
    second.voltageNow = 12'000'000;
    const auto sum = sumCapacity({energyBattery("Full", 30000, 50000, 0), second});
    EXPECT_EQ(sum->now, 40e6);
    EXPECT_EQ(sum->full, 70e6);
}

TEST(BatteryCapacity, ThePresentVoltageWillDoWithoutTheDesignedOne) {
    auto second = chargeBattery("Full", 1000, 2000, 0);
    second.voltageMinDesign = 0;
    second.voltageNow = 12'000'000;
    EXPECT_EQ(sumCapacity({energyBattery("Full", 30000, 50000, 0), second})->now, 42e6);
}

TEST(BatteryCapacity, OfChargesWithoutVoltageIsSummedAsCharge) {
    const auto one = chargeBattery("Full", 1000, 2000, 0);
    EXPECT_EQ(sumCapacity({one, one})->now, 2e6);
    EXPECT_FALSE(sumCapacity({one, energyBattery("Full", 1, 2, 0)}).has_value());
}

TEST(BatteryCapacity, NowIsCappedToFull) {
    EXPECT_EQ(sumCapacity({energyBattery("Full", 51000, 50000, 0)})->now, 50e6);
}

TEST(BatteryCapacity, IsAbsentWhereNothingOrNextToNothingIsTold) {
    EXPECT_FALSE(sumCapacity({}).has_value());
    EXPECT_FALSE(sumCapacity({plainBattery("Full", 50)}).has_value());
    EXPECT_FALSE(sumCapacity({energyBattery("Full", 0, 0, 0)}).has_value());
    EXPECT_FALSE(sumCapacity({energyBattery("Full", -1, 50, 0)}).has_value());
    auto wrong = energyBattery("Full", 1, 50, 0);
    wrong.energyFull = std::numeric_limits<std::int64_t>::max();
    EXPECT_FALSE(sumCapacity({wrong}).has_value());
}

TEST(BatteryPercentage, IsTheMeanOfWhatIsTold) {
    EXPECT_EQ(meanPercentage({}), std::nullopt);
    EXPECT_EQ(meanPercentage({plainBattery("Full", 45)}), 45);
    EXPECT_EQ(meanPercentage({plainBattery("Full", 45), plainBattery("Full", 60)}), 53);
    EXPECT_EQ(meanPercentage({plainBattery("Full", 40), energyBattery("Full", 30, 50, 0)}), 50);
    PowerSupply silent;
    EXPECT_EQ(meanPercentage({silent, plainBattery("Full", 45)}), 45);
    EXPECT_EQ(meanPercentage({silent}), std::nullopt);
    for (const int nonsense : {-1, 101}) {
        EXPECT_EQ(meanPercentage({plainBattery("Full", nonsense)}), std::nullopt);
        auto battery = energyBattery("Full", 30, 50, 0);
        battery.capacity = nonsense;
        EXPECT_EQ(meanPercentage({battery}), 60) << "its energy tells better";
    }
}

TEST(BatteryWearSum, NeedsBothFiguresOfEveryBattery) {
    auto first = energyBattery("Full", 1, 40000, 0);
    EXPECT_FALSE(sumWear({first}).has_value());
    first.energyFullDesign = 50'000'000;
    EXPECT_EQ(sumWear({first})->design, 50e6);
    EXPECT_EQ(sumWear({first})->full, 40e6);
    auto second = chargeBattery("Full", 1, 3000, 0);
    second.voltageMinDesign = 10'000'000;
    EXPECT_FALSE(sumWear({first, second}).has_value());
    second.chargeFullDesign = 4'000'000;
    EXPECT_EQ(sumWear({first, second})->design, 90e6);
    EXPECT_EQ(sumWear({first, second})->full, 70e6);
    second.chargeFullDesign = 0;
    EXPECT_FALSE(sumWear({first, second}).has_value());
    EXPECT_FALSE(sumWear({}).has_value());
}

} // namespace
} // namespace tarvo::linux_platform
