#include "ui/elements/capacity_bar.h"

#include "ui/geometry/bar_geometry.h"
#include "ui/geometry/ring_geometry.h"
#include "ui/style/painting.h"

#include <QPainter>

namespace tarvo::ui {

CapacityBar::CapacityBar(CapacityBarFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString CapacityBar::accessibleText() const {
    return QString::fromStdString(ringText(fields().fraction * 100));
}

void CapacityBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double filled = capacityBarWidth(width(), fields().fraction);
    paintBar(painter, theme(), rect(), 0.08, filled, fields().color);
}

} // namespace tarvo::ui
