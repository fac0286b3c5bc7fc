#pragma once

#include "platform/desktop/bar/item_face.h"
#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/tray/tray_traits.h"

#include <QImage>

namespace tarvo::desktop {

/// Draws items for trays, whose background is not known: light on a dark plate of its own.
class TrayPicture {
public:
    static constexpr int height = 22; ///< logical pixels

    TrayPicture(TrayTraits traits, BarFonts& fonts, SymbolImages& symbols);

    /// Wide where the tray keeps the aspect, else square.
    QImage draw(const StatusItemContent& content, double ratio);

private:
    QImage drawWide(const StatusItemContent& content, double ratio);
    QImage drawSquare(const StatusItemContent& content, double ratio);
    void paintSquare(QPainter& painter, const StatusItemContent& content);
    void paintText(QPainter& painter, const QString& text, const QRectF& place, const QColor& color);
    void paintSymbol(QPainter& painter, const std::string& name, const QRectF& place, const QColor& color);

    TrayTraits traits_;
    BarFonts& fonts_;
    SymbolImages& symbols_;
    ItemFace face_;
    QPalette palette_;
};

} // namespace tarvo::desktop
