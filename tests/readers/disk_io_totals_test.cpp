#include "readers/disk_io_totals.h"

#include "support/scripted_io_registry.h"

#include <gtest/gtest.h>

namespace tarvo {

namespace {

PropertyDictionary driver(std::optional<std::uint64_t> read, std::optional<std::uint64_t> written) {
    PropertyDictionary statistics;
    if (read) statistics.set("Bytes (Read)", PropertyValue(*read));
    if (written) statistics.set("Bytes (Write)", PropertyValue(*written));
    PropertyDictionary service;
    service.set("Statistics", std::move(statistics));
    return service;
}

} // namespace

TEST(DiskIOTotals, AddTheBytesOfAllDrivers) {
    ScriptedIORegistry registry;
    registry.classes["IOBlockStorageDriver"] = {driver(1000, 200), PropertyDictionary{}, driver(24, 56)};
    EXPECT_EQ(diskIOTotals(registry), (DiskIOTotals{1024, 256}));
}

TEST(DiskIOTotals, CountADriverThatReportsOnlyOneDirection) {
    ScriptedIORegistry registry;
    registry.classes["IOBlockStorageDriver"] = {driver(1000, std::nullopt), driver(std::nullopt, 7)};
    EXPECT_EQ(diskIOTotals(registry), (DiskIOTotals{1000, 7}));
}

TEST(DiskIOTotals, AreZeroWithoutDrivers) {
    ScriptedIORegistry registry;
    EXPECT_EQ(diskIOTotals(registry), DiskIOTotals{});
    registry.fails = true;
    EXPECT_EQ(diskIOTotals(registry), DiskIOTotals{});
}

TEST(DiskIOTotalsDeathTest, ASumThatDoesNotFitEndsTheProgram) {
    ScriptedIORegistry registry;
    registry.classes["IOBlockStorageDriver"] = {driver(UINT64_MAX, 0), driver(1, 0)};
    EXPECT_DEATH(diskIOTotals(registry), "overflow in disk bytes");
}

} // namespace tarvo
