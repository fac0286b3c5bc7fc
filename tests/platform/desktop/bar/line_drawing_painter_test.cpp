#include "platform/desktop/bar/line_drawing_painter.h"

#include "platform/desktop/system_palette.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

QImage paint(const LineDrawing& drawing, QPointF topLeft = {0, 0}) {
    QImage image(60, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintLineDrawing(painter, topLeft, drawing, QPalette(Qt::white));
    return image;
}

LineDrawing horizontal(double y, SystemColor color = SystemColor::blue) {
    return {34, 18, {{color, 2, {{4, y}, {30, y}}}}};
}

TEST(LineDrawingPainter, TheOriginIsAtTheBottomLeft) {
    const QImage image = paint(horizontal(2));
    EXPECT_GT(qAlpha(image.pixel(15, 16)), 200);
    EXPECT_EQ(qAlpha(image.pixel(15, 2)), 0);
}

TEST(LineDrawingPainter, UsesThePalettesShadeOfTheColour) {
    const QImage image = paint(horizontal(9, SystemColor::purple));
    EXPECT_EQ(image.pixelColor(15, 9), systemColor(SystemColor::purple, QPalette(Qt::white)));
}

TEST(LineDrawingPainter, WhatLiesOutsideIsCut) {
    const LineDrawing drawing{34, 18, {{SystemColor::blue, 2, {{-20, 9}, {80, 9}}}}};
    const QImage image = paint(drawing, {10, 0});
    EXPECT_GT(qAlpha(image.pixel(12, 9)), 200);
    EXPECT_EQ(qAlpha(image.pixel(5, 9)), 0);
    EXPECT_EQ(qAlpha(image.pixel(50, 9)), 0);
}

TEST(LineDrawingPainter, LineEndsAreRound) {
    const QImage image = paint({34, 18, {{SystemColor::blue, 6, {{10, 9}, {24, 9}}}}});
    EXPECT_GT(qAlpha(image.pixel(8, 9)), 100);
    EXPECT_LT(qAlpha(image.pixel(7, 6)), 60);
}

TEST(LineDrawingPainter, ADrawingWithoutStrokesLeavesNothing) {
    const QImage image = paint({34, 18, {}});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ASSERT_EQ(qAlpha(image.pixel(x, y)), 0);
    }
}

TEST(LineDrawingPainter, LeavesThePainterAsItWas) {
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    paintLineDrawing(painter, {0, 0}, horizontal(5), QPalette(Qt::white));
    EXPECT_FALSE(painter.hasClipping());
}

} // namespace
} // namespace tarvo::desktop
