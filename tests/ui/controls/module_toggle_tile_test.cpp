#include "ui/controls/module_toggle_tile.h"

#include "support/painted_widget.h"
#include "ui/press.h"
#include "ui/style/theme.h"

#include <QMouseEvent>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

void clickAt(QWidget& widget, QPoint place) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

} // namespace

TEST(ModuleToggleTile, IsToggledByAPressAnywhereOnIt) {
    ModuleToggleTile tile;
    tile.set({"cpu.fill", "CPU Cores", colors::blue});
    tile.resize(80, 70);
    clickAt(tile, {2, 68});
    EXPECT_TRUE(tile.isOn());
    clickAt(tile, {40, 20});
    EXPECT_FALSE(tile.isOn());
}

TEST(ModuleToggleTile, IsFilledWhenOnAndPaleWhenOff) {
    ModuleToggleTile tile;
    tile.setPalette(lightPalette());
    tile.set({"cpu.fill", "CPU", colors::blue});
    const QPoint corner(80 / 2 - 12, 10);
    EXPECT_NEAR(painted(tile, {80, 70}).pixelColor(corner).alphaF(), 0.13, 0.02);
    tile.setOn(true);
    EXPECT_EQ(painted(tile, {80, 70}).pixelColor(corner).alpha(), 255);
}

TEST(ModuleToggleTile, IsNamedByItsLabel) {
    ModuleToggleTile tile;
    tile.set({"cpu.fill", "Jádra CPU", colors::blue});
    EXPECT_EQ(tile.accessibleName().toStdString(), "Jádra CPU");
}

} // namespace tarvo::ui
