#pragma once

#include "core/notification_center.h"
#include "core/settings.h"
#include "core/shared_instance.h"
#include "core/stats_model.h"
#include "menubar/detail_window_controller.h"
#include "menubar/hot_key_manager.h"
#include "menubar/hover_preview.h"
#include "menubar/main_popover.h"
#include "menubar/status_items.h"
#include "platform/application.h"
#include "platform/dispatcher.h"
#include "platform/popover.h"
#include "platform/status_bar.h"

#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

class LocalizationManager;

/// What the delegate works with. References and pointers outlive it. A function may be left empty: the
/// delegate then goes without what it would give.
struct AppServices {
    Application& application;
    StatusBar& statusBar;
    Settings& settings;
    LocalizationManager& localization;
    NotificationCenter& notificationCenter;
    Dispatcher& dispatcher;
    std::shared_ptr<StatsModel> model;

    WindowFactory makeDetailWindow;
    PopoverFactory makePopover;
    std::function<std::unique_ptr<PopoverContent>()> makePopoverContent;
    std::function<std::unique_ptr<PopoverContent>(MenuBarModule)> makePreviewContent;
    /// Screen coordinates; absent where the desktop does not tell. Empty: no hover previews and no poll for
    /// them.
    std::function<std::optional<Point>()> pointerPosition;

    /// Called for each snapshot while notifications are enabled.
    std::function<void(const StatsSnapshot&)> evaluateAlerts;
    HotKeys* hotKeys = nullptr; ///< null: there is no global hot key
    std::function<void()> checkForUpdatesIfDue;
    std::function<void()> saveUnsavedHistory;
    /// Called a moment after the views of a popover or of the detail window went, when much was freed.
    std::function<void()> returnFreedMemory = {};
};

/// The root of the running system: owns the status items, the popovers and the detail window, and turns each
/// snapshot into what the status bar shows. Main thread only; owned by a shared pointer, since the model and
/// the hot key hold it weakly.
class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    explicit AppDelegate(AppServices services);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Builds the status items, starts the model and everything else that runs. Called once.
    void applicationDidFinishLaunching();
    /// Writes what is not saved yet. Called once, before the program ends.
    void applicationWillTerminate();

    /// Opens the popover at the anchor, or closes it. Without an anchor: at the combined item, else at the
    /// processor's, else nothing happens.
    void togglePopover(StatusButton* anchor = nullptr);
    /// The program was started once more: shows the popover, at any item if it must be, or the detail window
    /// where there is no item at all.
    void reopen();
    void openDetailWindow();
    void quit();
    /// The rows of the status items' context menu in the current language.
    Menu contextMenu();

private:
    void installUpdateCallback();
    void registerHotKey();
    void modelDidUpdate(const StatsSnapshot& snapshot);
    void menuBarStyleDidChange();
    void startHoverPolling();
    void statusItemClicked(StatusButton& button, std::optional<StatusClick> click);
    void showContextMenu(StatusButton& button);
    bool isPopoverShown() const { return popover_ && popover_->isShown(); }
    void popoverWillShow();
    void updateDetailVisible();
    void detailWindowOpenChanged();
    void viewsWent();

    AppServices services_;
    StatusItems items_;
    DetailWindowController detailWindow_;
    SharedInstance<DetailWindowController> sharedDetailWindow_{detailWindow_};
    std::optional<HotKeyManager> hotKeyManager_;
    std::shared_ptr<MainPopover> popover_;       ///< made at launch
    std::unique_ptr<HoverPreview> hoverPreview_; ///< made at launch
    Subscription styleSubscription_;
};

} // namespace tarvo
