#include "ui/elements/section_header.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(SectionHeader, IsAHeading) {
    SectionHeader header({"cpu.fill", colors::blue, "CPU"});
    EXPECT_EQ(header.accessibleText(), "CPU");
    EXPECT_EQ(header.accessibleRole(), QAccessible::Heading);
}

TEST(SectionHeader, HasRoomForItsTileAndShadow) {
    EXPECT_GE(SectionHeader({"cpu.fill", colors::blue, "CPU"}).sizeHint().height(), 34 + 6);
}

} // namespace tarvo::ui
