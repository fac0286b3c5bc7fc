#include "ui/cards/name_value_row.h"

#include "ui/style/metrics.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>

namespace tarvo::ui {

NameValueRow::NameValueRow(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString NameValueRow::accessibleText() const {
    return QString::fromStdString(fields().name + " " + fields().value);
}

void NameValueRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme shades = theme();
    painter.setPen(shades.color(colors::primary));
    const TabularText value(roleFont(TextRole::rowValue));
    const QString reading = value.elided(QString::fromStdString(fields().value), width());
    value.draw(painter, rect(), Qt::AlignRight, reading);
    const TabularText name(roleFont(TextRole::rowLabel));
    const double room = std::max(0.0, width() - value.width(reading) - metrics::regular);
    name.draw(painter, rect(), Qt::AlignLeft, name.elided(QString::fromStdString(fields().name), room));
}

} // namespace tarvo::ui
