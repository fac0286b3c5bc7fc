#include "ui/elements/hero_stat_card.h"

#include "ui/geometry/sparkline_points.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/symbol.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr double cornerRadius = 20;
constexpr double padding = 16;
constexpr double symbolSize = 15;
constexpr double historyHeight = 30;
constexpr double historyLine = 1.8;
constexpr double smallestValue = 18;

// The value in its own size, or as much smaller as it needs to fit.
TabularText fittedText(const QFont& font, const QString& text, double room) {
    const double width = TabularText(font).width(text);
    if (width <= room) return TabularText(font);
    QFont smaller = font;
    const double shrunk = font.pointSizeF() * room / width * 0.98;
    const double least = font.pointSizeF() * smallestValue / textSize(TextRole::heroValue);
    smaller.setPointSizeF(std::max(shrunk, least));
    return TabularText(smaller);
}

} // namespace

HeroStatCard::HeroStatCard(HeroStatCardFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString HeroStatCard::accessibleText() const {
    const QString reading = QString::fromStdString(fields().title + " " + fields().value);
    return fields().detail.empty() ? reading : reading + ", " + QString::fromStdString(fields().detail);
}

void HeroStatCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    paintHistory(painter);
    paintTexts(painter);
}

void HeroStatCard::paintGround(QPainter& painter) const {
    const Theme shades = theme();
    const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QLinearGradient gradient(card.topLeft(), card.bottomRight());
    const auto& colors = fields().colors;
    for (std::size_t index = 0; index < colors.size(); ++index) {
        const double place =
            colors.size() < 2 ? 0 : static_cast<double>(index) / static_cast<double>(colors.size() - 1);
        gradient.setColorAt(place, shades.ground(colors[index]));
    }
    painter.setPen(QPen(shades.color(ui::colors::white.withOpacity(0.15)), 1));
    painter.setBrush(colors.empty() ? QBrush(Qt::NoBrush) : QBrush(gradient));
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
}

void HeroStatCard::paintHistory(QPainter& painter) const {
    const QRectF frame(0, height() - historyHeight, width(), historyHeight);
    const int samples = static_cast<int>(fields().history.size());
    auto points = normalizedPoints(fields().history, samples, {frame.width(), frame.height() - historyLine});
    if (points.empty()) return;
    for (DrawPoint& point : points)
        point.y += frame.top() + historyLine / 2;

    painter.save();
    QPainterPath card;
    card.addRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius - 1, cornerRadius - 1);
    painter.setClipPath(card);
    const Theme shades = theme();
    painter.fillPath(areaPath(points, frame.bottom()), shades.color(colors::white.withOpacity(0.35)));
    painter.strokePath(linePath(points), QPen(shades.color(colors::white), historyLine, Qt::SolidLine,
                                              Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

void HeroStatCard::paintTexts(QPainter& painter) const {
    const Theme shades = theme();
    const double room = std::max(0.0, width() - 2 * padding);
    const QColor white = shades.color(colors::white);
    const QRectF symbol(padding, padding, symbolSize, symbolSize);
    paintSymbol(painter, symbol, fields().icon, white);

    painter.setPen(white);
    const TabularText title(roleFont(TextRole::heroTitle));
    const double titleLeft = symbol.right() + metrics::small;
    const QRectF titleLine(titleLeft, symbol.top(), std::max(0.0, padding + room - titleLeft), symbolSize);
    title.draw(painter, titleLine, Qt::AlignLeft,
               title.elided(QString::fromStdString(fields().title), titleLine.width()));

    const QFont valueFont = roleFont(TextRole::heroValue);
    const QString reading = QString::fromStdString(fields().value);
    const TabularText value = fittedText(valueFont, reading, room);
    const QRectF valueLine(padding, symbol.bottom() + metrics::small, room,
                           QFontMetricsF(valueFont).height());
    value.draw(painter, valueLine, Qt::AlignLeft, value.elided(reading, room));

    painter.setPen(shades.color(colors::white.withOpacity(0.7)));
    const TabularText detail(roleFont(TextRole::heroDetail));
    const QRectF detailLine(padding, valueLine.bottom(), room, detail.metrics().height());
    detail.draw(painter, detailLine, Qt::AlignLeft,
                detail.elided(QString::fromStdString(fields().detail), room));
}

} // namespace tarvo::ui
