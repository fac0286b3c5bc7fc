#include "readers/checked_arithmetic.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(CheckedArithmetic, GivesExactResults) {
    EXPECT_EQ(checkedDifference(INT32_MAX, 0, "test"), INT32_MAX);
    EXPECT_EQ(checkedDifference(0, INT32_MAX, "test"), -INT32_MAX);
    EXPECT_EQ(checkedSum(UINT64_MAX - 1, 1, "test"), UINT64_MAX);
    EXPECT_EQ(checkedProduct(UINT64_MAX / 2, 2, "test"), UINT64_MAX - 1);
}

TEST(CheckedArithmeticDeathTest, EndsTheProgramWhereTheResultDoesNotFit) {
    EXPECT_DEATH(checkedDifference(INT32_MIN, 1, "ticks"), "overflow in ticks");
    EXPECT_DEATH(checkedSum(UINT64_MAX, 1, "sum"), "overflow in sum");
    EXPECT_DEATH(checkedProduct(UINT64_MAX, 2, "product"), "overflow in product");
}

} // namespace tarvo
