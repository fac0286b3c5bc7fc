#include "ui/elements/process_icon_view.h"

#include "ui/style/symbol.h"

#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr int iconSize = 18;
constexpr int fallbackInset = 4;

} // namespace

ProcessIconView::ProcessIconView(AppIconCache& icons, QWidget* parent) : Element(parent), icons_(icons) {
    setFixedSize(iconSize, iconSize);
}

void ProcessIconView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (const auto icon = icons_.icon(fields().pid)) {
        icon->paint(&painter, rect());
        return;
    }
    const QRectF symbol =
        QRectF(rect()).adjusted(fallbackInset, fallbackInset, -fallbackInset, -fallbackInset);
    paintSymbol(painter, symbol, "gearshape.fill", theme().color(colors::secondary));
}

} // namespace tarvo::ui
