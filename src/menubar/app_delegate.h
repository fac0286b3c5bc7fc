#pragma once

#include "core/notification_center.h"
#include "core/settings.h"
#include "core/stats_model.h"
#include "menubar/detail_window_controller.h"
#include "platform/application.h"
#include "platform/dispatcher.h"
#include "platform/popover.h"
#include "platform/status_bar.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace tarvo {

class LocalizationManager;

/// What the delegate works with. References outlive it. A function may be left empty: the delegate then goes without
/// what it would give.
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
    /// Screen coordinates; absent where the desktop does not tell. Empty: no hover previews and no poll for them.
    std::function<std::optional<Point>()> pointerPosition;

    /// Called for each snapshot while notifications are enabled.
    std::function<void(const StatsSnapshot&)> evaluateAlerts;
    /// Registers the global hot key with what a press does.
    std::function<void(std::function<void()> pressed)> registerHotKey;
    std::function<void()> checkForUpdatesIfDue;
    std::function<void()> saveUnsavedHistory;
};

/// The root of the running system: owns the status items, the popovers and the detail window, and turns each
/// snapshot into what the status bar shows. It sets every title, image, tint and tool tip at each snapshot; hosts
/// compare and repaint only what changed. Main thread only; owned by a shared pointer, since timers and observers
/// hold it weakly.
class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    static constexpr std::chrono::milliseconds contentGracePeriod{20'000};
    static constexpr std::chrono::milliseconds hoverPollPeriod{120};

    explicit AppDelegate(AppServices services);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Builds the status items, starts the model and everything else that runs. Called once.
    void applicationDidFinishLaunching();
    /// Writes what is not saved yet. Called once, before the program ends.
    void applicationWillTerminate();

    /// Removes all status items and makes those that the settings and the current snapshot ask for.
    void rebuildStatusItems();
    void updateStatusBarAppearance(const StatsSnapshot& snapshot);

    /// Opens the popover at the anchor, or closes it. Without an anchor: at the combined item, else at the
    /// processor's, else nothing happens.
    void togglePopover(StatusButton* anchor = nullptr);
    void openDetailWindow();
    void quit();
    /// The rows of the status items' context menu in the current language.
    Menu contextMenu();

private:
    using ItemPointer = std::shared_ptr<StatusItem>;

    ItemPointer makeStatusItem(std::optional<MenuBarModule> module);
    void configureButton(StatusButton& button, std::optional<MenuBarModule> module);
    bool shouldShow(MenuBarModule module, const StatsSnapshot& snapshot) const;
    void updateCombinedItem(const StatsSnapshot& snapshot);
    void updateModularItems(const StatsSnapshot& snapshot);

    void modelDidUpdate(const StatsSnapshot& snapshot);
    void menuBarStyleDidChange();
    void statusItemClicked(const ItemPointer& item, std::optional<StatusClick> click);
    void showContextMenu(StatusItem& item);

    StatusButton* anchorOrDefault(StatusButton* anchor) const;
    void popoverDidClose();
    void updateDetailVisible();

    void startHoverPolling();
    void pollHover();
    std::optional<MenuBarModule> moduleUnderPointer() const;
    void closePreview();

    AppServices services_;
    std::map<MenuBarModule, ItemPointer> statusItems_;
    ItemPointer combinedStatusItem_;
    std::unique_ptr<Popover> popover_;
    std::unique_ptr<Popover> hoverPopover_;
    std::optional<MenuBarModule> hoverModule_;
    std::unique_ptr<Timer> hoverPollTimer_;
    DetailWindowController detailWindow_;
    int teardownGeneration_ = 0;
    Subscription styleSubscription_;
    std::string text_; ///< kept between snapshots for its memory
};

} // namespace tarvo
