#include "ui/elements/badge.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(Badge, PadsItsText) {
    const Badge empty({"", colors::green});
    EXPECT_EQ(empty.sizeHint().width(), 16);
    EXPECT_GT(Badge({"charging", colors::green}).sizeHint().width(), 40);
}

TEST(Badge, ReadsItsText) {
    EXPECT_EQ(Badge({"passive", colors::gray}).accessibleText(), "passive");
}

} // namespace tarvo::ui
