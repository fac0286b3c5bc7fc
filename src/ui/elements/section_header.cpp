#include "ui/elements/section_header.h"

#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr double tileSize = 34;
constexpr double tileRadius = 10;
constexpr double symbolSize = 17;
constexpr double shadowOpacity = 0.4;
constexpr int shadowRadius = 3;

// A blurred copy of the tile as a few outlines that add up to the shadow's opacity below the tile.
void paintShadow(QPainter& painter, const Theme& theme, const QRectF& tile, Color color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.color(color.withOpacity(shadowOpacity / shadowRadius)));
    for (int spread = shadowRadius; spread >= 1; --spread) {
        const QRectF ring = tile.adjusted(-spread, -spread, spread, spread);
        painter.drawRoundedRect(ring, tileRadius + spread, tileRadius + spread);
    }
}

} // namespace

SectionHeader::SectionHeader(SectionHeaderFields fields, QWidget* parent)
    : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize SectionHeader::sizeHint() const {
    const double title = QFontMetricsF(roleFont(TextRole::sectionTitle)).horizontalAdvance(accessibleText());
    return {static_cast<int>(std::ceil(tileSize + title)) + metrics::medium + 2 * shadowRadius,
            static_cast<int>(tileSize) + 2 * shadowRadius};
}

void SectionHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    const QRectF tile(shadowRadius, (height() - tileSize) / 2, tileSize, tileSize);
    paintShadow(painter, shades, tile, fields().color);
    paintIconTile(painter, shades, tile, {fields().icon, symbolSize, tileRadius}, fields().color);

    painter.setPen(shades.color(colors::primary));
    const TabularText title(roleFont(TextRole::sectionTitle));
    const QRectF line(tile.right() + metrics::medium, 0, width() - tile.right() - metrics::medium, height());
    title.draw(painter, line, Qt::AlignLeft, title.elided(accessibleText(), line.width()));
}

} // namespace tarvo::ui
