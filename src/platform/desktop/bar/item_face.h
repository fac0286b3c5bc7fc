#pragma once

#include "platform/desktop/bar/bar_item_geometry.h"
#include "platform/desktop/bar/title_layout.h"
#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/symbols/symbol_images.h"

#include <QPalette>
#include <QRectF>

class QPainter;

namespace tarvo::desktop {

/// The seen part of a status item, laid out and painted as it stands on a bar: image, then title.
class ItemFace {
public:
    /// Both outlive the face.
    ItemFace(BarFonts& fonts, SymbolImages& symbols) : fonts_(fonts), symbols_(symbols) {}

    void layOut(const StatusItemContent& content, int height);
    /// Logical pixels, as of the last layOut().
    int width() const { return geometry_.width; }
    /// Paints what was laid out, in the colours of the palette, without a background.
    void paint(QPainter& painter, const StatusItemContent& content, const QPalette& palette) const;
    /// To be called before the fonts end that the face was laid out with.
    void forgetFonts();

private:
    void paintSymbol(QPainter& painter, const std::string& name, const QRectF& place,
                     const QColor& color) const;

    BarFonts& fonts_;
    SymbolImages& symbols_;
    ReservedWidth reserved_;
    TitleLayout title_;
    BarItemGeometry geometry_;
};

} // namespace tarvo::desktop
