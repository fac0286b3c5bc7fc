#include "menubar/detail_window_controller.h"

#include "core/shared_instance.h"

#include <utility>

namespace tarvo {

namespace {

const WindowOptions detailWindow{
    .title = "Tarvo", .width = 980, .height = 640, .minimumWidth = 760, .minimumHeight = 480};

} // namespace

DetailWindowController::DetailWindowController(Application& application, WindowFactory makeWindow)
    : application_(application), makeWindow_(std::move(makeWindow)) {}

DetailWindowController& DetailWindowController::shared() {
    return SharedInstance<DetailWindowController>::get();
}

void DetailWindowController::show() {
    if (!window_) {
        if (makeWindow_) window_ = makeWindow_(detailWindow, [this] { windowWillClose(); });
        if (!window_) return;
        if (onOpenChanged) onOpenChanged();
    }
    application_.setActivationPolicy(ActivationPolicy::regular);
    window_->bringToFrontAsKeyWindow();
    application_.activateIgnoringOtherApps();
}

void DetailWindowController::windowWillClose() {
    window_.reset();
    application_.setActivationPolicy(ActivationPolicy::accessory);
    if (onOpenChanged) onOpenChanged();
}

} // namespace tarvo
