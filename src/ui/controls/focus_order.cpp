#include "ui/controls/focus_order.h"

#include <QApplication>
#include <QScrollArea>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace tarvo::ui {
namespace {

bool takesTab(const QWidget& widget, const QWidget& within) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisibleTo(&within);
}

QScrollArea* areaAround(const QWidget& control, const QWidget& within) {
    for (QWidget* parent = control.parentWidget(); parent && parent != &within;
         parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) return area;
    }
    return nullptr;
}

/// Where a control is read: a scroll area as a whole first, then the place in what it scrolls. By the middle,
/// since what stands in one line may differ in height.
std::array<int, 4> readingPlace(QWidget& control, QWidget& within) {
    const QScrollArea* area = areaAround(control, within);
    const QWidget* ground = area ? area->widget() : &within;
    const QPoint inner = control.mapTo(ground, control.rect().center());
    const QPoint outer = area ? area->mapTo(&within, area->rect().center()) : inner;
    return {outer.y(), outer.x(), inner.y(), inner.x()};
}

std::vector<QWidget*> inReadingOrder(QWidget& within) {
    std::vector<std::pair<std::array<int, 4>, QWidget*>> placed;
    for (QWidget* widget : within.findChildren<QWidget*>()) {
        if (takesTab(*widget, within)) placed.emplace_back(readingPlace(*widget, within), widget);
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<QWidget*> controls;
    for (const auto& [place, widget] : placed)
        controls.push_back(widget);
    return controls;
}

void bringIntoSight(QWidget& control, const QWidget& within) {
    if (QScrollArea* area = areaAround(control, within)) area->ensureWidgetVisible(&control);
}

} // namespace

bool moveFocusInReadingOrder(QWidget& within, bool forward) {
    const auto controls = inReadingOrder(within);
    if (controls.empty()) return false;
    const auto present = std::find(controls.begin(), controls.end(), QApplication::focusWidget());
    const auto count = static_cast<std::ptrdiff_t>(controls.size());
    std::ptrdiff_t next = forward ? 0 : count - 1;
    if (present != controls.end()) next = (present - controls.begin() + (forward ? 1 : count - 1)) % count;
    QWidget* control = controls[static_cast<std::size_t>(next)];
    control->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    bringIntoSight(*control, within);
    return true;
}

} // namespace tarvo::ui
