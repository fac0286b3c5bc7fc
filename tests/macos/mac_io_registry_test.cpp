#include "platform/macos/mac_io_registry.h"

#include "macos/mac_test.h"
#include "readers/disk_io_totals.h"
#include "readers/gpu_utilization.h"

#include <array>

namespace tarvo {
namespace {

using namespace fakes;
using macos_platform::MacIORegistry;
using testing::ElementsAre;
using testing::SizeIs;

Value gpu(Value utilization) {
    return dictionary(
        {{"PerformanceStatistics", dictionary({{"Device Utilization %", std::move(utilization)}})}});
}

Value disk(std::int64_t read, std::int64_t written) {
    return dictionary(
        {{"Statistics", dictionary({{"Bytes (Read)", int64(read)}, {"Bytes (Write)", int64(written)}})}});
}

class MacIORegistryTest : public MacTest {
protected:
    MacIORegistry registry;
};

TEST_F(MacIORegistryTest, ListsTheServicesOfAClassInTheirOrder) {
    ioKit().services = {{"IOAccelerator", dictionary({{"name", text("first")}})},
                        {"IOBlockStorageDriver", dictionary({{"name", text("disk")}})},
                        {"IOAccelerator", dictionary({{"name", text("second")}})}};
    const auto services = registry.services("IOAccelerator");
    ASSERT_TRUE(services.has_value());
    ASSERT_THAT(*services, SizeIs(2));
    EXPECT_EQ(services->at(0).string("name"), "first");
    EXPECT_EQ(services->at(1).string("name"), "second");
    EXPECT_EQ(taken("iterator"), 1);
    EXPECT_EQ(taken("service"), 2);
}

TEST_F(MacIORegistryTest, AClassWithoutServicesHasNone) {
    EXPECT_THAT(*registry.services("IOAccelerator"), SizeIs(0));
}

TEST_F(MacIORegistryTest, AnEnumerationThatFailsIsToldFromAnEmptyOne) {
    ioKit().services = {{"IOAccelerator", gpu(int32(1))}};
    ioKit().enumerationFails = true;
    EXPECT_FALSE(registry.services("IOAccelerator").has_value());
    ioKit().enumerationFails = false;
    ioKit().matchingFails = true;
    EXPECT_FALSE(registry.services("IOAccelerator").has_value());
}

TEST_F(MacIORegistryTest, AServiceWithoutPropertiesIsPassedOver) {
    ioKit().services = {{"IOAccelerator", std::nullopt},
                        {"IOAccelerator", text("no dictionary")},
                        {"IOAccelerator", dictionaryOf({int32(1)}, {int32(2)})},
                        {"IOAccelerator", gpu(int32(42))}};
    EXPECT_THAT(*registry.services("IOAccelerator"), SizeIs(1));
    EXPECT_EQ(gpuUtilizationPercent(registry), 42);
    EXPECT_EQ(taken("service"), 8);
}

TEST_F(MacIORegistryTest, AnIteratorThatEndsHalfWayEndsTheList) {
    ioKit().services = {{"IOBlockStorageDriver", disk(1, 2)}, {"IOBlockStorageDriver", disk(30, 40)}};
    ioKit().iteratorEndsAfter = 1;
    EXPECT_THAT(*registry.services("IOBlockStorageDriver"), SizeIs(1));
    ioKit().iteratorEndsAfter = 0;
    EXPECT_THAT(*registry.services("IOBlockStorageDriver"), SizeIs(0));
}

TEST_F(MacIORegistryTest, TheUtilizationIsThatOfTheFirstServiceThatHasANumber) {
    ioKit().services = {{"IOAccelerator", dictionary({{"PerformanceStatistics", int32(3)}})},
                        {"IOAccelerator", gpu(text("37"))},
                        {"IOAccelerator", gpu(float64(37.5))},
                        {"IOAccelerator", gpu(int32(90))}};
    EXPECT_EQ(gpuUtilizationPercent(registry), 37.5);
}

TEST_F(MacIORegistryTest, DiskBytesOfAllDriversAreAdded) {
    ioKit().services = {
        {"IOBlockStorageDriver", disk(5'000'000'000, 7)},
        {"IOBlockStorageDriver", dictionary({{"Statistics", dictionary({{"Bytes (Read)", int64(3)}})}})},
        {"IOBlockStorageDriver", disk(-1, 1)}};
    const auto totals = diskIOTotals(registry);
    EXPECT_EQ(totals.read, 5'000'000'003U);
    EXPECT_EQ(totals.write, 8U);
}

TEST_F(MacIORegistryTest, AsksForTheNamedPropertiesOfTheFirstServiceOnly) {
    ioKit().services = {
        {"AppleSmartBattery", dictionary({{"CycleCount", int64(312)}, {"Serial", text("x")}})},
        {"AppleSmartBattery", dictionary({{"CycleCount", int64(1)}})}};
    constexpr std::array<std::string_view, 2> names{"CycleCount", "DesignCapacity"};
    const auto properties = registry.properties("AppleSmartBattery", names);
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->integer("CycleCount"), 312);
    EXPECT_EQ(properties->integer("DesignCapacity"), std::nullopt);
    EXPECT_EQ(properties->string("Serial"), std::nullopt);
    EXPECT_THAT(ioKit().propertyNames, ElementsAre("CycleCount", "DesignCapacity"));
    EXPECT_EQ(taken("service"), 1);
}

TEST_F(MacIORegistryTest, APropertyOfATypeThatNobodyReadsIsAbsent) {
    ioKit().services = {{"AppleSmartBattery", dictionary({{"CycleCount", data()}})}};
    constexpr std::array<std::string_view, 1> names{"CycleCount"};
    EXPECT_EQ(registry.properties("AppleSmartBattery", names)->integer("CycleCount"), std::nullopt);
}

TEST_F(MacIORegistryTest, ThereAreNoPropertiesOfAServiceThatIsNotThere) {
    constexpr std::array<std::string_view, 1> names{"CycleCount"};
    EXPECT_FALSE(registry.properties("AppleSmartBattery", names).has_value());
    ioKit().services = {{"AppleSmartBattery", dictionary({{"CycleCount", int64(1)}})}};
    ioKit().matchingFails = true;
    EXPECT_FALSE(registry.properties("AppleSmartBattery", names).has_value());
    EXPECT_THAT(ioKit().propertyNames, testing::IsEmpty());
}

TEST_F(MacIORegistryTest, ANameThatCannotBeMadeIsAnAbsentProperty) {
    ioKit().services = {{"AppleSmartBattery", dictionary({{"CycleCount", int64(1)}})}};
    coreFoundation().stringsCannotBeMade = true;
    constexpr std::array<std::string_view, 1> names{"CycleCount"};
    EXPECT_EQ(registry.properties("AppleSmartBattery", names)->integer("CycleCount"), std::nullopt);
}

} // namespace
} // namespace tarvo
