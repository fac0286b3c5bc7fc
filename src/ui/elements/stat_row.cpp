#include "ui/elements/stat_row.h"

#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvo::ui {
namespace {

constexpr int tileSize = 22;
constexpr double symbolSize = 12;
constexpr double tileRadius = 6;
constexpr int spacing = 8;
constexpr int verticalPadding = 6;
constexpr double leastValueShare = 0.6;

} // namespace

StatRow::StatRow(StatRowFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatRow::setValue(std::string value) {
    StatRowFields changed = fields();
    changed.value = std::move(value);
    set(std::move(changed));
}

QString StatRow::accessibleText() const {
    return QString::fromStdString(fields().value.empty() ? fields().label
                                                         : fields().label + " " + fields().value);
}

QSize StatRow::sizeHint() const {
    const double label =
        TabularText(roleFont(TextRole::rowLabel)).width(QString::fromStdString(fields().label));
    const double value =
        TabularText(roleFont(TextRole::rowValue)).width(QString::fromStdString(fields().value));
    return {tileSize + 2 * spacing + static_cast<int>(std::ceil(label + value)),
            tileSize + 2 * verticalPadding};
}

void StatRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    const QRectF tile(0, (height() - tileSize) / 2.0, tileSize, tileSize);
    paintIconTile(painter, shades, tile, {fields().icon, symbolSize, tileRadius}, fields().iconColor);

    const QRectF line = QRectF(rect()).adjusted(tileSize + spacing, 0, 0, 0);
    const TabularText label(roleFont(TextRole::rowLabel));
    const QString name = QString::fromStdString(fields().label);
    const double valueRoom =
        std::max(line.width() - label.width(name) - spacing, line.width() * leastValueShare);
    const TabularText value(roleFont(TextRole::rowValue));
    const QString reading = value.elided(QString::fromStdString(fields().value), valueRoom);
    painter.setPen(shades.color(fields().valueColor));
    value.draw(painter, line, Qt::AlignRight, reading);

    const double room = std::max(0.0, line.width() - value.width(reading) - spacing);
    painter.setPen(shades.color(colors::primary));
    label.draw(painter, line, Qt::AlignLeft, label.elided(name, room));
}

} // namespace tarvo::ui
