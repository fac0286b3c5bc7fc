#include "ui/cards/core_bars.h"

#include "ui/geometry/bar_geometry.h"
#include "ui/geometry/load_color.h"
#include "ui/geometry/ring_geometry.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr int rowHeight = 16;

} // namespace

CoreBars::CoreBars(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString CoreBars::accessibleText() const {
    QStringList loads;
    for (const double load : fields().perCore)
        loads << QString::fromStdString(ringText(load));
    return loads.join(QStringLiteral(", "));
}

int CoreBars::rows() const {
    return (static_cast<int>(fields().perCore.size()) + columns() - 1) / columns();
}

QSize CoreBars::sizeHint() const {
    return {300, rows() * rowHeight};
}

void CoreBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double gap = metrics::medium;
    const double cellWidth = (width() - gap * (columns() - 1)) / columns();
    for (std::size_t index = 0; index < fields().perCore.size(); ++index) {
        const int column = static_cast<int>(index) % columns();
        const int row = static_cast<int>(index) / columns();
        paintCore(painter, QRectF(column * (cellWidth + gap), row * rowHeight, cellWidth, rowHeight), index);
    }
}

void CoreBars::paintCore(QPainter& painter, const QRectF& cell, std::size_t index) const {
    const Theme shades = theme();
    const TabularText text(roleFont(TextRole::ringDetail));
    const double numberWidth = text.width(QString::number(fields().perCore.size()));
    painter.setPen(shades.color(colors::secondary));
    text.draw(painter, {cell.left(), cell.top(), numberWidth, cell.height()}, Qt::AlignRight,
              QString::number(index + 1));
    const double left = cell.left() + numberWidth + metrics::small;
    const QRectF track(left, cell.center().y() - metrics::barHeight / 2.0, cell.right() - left,
                       metrics::barHeight);
    const double load = fields().perCore[index];
    paintBar(painter, shades, track, 0.08, capacityBarWidth(track.width(), load / 100), loadColor(load));
}

} // namespace tarvo::ui
