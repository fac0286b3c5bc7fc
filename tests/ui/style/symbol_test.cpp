#include "ui/style/symbol.h"

#include "support/painted_widget.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <string>

namespace tarvo::ui {
namespace {

QImage symbol(std::string_view name, double ratio = 1) {
    QImage image(QSize(16, 16) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(painter, {0, 0, 16, 16}, name, Qt::red);
    return image;
}

constexpr const char* usedNames[] = {"1.circle.fill",
                                     "15.circle.fill",
                                     "applewatch",
                                     "arrow.clockwise",
                                     "arrow.down.circle.fill",
                                     "arrow.down.right.and.arrow.up.left",
                                     "arrow.left.arrow.right",
                                     "arrow.triangle.2.circlepath",
                                     "arrow.up.arrow.down.circle.fill",
                                     "arrow.up.circle.fill",
                                     "arrow.up.left.and.arrow.down.right",
                                     "battery.100percent",
                                     "battery.100percent.bolt",
                                     "battery.25percent",
                                     "battery.50percent",
                                     "battery.75percent",
                                     "bell.fill",
                                     "bolt.fill",
                                     "bolt.horizontal.fill",
                                     "chart.xyaxis.line",
                                     "checkmark",
                                     "checkmark.circle.fill",
                                     "chevron.left",
                                     "circle.dashed",
                                     "circle.lefthalf.filled",
                                     "clock.arrow.circlepath",
                                     "clock.fill",
                                     "computermouse.fill",
                                     "cpu.fill",
                                     "desktopcomputer",
                                     "dot.radiowaves.left.and.right",
                                     "externaldrive.fill",
                                     "fan.fill",
                                     "fan.slash.fill",
                                     "gamecontroller.fill",
                                     "gauge.with.dots.needle.67percent",
                                     "gearshape.fill",
                                     "globe",
                                     "headphones",
                                     "heart.fill",
                                     "house.fill",
                                     "internaldrive.fill",
                                     "iphone",
                                     "keyboard.fill",
                                     "list.bullet.rectangle.fill",
                                     "list.number",
                                     "lock.fill",
                                     "macwindow.badge.plus",
                                     "magnifyingglass",
                                     "memorychip.fill",
                                     "moon.fill",
                                     "network",
                                     "network.badge.shield.half.filled",
                                     "plus.circle.fill",
                                     "power",
                                     "printer.fill",
                                     "square.grid.2x2.fill",
                                     "square.grid.3x3.fill",
                                     "thermometer.medium",
                                     "trash.fill",
                                     "xmark.circle.fill"};

} // namespace

TEST(Symbol, HasADrawingForEveryNameInUse) {
    for (const char* name : usedNames)
        EXPECT_FALSE(isBlank(symbol(name))) << name;
}

TEST(Symbol, LeavesTheAreaEmptyForAnUnknownName) {
    EXPECT_TRUE(isBlank(symbol("no.such.symbol")));
}

TEST(Symbol, IsDrawnInItsColour) {
    const QImage image = symbol("moon.fill");
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                EXPECT_EQ(pixel, QColor(Qt::red));
            }
        }
    }
}

TEST(Symbol, IsSharpAtEveryScale) {
    // A picture of twice the pixels is not the smaller one enlarged.
    const QImage enlarged = symbol("cpu.fill").scaled(32, 32);
    EXPECT_NE(symbol("cpu.fill", 2), enlarged);
}

} // namespace tarvo::ui
