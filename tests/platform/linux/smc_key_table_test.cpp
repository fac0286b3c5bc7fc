#include "platform/linux/smc_key_table.h"

#include "platform/smc_record.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

SMCKey key(std::string name) {
    return {std::move(name), "flt ", {}, [] { return std::optional(1.0); }};
}

TEST(SMCKeyTable, RunningKeysCountInTwoDigitsOfBase36) {
    EXPECT_EQ(runningKey("Tp", 0), "Tp00");
    EXPECT_EQ(runningKey("Tp", 9), "Tp09");
    EXPECT_EQ(runningKey("Te", 10), "Te0A");
    EXPECT_EQ(runningKey("Te", 36), "Te10");
    EXPECT_EQ(runningKey("TX", 1295), "TXZZ");
    EXPECT_EQ(runningKey("TX", 1296), std::nullopt);
}

TEST(SMCKeyTable, IsLookedUpByIndexAndByCode) {
    const SMCKeyTable table({key("#KEY"), key("FNum"), key("Tp00")});
    EXPECT_EQ(table.at(2)->key, "Tp00");
    EXPECT_EQ(table.at(3), nullptr);
    EXPECT_EQ(table.find(smcCode("FNum"))->key, "FNum");
    EXPECT_EQ(table.find(smcCode("Tp01")), nullptr);
}

TEST(SMCKeyTable, TheCountsAloneAreNoSources) {
    EXPECT_FALSE(SMCKeyTable({key("#KEY"), key("FNum")}).hasSources());
    EXPECT_TRUE(SMCKeyTable({key("#KEY"), key("FNum"), key("F0Ac")}).hasSources());
    EXPECT_TRUE(SMCKeyTable({key("#KEY"), key("FNum"), key("PSTR")}).hasSources());
    EXPECT_TRUE(SMCKeyTable({key("#KEY"), key("FNum"), key("TX00")}).hasSources());
}

} // namespace
} // namespace tarvo::linux_platform
