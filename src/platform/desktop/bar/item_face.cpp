#include "platform/desktop/bar/item_face.h"

#include "platform/desktop/bar/line_drawing_painter.h"
#include "platform/desktop/system_palette.h"

#include <QPainter>

#include <cmath>

namespace tarvo::desktop {

namespace {

constexpr double symbolSide = 15;

QSizeF imageSize(const StatusImage& image) {
    if (std::holds_alternative<SymbolImage>(image)) return {symbolSide, symbolSide};
    if (const auto* drawing = std::get_if<LineDrawing>(&image)) return {drawing->width, drawing->height};
    return {};
}

} // namespace

void ItemFace::layOut(const StatusItemContent& content, int height) {
    title_ = layoutTitle(content.title, content.font, fonts_);
    const double reserved = reserved_.fit(content.title, title_, content.font, fonts_);
    geometry_ = layoutBarItem(imageSize(content.image), title_.size, reserved, content.title.centred, height);
}

void ItemFace::paint(QPainter& painter, const StatusItemContent& content, const QPalette& palette) const {
    const QColor foreground = systemColor(content.tint.value_or(SystemColor::label), palette);
    if (const auto* symbol = std::get_if<SymbolImage>(&content.image)) {
        paintSymbol(painter, symbol->name, geometry_.image, foreground);
    } else if (const auto* drawing = std::get_if<LineDrawing>(&content.image)) {
        paintLineDrawing(painter, geometry_.image.topLeft(), *drawing, palette);
    }
    for (const TitlePiece& piece : title_.pieces) {
        const QColor color = piece.color ? systemColor(*piece.color, palette) : foreground;
        const QPointF origin = geometry_.title + piece.origin;
        if (piece.symbol.empty()) {
            painter.setPen(color);
            piece.font->draw(painter, origin, piece.text);
        } else {
            const double top = origin.y() - std::round((piece.width + piece.font->ascent()) / 2) + 1;
            paintSymbol(painter, piece.symbol, {origin.x(), top, piece.width, piece.width}, color);
        }
    }
}

void ItemFace::forgetFonts() {
    reserved_ = {};
    title_ = {};
}

void ItemFace::paintSymbol(QPainter& painter, const std::string& name, const QRectF& place,
                           const QColor& color) const {
    const double ratio = painter.device()->devicePixelRatioF();
    painter.drawImage(place.topLeft(), symbols_.image(name, place.width(), ratio, color));
}

} // namespace tarvo::desktop
