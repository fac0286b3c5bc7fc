#include "platform/desktop/system_palette.h"
#include "support/contrast.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

QPalette palette(QRgb window, QRgb text) {
    QPalette made{QColor(window)};
    made.setColor(QPalette::WindowText, QColor(text));
    return made;
}

class SystemPalette : public testing::TestWithParam<SystemColor> {};

TEST_P(SystemPalette, IsReadableOnLightAndDarkWindows) {
    for (const QPalette& each : {palette(0xffefefef, 0xff000000), palette(0xffffffff, 0xff000000),
                                 palette(0xff2b2d31, 0xfff5f5f5), palette(0xff000000, 0xffffffff)}) {
        const QColor window = each.color(QPalette::Window);
        EXPECT_GE(contrast(systemColor(GetParam(), each), window), 4.5) << window.name().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(EveryColor, SystemPalette,
                         testing::Values(SystemColor::label, SystemColor::secondaryLabel, SystemColor::red,
                                         SystemColor::orange, SystemColor::green, SystemColor::blue,
                                         SystemColor::purple));

TEST(SystemPalette, KnowsDarkFromLight) {
    EXPECT_TRUE(isDark(palette(0xff2b2d31, 0xfff5f5f5)));
    EXPECT_FALSE(isDark(palette(0xffefefef, 0xff000000)));
}

} // namespace
} // namespace tarvo::desktop
