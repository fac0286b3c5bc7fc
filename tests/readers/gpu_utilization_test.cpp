#include "readers/gpu_utilization.h"

#include "support/scripted_io_registry.h"

#include <gtest/gtest.h>

namespace tarvo {

namespace {

PropertyDictionary gpu(PropertyValue utilization) {
    PropertyDictionary performance;
    performance.set("Device Utilization %", std::move(utilization));
    PropertyDictionary service;
    service.set("PerformanceStatistics", std::move(performance));
    return service;
}

} // namespace

TEST(GPUUtilization, TakesTheFirstServiceThatStatesOne) {
    ScriptedIORegistry registry;
    registry.classes["IOAccelerator"] = {PropertyDictionary{}, gpu(std::int64_t{40}), gpu(std::int64_t{90})};
    EXPECT_EQ(gpuUtilizationPercent(registry), 40);
}

TEST(GPUUtilization, IsNotClamped) {
    ScriptedIORegistry registry;
    registry.classes["IOAccelerator"] = {gpu(104.5)};
    EXPECT_EQ(gpuUtilizationPercent(registry), 104.5);
}

TEST(GPUUtilization, PassesOverServicesWithOtherTypes) {
    ScriptedIORegistry registry;
    PropertyDictionary plain;
    plain.set("PerformanceStatistics", PropertyValue(std::string("busy")));
    registry.classes["IOAccelerator"] = {plain, gpu(std::string("40")), gpu(std::uint64_t{7})};
    EXPECT_EQ(gpuUtilizationPercent(registry), 7);
}

TEST(GPUUtilization, IsAbsentWithoutAServiceThatStatesIt) {
    ScriptedIORegistry registry;
    EXPECT_EQ(gpuUtilizationPercent(registry), std::nullopt);
    registry.classes["IOAccelerator"] = {PropertyDictionary{}};
    EXPECT_EQ(gpuUtilizationPercent(registry), std::nullopt);
    registry.classes["IOAccelerator"] = {gpu(std::int64_t{40})};
    registry.fails = true;
    EXPECT_EQ(gpuUtilizationPercent(registry), std::nullopt);
}

} // namespace tarvo
