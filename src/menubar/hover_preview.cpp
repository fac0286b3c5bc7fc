#include "menubar/hover_preview.h"

#include <utility>

namespace tarvo {
namespace {

bool contains(const Rect& rect, const Point& point) {
    return point.x >= rect.x && point.x < rect.x + rect.width && point.y >= rect.y &&
           point.y < rect.y + rect.height;
}

} // namespace

HoverPreview::HoverPreview(Dispatcher& dispatcher, const StatusItems& items, Parts parts)
    : dispatcher_(dispatcher), items_(items), parts_(std::move(parts)) {
    if (!parts_.makePopover || !parts_.makeContent || !parts_.pointerPosition) return;
    popover_ =
        parts_.makePopover({.behavior = PopoverBehavior::applicationDefined, .animated = false}, [] {});
}

void HoverPreview::startPolling() {
    pollTimer_.reset();
    // The timer is ours, so it never fires after us.
    if (popover_) pollTimer_ = dispatcher_.repeat(pollPeriod, [this] { poll(); });
}

void HoverPreview::stop() {
    pollTimer_.reset();
    close();
}

void HoverPreview::close() {
    if (!popover_) return;
    popover_->close();
    popover_->setContent(nullptr);
    hoverModule_.reset();
}

void HoverPreview::poll() {
    const auto module = parts_.isSuppressed() ? std::nullopt : moduleUnderPointer();
    if (!module) {
        if (isShown()) close();
        return;
    }
    if (isShown() && hoverModule_ == module) return;
    auto* button = items_.modularItems().at(*module)->button();
    hoverModule_ = module;
    popover_->setContent(parts_.makeContent(*module));
    popover_->show(*button);
}

std::optional<MenuBarModule> HoverPreview::moduleUnderPointer() const {
    const auto pointer = parts_.pointerPosition();
    if (!pointer) return std::nullopt;
    for (const auto& [module, item] : items_.modularItems()) {
        const auto* button = item->button();
        const auto rect = button ? button->screenRect() : std::nullopt;
        if (rect && contains(*rect, *pointer)) return module;
    }
    return std::nullopt;
}

} // namespace tarvo
