#include "ui/elements/ring_gauge.h"

#include "support/painted_widget.h"
#include "ui/geometry/ring_geometry.h"
#include "ui/style/theme.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tarvo::ui {
namespace {

constexpr QSize size{80, 90};

// The pixel of the ring's line at a part of the circle, clockwise from the top.
QColor ringPixel(const QImage& image, double part) {
    const double radius = (ringDiameter - ringLineWidth) / 2;
    const double angle = 2 * std::numbers::pi * part;
    const QPointF centre(size.width() / 2.0, ringDiameter / 2);
    const QPointF point = centre + radius * QPointF(std::sin(angle), -std::cos(angle));
    return image.pixelColor((point * image.devicePixelRatio()).toPoint());
}

QImage paintedRing(double value, double ratio = 1) {
    RingGauge gauge({"CPU", value, "45 °C"});
    gauge.setPalette(lightPalette());
    return painted(gauge, size, ratio);
}

bool isColored(const QColor& pixel, Color color) {
    const QColor wanted = Theme(lightPalette()).color(color);
    return pixel.alpha() == 255 && std::abs(pixel.hslHue() - wanted.hslHue()) < 12;
}

} // namespace

TEST(RingGauge, ShowsADotAtZero) {
    const QImage image = paintedRing(0, 2);
    EXPECT_TRUE(isColored(ringPixel(image, 0), colors::green));
    EXPECT_LT(ringPixel(image, 0.25).alpha(), 60);
}

TEST(RingGauge, RunsClockwiseFromTheTop) {
    const QImage image = paintedRing(50);
    EXPECT_TRUE(isColored(ringPixel(image, 0.25), colors::green));
    EXPECT_LT(ringPixel(image, 0.75).alpha(), 60);
}

TEST(RingGauge, IsOrangeAtExactlySixtyAndRedAtExactlyEightyFive) {
    EXPECT_TRUE(isColored(ringPixel(paintedRing(60), 0.3), colors::orange));
    EXPECT_TRUE(isColored(ringPixel(paintedRing(85), 0.3), colors::red));
}

TEST(RingGauge, IsAFullRedRingAboveOneHundred) {
    const QImage image = paintedRing(150);
    for (const double part : {0.1, 0.4, 0.7, 0.95})
        EXPECT_TRUE(isColored(ringPixel(image, part), colors::red));
    EXPECT_EQ(RingGauge({"CPU", 150, ""}).accessibleText(), "CPU 150%");
}

TEST(RingGauge, HasRoomForBothLinesBelowTheRing) {
    const RingGauge gauge({"Memory", 40, "6.1 / 16 GB"});
    EXPECT_GE(gauge.sizeHint().height(), 52 + 10 + 9);
}

} // namespace tarvo::ui
