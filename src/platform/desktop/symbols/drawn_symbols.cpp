#include "platform/desktop/symbols/drawn_symbols.h"

#include "platform/desktop/symbols/symbol_images.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <array>

namespace tarvo::desktop {

namespace {

// Every drawing fills a square of 16 by 16 units, like the icons beside it.
constexpr double grid = 16;

QPen roundPen(double width) {
    return {Qt::black, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void cutOut(QPainter& painter, const QPainterPath& path) {
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(path, Qt::black);
    painter.restore();
}

void drawBattery(QPainter& painter, double level) {
    painter.setPen(roundPen(1));
    painter.drawRoundedRect(QRectF(0.5, 4.5, 13, 7), 2, 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(14.5, 6.5, 1.5, 3), 0.7, 0.7);
    if (level > 0) painter.drawRoundedRect(QRectF(2, 6, std::max(1.5, 10 * level), 4), 0.8, 0.8);
}

void drawChargingBattery(QPainter& painter) {
    drawBattery(painter, 1);
    QPainterPath bolt;
    bolt.addPolygon(QPolygonF{{8.6, 2}, {3.6, 8.8}, {6.6, 8.8}, {5.4, 14}, {10.4, 7.2}, {7.4, 7.2}});
    bolt.closeSubpath();
    QPainterPathStroker around;
    around.setWidth(2);
    cutOut(painter, around.createStroke(bolt));
    painter.fillPath(bolt, Qt::black);
}

void drawFanWithSlash(QPainter& painter) {
    painter.drawImage(QRectF(0, 0, grid, grid),
                      renderSymbol(QStringLiteral("fan.fill"), painter.device()->width()));
    QPainterPath slash;
    slash.moveTo(1.5, 1.5);
    slash.lineTo(14.5, 14.5);
    QPainterPathStroker around;
    around.setWidth(3.2);
    cutOut(painter, around.createStroke(slash));
    painter.strokePath(slash, roundPen(1.2));
}

void drawDashedCircle(QPainter& painter) {
    QPen pen = roundPen(1.4);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({2.2, 1.6});
    painter.setPen(pen);
    painter.drawEllipse(QRectF(1.2, 1.2, 13.6, 13.6));
}

void drawNetworkWithShield(QPainter& painter) {
    painter.drawImage(QRectF(0, 0, 13, 13),
                      renderSymbol(QStringLiteral("network"), painter.device()->width()));
    QPainterPath shield;
    shield.moveTo(11.5, 7.2);
    shield.cubicTo(12.6, 8, 14, 8.3, 15.3, 8.4);
    shield.cubicTo(15.6, 11.6, 14.4, 14.4, 11.5, 15.6);
    shield.cubicTo(8.6, 14.4, 7.4, 11.6, 7.7, 8.4);
    shield.cubicTo(9, 8.3, 10.4, 8, 11.5, 7.2);
    QPainterPathStroker around;
    around.setWidth(2.4);
    cutOut(painter, around.createStroke(shield) + shield);
    painter.strokePath(shield, roundPen(0.9));
    QPainterPath half;
    half.addRect(7, 7, 4.5, 9);
    painter.fillPath(shield & half, Qt::black);
}

void drawNumberInCircle(QPainter& painter, const QString& number) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QRectF(0, 0, grid, grid));
    QFont font = painter.font();
    font.setPixelSize(9);
    font.setWeight(QFont::DemiBold);
    QPainterPath text;
    text.addText(0, 0, font, number);
    const QRectF box = text.boundingRect();
    cutOut(painter, text.translated(grid / 2 - box.center().x(), grid / 2 - box.center().y()));
}

struct DrawnSymbol {
    const char* name;
    void (*draw)(QPainter&);
};

constexpr std::array drawnSymbols{
    DrawnSymbol{"15.circle.fill",
                [](QPainter& painter) { drawNumberInCircle(painter, QStringLiteral("15")); }},
    DrawnSymbol{"battery.0percent", [](QPainter& painter) { drawBattery(painter, 0); }},
    DrawnSymbol{"battery.25percent", [](QPainter& painter) { drawBattery(painter, 0.25); }},
    DrawnSymbol{"battery.50percent", [](QPainter& painter) { drawBattery(painter, 0.5); }},
    DrawnSymbol{"battery.75percent", [](QPainter& painter) { drawBattery(painter, 0.75); }},
    DrawnSymbol{"battery.100percent", [](QPainter& painter) { drawBattery(painter, 1); }},
    DrawnSymbol{"battery.100percent.bolt", drawChargingBattery},
    DrawnSymbol{"circle.dashed", drawDashedCircle},
    DrawnSymbol{"fan.slash.fill", drawFanWithSlash},
    DrawnSymbol{"network.badge.shield.half.filled", drawNetworkWithShield},
};

} // namespace

QImage drawSymbol(const QString& name, int pixels) {
    const auto symbol = std::find_if(drawnSymbols.begin(), drawnSymbols.end(), [&](const DrawnSymbol& each) {
        return name == QLatin1String(each.name);
    });
    if (symbol == drawnSymbols.end() || pixels <= 0) return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(pixels / grid, pixels / grid);
    symbol->draw(painter);
    return image;
}

QStringList drawnSymbolNames() {
    QStringList names;
    for (const DrawnSymbol& symbol : drawnSymbols)
        names.append(QLatin1String(symbol.name));
    return names;
}

} // namespace tarvo::desktop
