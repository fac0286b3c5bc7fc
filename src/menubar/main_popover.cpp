#include "menubar/main_popover.h"

#include <utility>

namespace tarvo {

std::shared_ptr<MainPopover> MainPopover::make(Application& application, Dispatcher& dispatcher,
                                               Parts parts) {
    if (!parts.makePopover) return nullptr;
    std::shared_ptr<MainPopover> made(new MainPopover(application, dispatcher, std::move(parts)));
    made->popover_ = made->parts_.makePopover({.behavior = PopoverBehavior::transient, .animated = true},
                                              [popover = made.get()] { popover->popoverDidClose(); });
    return made->popover_ ? made : nullptr;
}

MainPopover::MainPopover(Application& application, Dispatcher& dispatcher, Parts parts)
    : application_(application), dispatcher_(dispatcher), parts_(std::move(parts)) {}

void MainPopover::show(StatusButton& anchor) {
    parts_.willShow();
    ++teardownGeneration_;
    if (!popover_->hasContent() && parts_.makeContent) popover_->setContent(parts_.makeContent());
    popover_->show(anchor);
    popover_->makeKey();
    application_.activateIgnoringOtherApps();
}

void MainPopover::popoverDidClose() {
    parts_.didClose();
    const int generation = ++teardownGeneration_;
    dispatcher_.after(contentGracePeriod, [weakSelf = weak_from_this(), generation] {
        if (const auto self = weakSelf.lock()) self->releaseContent(generation);
    });
}

void MainPopover::releaseContent(int generation) {
    if (generation != teardownGeneration_ || popover_->isShown()) return;
    popover_->setContent(nullptr);
    if (parts_.didRelease) parts_.didRelease();
}

} // namespace tarvo
