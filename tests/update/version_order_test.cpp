#include "update/version_order.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(VersionOrder, ComparesComponentsAsNumbers) {
    EXPECT_TRUE(isNewer("1.10", "1.9"));
    EXPECT_FALSE(isNewer("1.9", "1.10"));
    EXPECT_TRUE(isNewer("2", "1.99.99"));
    EXPECT_FALSE(isNewer("1.2.3", "1.2.3"));
}

TEST(VersionOrder, CountsAMissingComponentAsZero) {
    EXPECT_FALSE(isNewer("1.2", "1.2.0"));
    EXPECT_FALSE(isNewer("1.2.0", "1.2"));
    EXPECT_TRUE(isNewer("1.2.1", "1.2"));
    EXPECT_FALSE(isNewer("1.2", "1.2.1"));
    EXPECT_FALSE(isNewer("", "0"));
    EXPECT_TRUE(isNewer("0.0.1", ""));
}

TEST(VersionOrder, PassesOverEmptyPieces) {
    EXPECT_FALSE(isNewer("1..2", "1.2"));
    EXPECT_FALSE(isNewer("1.2", "1..2"));
    EXPECT_TRUE(isNewer(".1.3.", "1.2"));
    EXPECT_FALSE(isNewer("...", "0"));
}

TEST(VersionOrder, LeavesOutPiecesThatAreNoIntegers) {
    EXPECT_TRUE(isNewer("2.0-beta", "1.9"));
    EXPECT_TRUE(isNewer("1.rc1.5", "1.4"));
    EXPECT_FALSE(isNewer("1.2b.3", "1.3"));
    EXPECT_FALSE(isNewer("1. 2", "1.1"));
    EXPECT_FALSE(isNewer("v2", "1"));
    EXPECT_FALSE(isNewer("99999999999999999999", "1"));
    EXPECT_FALSE(isNewer("0x10", "1"));
}

TEST(VersionOrder, ReadsSigns) {
    EXPECT_TRUE(isNewer("1.+3", "1.2"));
    EXPECT_FALSE(isNewer("1.-3", "1.2"));
    EXPECT_FALSE(isNewer("+-3", "0"));
    EXPECT_FALSE(isNewer("+", "0"));
}

} // namespace
} // namespace tarvo
