#include "ui/sections/core_rings.h"

#include "ui/geometry/ring_geometry.h"
#include "ui/sections/core_grid.h"
#include "ui/sections/reading_texts.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr double ringSide = 54;
constexpr int cellWidth = 68;
constexpr int cellHeight = 74;
constexpr int gap = metrics::regular;

} // namespace

CoreRings::CoreRings(QWidget* parent) : Element(parent) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QString CoreRings::accessibleText() const {
    QStringList loads;
    for (std::size_t core = 0; core < fields().perCore.size(); ++core)
        loads << QString::fromStdString(coreName(core) + " " + ringText(fields().perCore[core]));
    return loads.join(QStringLiteral(", "));
}

int CoreRings::heightForWidth(int width) const {
    const std::size_t count = fields().perCore.size();
    const int rows = gridRows(count, gridColumns(width, cellWidth, gap, count));
    return rows * cellHeight + (rows > 1 ? (rows - 1) * gap : 0);
}

QSize CoreRings::sizeHint() const {
    return {8 * cellWidth, heightForWidth(8 * cellWidth)};
}

QSize CoreRings::minimumSizeHint() const {
    return {cellWidth, 0};
}

void CoreRings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const std::size_t count = fields().perCore.size();
    const int columns = gridColumns(width(), cellWidth, gap, count);
    for (std::size_t core = 0; core < count; ++core) {
        const int column = static_cast<int>(core) % columns;
        const int row = static_cast<int>(core) / columns;
        paintCore(painter,
                  QRectF(column * (cellWidth + gap), row * (cellHeight + gap), cellWidth, cellHeight), core);
    }
}

void CoreRings::paintCore(QPainter& painter, const QRectF& cell, std::size_t index) const {
    const Theme shades = theme();
    const double load = fields().perCore[index];
    QRectF ring(0, cell.top(), ringSide, ringSide);
    ring.moveLeft(cell.center().x() - ringSide / 2);
    paintRing(painter, shades, ring, load);
    painter.setPen(shades.color(colors::primary));
    const TabularText value(roleFont(TextRole::ringValue));
    value.draw(painter, ring, Qt::AlignHCenter, QString::fromStdString(ringText(load)));
    painter.setPen(shades.color(colors::secondary));
    const TabularText name(roleFont(TextRole::ringTitle));
    const QRectF line(cell.left(), ring.bottom() + metrics::hair, cell.width(),
                      cell.bottom() - ring.bottom() - metrics::hair);
    name.draw(painter, line, Qt::AlignHCenter,
              name.elided(QString::fromStdString(coreName(index)), cell.width()));
}

} // namespace tarvo::ui
