#include "menubar/app_delegate.h"

#include "localization/localization_manager.h"

#include <utility>

namespace tarvo {

namespace {

// Command, shift and the M key.
constexpr std::uint32_t hotKeyCode = 46;
constexpr std::uint32_t hotKeyModifiers = 768;

// Views go in the next turns of the event loop, and what they were still loading is dropped when it comes.
constexpr std::chrono::milliseconds untilViewsAreGone{1'000};

} // namespace

AppDelegate::AppDelegate(AppServices services)
    : services_(std::move(services)),
      items_(services_.statusBar, services_.settings, services_.localization, *services_.model,
             {.clicked = [this](StatusButton& button,
                                std::optional<StatusClick> click) { statusItemClicked(button, click); },
              .contextMenu = [this] { return contextMenu(); }}),
      detailWindow_(services_.application, services_.makeDetailWindow) {
    detailWindow_.onOpenChanged = [this] { detailWindowOpenChanged(); };
    if (services_.hotKeys) hotKeyManager_.emplace(*services_.hotKeys);
}

void AppDelegate::applicationDidFinishLaunching() {
    services_.application.setActivationPolicy(ActivationPolicy::accessory);
    popover_ = MainPopover::make(services_.application, services_.dispatcher,
                                 {.makePopover = services_.makePopover,
                                  .makeContent = services_.makePopoverContent,
                                  .willShow = [this] { popoverWillShow(); },
                                  .didClose = [this] { updateDetailVisible(); },
                                  .didRelease = [this] { viewsWent(); }});
    hoverPreview_ = std::make_unique<HoverPreview>(
        services_.dispatcher, items_,
        HoverPreview::Parts{.makePopover = services_.makePopover,
                            .makeContent = services_.makePreviewContent,
                            .pointerPosition = services_.pointerPosition,
                            .isSuppressed = [this] { return isPopoverShown(); }});
    items_.rebuild();
    startHoverPolling();
    installUpdateCallback();
    services_.model->start();
    registerHotKey();
    styleSubscription_ =
        services_.notificationCenter.observe(menuBarStyleChanged, [this] { menuBarStyleDidChange(); });
    if (services_.checkForUpdatesIfDue) services_.checkForUpdatesIfDue();
}

void AppDelegate::applicationWillTerminate() {
    if (services_.saveUnsavedHistory) services_.saveUnsavedHistory();
}

void AppDelegate::installUpdateCallback() {
    services_.model->onUpdate = [weakSelf = weak_from_this()](const StatsSnapshot& snapshot) {
        if (const auto self = weakSelf.lock()) self->modelDidUpdate(snapshot);
    };
}

void AppDelegate::registerHotKey() {
    if (!hotKeyManager_) return;
    hotKeyManager_->registerHotKey(hotKeyCode, hotKeyModifiers, [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock()) self->togglePopover();
    });
}

void AppDelegate::modelDidUpdate(const StatsSnapshot& snapshot) {
    items_.updateStatusBarAppearance(snapshot);
    if (services_.evaluateAlerts && services_.settings.notificationsEnabled())
        services_.evaluateAlerts(snapshot);
}

void AppDelegate::menuBarStyleDidChange() {
    items_.rebuild();
    items_.updateStatusBarAppearance(services_.model->snap());
    startHoverPolling();
}

void AppDelegate::startHoverPolling() {
    if (services_.settings.modularMenuBar() && services_.statusBar.tellsPlaces()) {
        hoverPreview_->startPolling();
    } else {
        hoverPreview_->stop();
    }
}

void AppDelegate::statusItemClicked(StatusButton& button, std::optional<StatusClick> click) {
    hoverPreview_->close();
    if (click == StatusClick::right) {
        showContextMenu(button);
    } else {
        togglePopover(&button);
    }
}

Menu AppDelegate::contextMenu() {
    auto& localization = services_.localization;
    return {{localization.t({.cs = "Otevřít detailní přehled…", .en = "Open Detail Window…"}), "",
             [this] { openDetailWindow(); }},
            {"", "", {}},
            {localization.t({.cs = "Ukončit", .en = "Quit"}), "q", [this] { quit(); }}};
}

void AppDelegate::showContextMenu(StatusButton& button) {
    const auto item = items_.itemOf(button); // kept: the items may be rebuilt while the menu is open
    if (item) item->setMenu(contextMenu());
    button.performClick();
    if (item) item->setMenu(std::nullopt);
}

void AppDelegate::togglePopover(StatusButton* anchor) {
    if (!popover_) return;
    if (popover_->isShown()) {
        popover_->close();
        return;
    }
    if (!anchor) anchor = items_.defaultAnchor();
    if (anchor) popover_->show(*anchor);
}

void AppDelegate::reopen() {
    if (popover_ && popover_->isShown()) return;
    StatusButton* const anchor = items_.defaultAnchor() ? items_.defaultAnchor() : items_.firstButton();
    if (popover_ && anchor) {
        popover_->show(*anchor);
    } else {
        openDetailWindow();
    }
}

void AppDelegate::popoverWillShow() {
    services_.model->setDetailVisible(true);
    services_.model->refreshProcessesAsync();
}

void AppDelegate::openDetailWindow() {
    DetailWindowController::shared().show();
}

void AppDelegate::quit() {
    services_.application.terminate();
}

void AppDelegate::detailWindowOpenChanged() {
    updateDetailVisible();
    if (!detailWindow_.isOpen()) viewsWent();
}

void AppDelegate::viewsWent() {
    if (!services_.returnFreedMemory) return;
    services_.dispatcher.after(untilViewsAreGone, [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock()) self->services_.returnFreedMemory();
    });
}

void AppDelegate::updateDetailVisible() {
    services_.model->setDetailVisible(isPopoverShown() || detailWindow_.isOpen());
}

} // namespace tarvo
