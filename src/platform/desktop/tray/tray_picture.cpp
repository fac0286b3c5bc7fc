#include "platform/desktop/tray/tray_picture.h"

#include "platform/desktop/bar/line_drawing_painter.h"
#include "platform/desktop/system_palette.h"
#include "platform/desktop/tray/square_text.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvo::desktop {

namespace {

constexpr double side = TrayPicture::height;
constexpr double plateRadius = 4;
constexpr QRgb plateColor = 0xff2b2d31;
constexpr QRgb textColor = 0xfff5f5f5;
const std::string programSymbol = "gauge.with.dots.needle.67percent";

/// The biggest first; the smallest is what stays readable.
constexpr std::array textSizes{12.0, 11.0, 10.0, 9.0, 8.0, 7.0};

QImage plate(double width, double ratio) {
    QImage image(QSizeF(width * ratio, side * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(plateColor));
    painter.drawRoundedRect(QRectF(0, 0, width, side), plateRadius, plateRadius);
    return image;
}

} // namespace

TrayPicture::TrayPicture(TrayTraits traits, BarFonts& fonts, SymbolImages& symbols)
    : traits_(traits), fonts_(fonts), symbols_(symbols), face_(fonts, symbols) {
    palette_.setColor(QPalette::Window, QColor(plateColor));
    palette_.setColor(QPalette::WindowText, QColor(textColor));
}

QImage TrayPicture::draw(const StatusItemContent& content, double ratio) {
    return traits_.keepsAspect ? drawWide(content, ratio) : drawSquare(content, ratio);
}

QImage TrayPicture::drawWide(const StatusItemContent& content, double ratio) {
    face_.layOut(content, height);
    QImage image = plate(face_.width(), ratio);
    QPainter painter(&image);
    face_.paint(painter, content, palette_);
    return image;
}

QImage TrayPicture::drawSquare(const StatusItemContent& content, double ratio) {
    QImage image = plate(side, ratio);
    QPainter painter(&image);
    paintSquare(painter, content);
    return image;
}

// Where the tray shows the text itself, the picture is a symbol.
void TrayPicture::paintSquare(QPainter& painter, const StatusItemContent& content) {
    const QColor color = systemColor(content.tint.value_or(SystemColor::label), palette_);
    if (const auto* drawing = std::get_if<LineDrawing>(&content.image)) {
        const double scale = (side - 4) / drawing->height;
        painter.setClipRect(QRectF(2, 2, side - 4, side - 4));
        painter.translate(side - 2, 2);
        painter.scale(scale, scale);
        paintLineDrawing(painter, {-drawing->width, 0}, *drawing, palette_);
        return;
    }
    const auto* symbol = std::get_if<SymbolImage>(&content.image);
    const SquareText text = squareText(content.title);
    if (traits_.showsLabel || (symbol && text.top.isEmpty())) {
        paintSymbol(painter, symbol ? symbol->name : programSymbol, {3, 3, side - 6, side - 6}, color);
    } else if (symbol) {
        paintSymbol(painter, symbol->name, {(side - 10) / 2, 1, 10, 10}, color);
        paintText(painter, text.bottom.isEmpty() ? text.top : text.bottom, {0, 11, side, 10}, color);
    } else if (text.bottom.isEmpty()) {
        paintText(painter, text.top, {0, 0, side, side}, color);
    } else {
        paintText(painter, text.top, {0, 1, side, 10}, color);
        paintText(painter, text.bottom, {0, 11, side, 10}, color);
    }
}

void TrayPicture::paintText(QPainter& painter, const QString& text, const QRectF& place,
                            const QColor& color) {
    const BarFont* font = nullptr;
    for (const double size : textSizes) {
        font = &fonts_.font({size, FontWeight::semibold, true});
        if (font->width(text) <= place.width() - 1 && size <= place.height()) break;
    }
    const double x = place.left() + (place.width() - font->width(text)) / 2;
    const double base = place.center().y() + font->capHeight() / 2;
    painter.setPen(color);
    font->draw(painter, {std::max(0.0, x), std::round(base)}, text);
}

void TrayPicture::paintSymbol(QPainter& painter, const std::string& name, const QRectF& place,
                              const QColor& color) {
    const double ratio = painter.device()->devicePixelRatioF();
    painter.drawImage(place.topLeft(), symbols_.image(name, place.width(), ratio, color));
}

} // namespace tarvo::desktop
