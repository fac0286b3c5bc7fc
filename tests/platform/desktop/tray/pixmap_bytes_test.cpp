#include "platform/desktop/tray/pixmap_bytes.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(PixmapBytes, AreAlphaRedGreenBlueInThatOrderOnAnyMachine) {
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(0x11, 0x22, 0x33, 0xff));
    image.setPixel(1, 0, qRgba(0x44, 0x55, 0x66, 0x80));
    const TrayPixmap pixmap = toTrayPixmap(image);
    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.bytes.toHex(), "ff11223380445566");
}

TEST(PixmapBytes, AreNotPremultiplied) {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(255, 0, 0, 128));
    EXPECT_EQ(toTrayPixmap(image).bytes.toHex(), "80ff0000");
}

TEST(PixmapBytes, HaveNoGapsBetweenRows) {
    QImage image(3, 5, QImage::Format_RGB888);
    image.fill(Qt::white);
    EXPECT_EQ(toTrayPixmap(image).bytes, QByteArray(3 * 5 * 4, '\xff'));
}

} // namespace
} // namespace tarvo::desktop
