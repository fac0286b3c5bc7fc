#include "ui/tables/natural_order.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(NaturalOrder, ComparesNumbersByTheirValues) {
    EXPECT_LT(naturalOrder("10.0.0.9:80", "10.0.0.10:80"), 0);
    EXPECT_GT(naturalOrder("*:5353", "*:80"), 0);
    EXPECT_EQ(naturalOrder("127.0.0.1:443", "127.0.0.1:443"), 0);
    EXPECT_EQ(naturalOrder("port 007", "port 7"), 0);
    EXPECT_LT(naturalOrder("0", "1"), 0);
}

TEST(NaturalOrder, ComparesNumbersThatNoTypeHolds) {
    EXPECT_LT(naturalOrder("99999999999999999999998", "99999999999999999999999"), 0);
    EXPECT_LT(naturalOrder("99999999999999999999999", "100000000000000000000000"), 0);
}

TEST(NaturalOrder, ComparesOtherCharactersByTheirCodes) {
    EXPECT_LT(naturalOrder("", "a"), 0);
    EXPECT_LT(naturalOrder("a", "b"), 0);
    EXPECT_LT(naturalOrder("a", "a1"), 0);
    EXPECT_GT(naturalOrder("\xE2\x80\x94", "z"), 0);
    EXPECT_EQ(naturalOrder("", ""), 0);
}

} // namespace tarvo::ui
