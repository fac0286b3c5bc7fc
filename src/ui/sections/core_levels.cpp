#include "ui/sections/core_levels.h"

#include "ui/geometry/bar_geometry.h"
#include "ui/geometry/load_color.h"
#include "ui/geometry/ring_geometry.h"
#include "ui/sections/core_grid.h"
#include "ui/sections/reading_texts.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvo::ui {
namespace {

constexpr int rowHeight = 18;
constexpr int cellWidth = 156;
constexpr int gap = metrics::medium;
constexpr std::size_t mostRows = 16;

} // namespace

CoreLevels::CoreLevels(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString CoreLevels::accessibleText() const {
    QStringList loads;
    for (std::size_t core = 0; core < fields().perCore.size(); ++core)
        loads << QString::fromStdString(coreName(core) + " " + ringText(fields().perCore[core]));
    return loads.join(QStringLiteral(", "));
}

int CoreLevels::columns() const {
    return std::max(1, static_cast<int>((fields().perCore.size() + mostRows - 1) / mostRows));
}

int CoreLevels::rows() const {
    return gridRows(fields().perCore.size(), columns());
}

QSize CoreLevels::sizeHint() const {
    return {columns() * (cellWidth + gap) - gap, rows() * rowHeight};
}

void CoreLevels::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double width = (this->width() - gap * (columns() - 1)) / static_cast<double>(columns());
    for (std::size_t core = 0; core < fields().perCore.size(); ++core) {
        const int column = static_cast<int>(core) / rows();
        const int row = static_cast<int>(core) % rows();
        paintCore(painter, QRectF(column * (width + gap), row * rowHeight, width, rowHeight), core);
    }
}

void CoreLevels::paintCore(QPainter& painter, const QRectF& cell, std::size_t index) const {
    const Theme shades = theme();
    const TabularText text(roleFont(TextRole::placeholder));
    const double nameWidth = text.width(QString::fromStdString(coreName(fields().perCore.size() - 1)));
    const double loadWidth = text.width(QStringLiteral("100%"));
    const double load = fields().perCore[index];
    painter.setPen(shades.color(colors::secondary));
    text.draw(painter, {cell.left(), cell.top(), nameWidth, cell.height()}, Qt::AlignLeft,
              QString::fromStdString(coreName(index)));
    text.draw(painter, {cell.right() - loadWidth, cell.top(), loadWidth, cell.height()}, Qt::AlignRight,
              QString::fromStdString(ringText(load)));
    const double left = cell.left() + nameWidth + metrics::regular;
    const QRectF track(left, cell.center().y() - metrics::barHeight / 2.0,
                       std::max(0.0, cell.right() - loadWidth - metrics::regular - left), metrics::barHeight);
    paintBar(painter, shades, track, 0.08, capacityBarWidth(track.width(), load / 100), loadColor(load));
}

} // namespace tarvo::ui
