#include "ui/elements/temp_bar.h"

#include "ui/geometry/bar_geometry.h"
#include "ui/geometry/load_color.h"
#include "ui/style/painting.h"

#include <QPainter>

#include <fmt/format.h>

namespace tarvo::ui {

TempBar::TempBar(TempBarFields fields, QWidget* parent) : Element(fields, parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString TempBar::accessibleText() const {
    return QString::fromStdString(fmt::format("{:.0f} °C", fields().celsius));
}

void TempBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double filled =
        temperatureBarWidth(width(), fields().celsius, fields().scaleMin, fields().scaleMax);
    paintBar(painter, theme(), rect(), 0.07, filled, temperatureColor(fields().celsius));
}

} // namespace tarvo::ui
